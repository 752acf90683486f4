#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCJUMPKEYFRAME_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCJUMPKEYFRAME_H

#include "znappcore/animatingSprite/znIKeyFrame.h"

// Goes on with another key frame of the timeline, at once.
class znCJumpKeyFrame final : public znIKeyFrame
{
public:
    // pTarget counts from 0; below 1 it is the first.
    explicit znCJumpKeyFrame(s32 pTarget) : znIKeyFrame(0), mTarget(std::max(pTarget, 0)) {}

    void execute(znCAnimatingSprite& pSprite) const override;
    bool targetsExistGet(const znCAnimationDataInstance& pData, const znCAnimationTimeline& pTimeline) const override;

private:
    s32 mTarget;
};

#endif
