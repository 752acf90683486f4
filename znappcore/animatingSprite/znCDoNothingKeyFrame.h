#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCDONOTHINGKEYFRAME_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCDONOTHINGKEYFRAME_H

#include "znappcore/animatingSprite/znIKeyFrame.h"

// Leaves everything as it is for a while.
class znCDoNothingKeyFrame final : public znIKeyFrame
{
public:
    explicit znCDoNothingKeyFrame(s32 pDurationMs) : znIKeyFrame(pDurationMs) {}

    void execute(znCAnimatingSprite&) const override {}
};

#endif
