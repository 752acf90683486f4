#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCSPRITEKEYFRAME_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCSPRITEKEYFRAME_H

#include "znappcore/animatingSprite/znIKeyFrame.h"

// Shows a frame.
class znCSpriteKeyFrame final : public znIKeyFrame
{
public:
    // pFrame counts from 1.
    znCSpriteKeyFrame(s32 pFrame, s32 pDurationMs) : znIKeyFrame(pDurationMs), mFrame(pFrame) {}

    void execute(znCAnimatingSprite& pSprite) const override;
    bool targetsExistGet(const znCAnimationDataInstance& pData, const znCAnimationTimeline& pTimeline) const override;

private:
    s32 mFrame;
};

#endif
