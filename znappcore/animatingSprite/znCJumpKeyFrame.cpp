#include "znappcore/animatingSprite/znCJumpKeyFrame.h"

#include "znappcore/animatingSprite/znCAnimatingSprite.h"

void znCJumpKeyFrame::execute(znCAnimatingSprite& pSprite) const
{
    pSprite.keyFrameGoto(mTarget);
}

bool znCJumpKeyFrame::targetsExistGet(const znCAnimationDataInstance&, const znCAnimationTimeline& pTimeline) const
{
    return mTarget < pTimeline.keyFrameCountGet();
}
