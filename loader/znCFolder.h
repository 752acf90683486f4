#ifndef LOADER_ZNCFOLDER_H
#define LOADER_ZNCFOLDER_H

#include <filesystem>
#include <string>
#include <vector>

// A folder that names never leave.
class znCFolder
{
public:
    // The folder need not exist; then nothing is found in it.
    explicit znCFolder(const std::filesystem::path& pRoot);
    virtual ~znCFolder() = default;

    const std::filesystem::path& rootGet() const { return mRoot; }
    // The path of a name in the folder, links resolved; there need be no such file. An absolute name, one with ".." in
    // it and one that a link leads out of the folder are refused: false, with one line on standard error.
    bool pathGet(const std::string& pName, std::filesystem::path& pPath) const;
    // Bytes of a file as it would be opened for reading, -1 if there is none.
    virtual long long sizeGet(const std::string& pName) const;
    bool isFolder(const std::string& pName) const;
    // Names in one folder, in ascending byte order; false if it can't be read.
    virtual bool namesList(const std::string& pName, std::vector<std::string>& pNames) const;

protected:
    // Bytes of an ordinary file, -1 if it is none.
    static long long pathSizeGet(const std::filesystem::path& pPath);

private:
    std::filesystem::path mRoot; // canonical
};

#endif
