#ifndef ZNCORE_IMPL_PLATFORM_ZNCRESOURCENAMEPATHADJUSTER_H
#define ZNCORE_IMPL_PLATFORM_ZNCRESOURCENAMEPATHADJUSTER_H

// Sound effects are stored as WAV: a name with "audio/sfx/" and ".ogg" gets ".wav" in place of what follows its last
// dot. User data lies on the drive "ram://".

#include "zncore/znIResourceNamePathAdjuster.h"

class znCResourceNamePathAdjuster : public znIResourceNamePathAdjuster
{
public:
    void pathAdjust(std::string& pName, s32 pType) override;
};

#endif
