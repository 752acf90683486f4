#ifndef ZNCORE_ZNIFILELISTBUILDER_H
#define ZNCORE_ZNIFILELISTBUILDER_H

// Lists what lies in a directory, in ascending byte order of the names.

#include "zncore/znCFileListEntry.h"
#include "zncore/znTypes.h"
#include <vector>

class znIFileListBuilder
{
public:
    // Keeps only entries whose directory + "/" + name contains pFilter; an empty filter keeps all. A directory that
    // doesn't exist gives no entries. Recursion goes on into directories that the filter leaves out.
    static std::vector<znCFileListEntry> fileListBuild(const std::string& pDirectory, const std::string& pFilter,
                                                       bool pRecursive);

    virtual ~znIFileListBuilder() = default;
    virtual void directoryAdd(const std::string& pDirectory, bool pRecursive) = 0;

protected:
    // Both must outlive the builder.
    znIFileListBuilder(std::vector<znCFileListEntry>& pResult, const std::string& pFilter)
        : mResult(pResult), mFilter(pFilter)
    {
    }
    void entryAdd(const std::string& pDirectory, const std::string& pName, bool pIsDirectory);

private:
    std::vector<znCFileListEntry>& mResult;
    const std::string& mFilter;
};

#endif
