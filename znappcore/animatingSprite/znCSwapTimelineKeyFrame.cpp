#include "znappcore/animatingSprite/znCSwapTimelineKeyFrame.h"

#include "znappcore/animatingSprite/znCAnimatingSprite.h"

void znCSwapTimelineKeyFrame::execute(znCAnimatingSprite& pSprite) const
{
    pSprite.timelineSet(mTimeline);
}

bool znCSwapTimelineKeyFrame::targetsExistGet(const znCAnimationDataInstance& pData, const znCAnimationTimeline&) const
{
    return pData.timelineFind(mTimeline) != nullptr;
}
