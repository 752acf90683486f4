#include "zncore/znIFileListBuilder.h"
#include "zncore/impl/platform/znCFileListBuilder.h"

std::vector<znCFileListEntry> znIFileListBuilder::fileListBuild(const std::string& pDirectory,
                                                                const std::string& pFilter, bool pRecursive)
{
    std::vector<znCFileListEntry> result;
    znCFileListBuilder(result, pFilter).directoryAdd(pDirectory, pRecursive);
    return result;
}

void znIFileListBuilder::entryAdd(const std::string& pDirectory, const std::string& pName, bool pIsDirectory)
{
    if (mFilter.empty() || (pDirectory + "/" + pName).find(mFilter) != std::string::npos)
        mResult.emplace_back(pDirectory, pName, pIsDirectory);
}
