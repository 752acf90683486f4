#ifndef LOADER_ZNCFILES_H
#define LOADER_ZNCFILES_H

#include "loader/s3eFile.h"
#include "loader/s3eFileList.h"
#include "loader/znCSaveFolder.h"

#include <memory>
#include <string>
#include <vector>

// The module's files: plain names in the read-only data folder, "ram://" names in the save folder. Owns all open files
// and lists; a handle that isn't open is answered with an error, and what the module leaves open is given up at the
// end.
class znCFiles
{
public:
    znCFiles(const std::filesystem::path& pDataFolder, const std::filesystem::path& pUserFolder);
    ~znCFiles();

    s3eFile* open(const char* pName, const char* pMode);
    u32 read(void* pBuffer, u32 pBytes, s3eFile* pFile);
    u32 write(const void* pBuffer, u32 pBytes, s3eFile* pFile);
    bool flush(s3eFile* pFile);
    bool close(s3eFile* pFile);
    bool exists(const char* pName) const;
    // Bytes, -1 if there is no such file or it is larger than fits.
    s32 sizeGet(const char* pName) const;
    bool isFolder(const char* pName) const;
    bool remove(const char* pName);
    s3eFileList* listOpen(const char* pName);
    // False behind the last name; names that don't fit into pSize bytes are passed over.
    bool listNext(s3eFileList* pList, char* pName, s32 pSize);
    bool listClose(s3eFileList* pList);

private:
    // A name without its drive, and the folder that it lies in.
    struct Place
    {
        const znCFolder* mFolder; // null: no such drive
        bool mIsSave;
        std::string mName;
    };

    Place placeGet(const char* pName) const;
    std::unique_ptr<s3eFile> readOpen(const Place& pPlace) const;
    std::unique_ptr<s3eFile> writeOpen(const Place& pPlace) const;
    bool isBeingWritten(const std::filesystem::path& pPath) const;

    znCFolder mData;
    znCSaveFolder mSaves;
    std::vector<std::unique_ptr<s3eFile>> mFiles;
    std::vector<std::unique_ptr<s3eFileList>> mLists;
};

#endif
