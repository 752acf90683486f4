#ifndef ZNCORE_ZNIRESOURCENAMEPATHADJUSTER_H
#define ZNCORE_ZNIRESOURCENAMEPATHADJUSTER_H

// What a platform changes in the names of resources. Sees the name as it was given, letters in any case.

#include "zncore/znTypes.h"
#include <string>

class znIResourceNamePathAdjuster
{
public:
    virtual ~znIResourceNamePathAdjuster() = default;
    // pType is one of znCResourceName's.
    virtual void pathAdjust(std::string& pName, s32 pType) = 0;
};

#endif
