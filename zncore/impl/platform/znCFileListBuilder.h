#ifndef ZNCORE_IMPL_PLATFORM_ZNCFILELISTBUILDER_H
#define ZNCORE_IMPL_PLATFORM_ZNCFILELISTBUILDER_H

#include "zncore/znIFileListBuilder.h"

// znIFileListBuilder over the platform's directory lists.
class znCFileListBuilder : public znIFileListBuilder
{
public:
    znCFileListBuilder(std::vector<znCFileListEntry>& pResult, const std::string& pFilter)
        : znIFileListBuilder(pResult, pFilter)
    {
    }
    // Directories deeper than 32 are listed but not entered, with one line in the log.
    void directoryAdd(const std::string& pDirectory, bool pRecursive) override;

private:
    s32 mDepth = 0;
};

#endif
