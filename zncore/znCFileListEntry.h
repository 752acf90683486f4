#ifndef ZNCORE_ZNCFILELISTENTRY_H
#define ZNCORE_ZNCFILELISTENTRY_H

#include <string>

// One thing found in a directory.
class znCFileListEntry
{
public:
    znCFileListEntry(const std::string& pDirectory, const std::string& pName, bool pIsDirectory)
        : mDirectory(pDirectory), mName(pName), mIsDirectory(pIsDirectory)
    {
    }
    virtual ~znCFileListEntry() = default;

    const std::string& directoryGet() const { return mDirectory; } // as it was asked for, without an ending slash
    const std::string& nameGet() const { return mName; }           // without the directory
    bool isDirectoryGet() const { return mIsDirectory; }

private:
    std::string mDirectory;
    std::string mName;
    bool mIsDirectory;
};

#endif
