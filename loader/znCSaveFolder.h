#ifndef LOADER_ZNCSAVEFOLDER_H
#define LOADER_ZNCSAVEFOLDER_H

#include "loader/znCFolder.h"

// The writable folder, with two generations of each file: FILE as written last, and FILE~, the one before it, which can
// be read under that name too. While FILE is being written it is FILE~ and the process's number, and the generation
// that it is about to replace is held under that name with another "~". Names with a "~" are the folder's own: nobody
// else may write them, and lists don't show them.
class znCSaveFolder : public znCFolder
{
public:
    // Makes the folder, where it can, and clears away what a run that ended badly left half written.
    explicit znCSaveFolder(const std::filesystem::path& pRoot);

    // The file to read: pName itself, or the generation before it when pName is missing or empty, which pIsOlder tells.
    bool readPathGet(const std::string& pName, std::filesystem::path& pPath, bool& pIsOlder) const;
    bool writePathGet(const std::string& pName, std::filesystem::path& pPath) const;
    long long sizeGet(const std::string& pName) const override;
    bool namesList(const std::string& pName, std::vector<std::string>& pNames) const override;
    // Removes both generations; false if there was none or they can't be removed.
    bool remove(const std::string& pName) const;

    static std::filesystem::path olderPath(const std::filesystem::path& pPath);
    static std::filesystem::path unfinishedPath(const std::filesystem::path& pPath);
    static std::filesystem::path heldPath(const std::filesystem::path& pPath);
    // Sees to it that the folder's own entries are on the disk.
    static bool entriesFlush(const std::filesystem::path& pFolder);

private:
    void unfinishedClear() const;
};

#endif
