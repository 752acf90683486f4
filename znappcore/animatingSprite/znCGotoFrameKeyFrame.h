#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCGOTOFRAMEKEYFRAME_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCGOTOFRAMEKEYFRAME_H

#include "znappcore/animatingSprite/znIKeyFrame.h"

// Goes on with a key frame of the timeline that may be drawn by lot, at once.
class znCGotoFrameKeyFrame final : public znIKeyFrame
{
public:
    // Key frame pBase from 0 on, or with pRange above 0 one of the pRange from there on.
    znCGotoFrameKeyFrame(s32 pBase, s32 pRange) : znIKeyFrame(0), mBase(pBase), mRange(pRange) {}

    void execute(znCAnimatingSprite& pSprite) const override;
    bool targetsExistGet(const znCAnimationDataInstance& pData, const znCAnimationTimeline& pTimeline) const override;

private:
    s32 mBase;
    s32 mRange;
};

#endif
