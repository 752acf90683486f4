#include "znappcore/animatingSprite/znCAnimationDataInstance.h"

const znCAnimationTimeline* znCAnimationDataInstance::timelineFind(const std::string& pName) const
{
    for (const auto& timeline : mTimelines)
        if (timeline->nameGet() == pName)
            return timeline.get();
    return nullptr;
}

znCAnimationTimeline& znCAnimationDataInstance::timelineAdd(const std::string& pName)
{
    mTimelines.push_back(std::make_unique<znCAnimationTimeline>(pName));
    return *mTimelines.back();
}
