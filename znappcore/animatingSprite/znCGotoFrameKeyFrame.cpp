#include "znappcore/animatingSprite/znCGotoFrameKeyFrame.h"

#include "znappcore/animatingSprite/znCAnimatingSprite.h"
#include "zncore/znNCoreUtils.h"

void znCGotoFrameKeyFrame::execute(znCAnimatingSprite& pSprite) const
{
    const s64 offset = mRange > 0 ? znNCoreUtils::randomGet(static_cast<uint32>(mRange)) : 0;
    pSprite.keyFrameGoto(znNCoreUtils::s32Saturate(mBase + offset));
}

bool znCGotoFrameKeyFrame::targetsExistGet(const znCAnimationDataInstance&, const znCAnimationTimeline& pTimeline) const
{
    const s64 last = static_cast<s64>(mBase) + std::max(mRange, 1) - 1;
    return mBase >= 0 && last < pTimeline.keyFrameCountGet();
}
