#include "znappcore/animatingSprite/znCSpriteKeyFrame.h"

#include "znappcore/animatingSprite/znCAnimatingSprite.h"

void znCSpriteKeyFrame::execute(znCAnimatingSprite& pSprite) const
{
    pSprite.frameShow(mFrame - 1);
}

bool znCSpriteKeyFrame::targetsExistGet(const znCAnimationDataInstance& pData, const znCAnimationTimeline&) const
{
    return mFrame >= 1 && mFrame <= static_cast<s32>(pData.framesGet().size());
}
