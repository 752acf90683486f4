#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCSWAPTIMELINEKEYFRAME_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCSWAPTIMELINEKEYFRAME_H

#include "znappcore/animatingSprite/znIKeyFrame.h"

#include <string>

// Goes on with the first key frame of another timeline, at once.
class znCSwapTimelineKeyFrame final : public znIKeyFrame
{
public:
    explicit znCSwapTimelineKeyFrame(const std::string& pTimeline) : znIKeyFrame(0), mTimeline(pTimeline) {}

    void execute(znCAnimatingSprite& pSprite) const override;
    bool targetsExistGet(const znCAnimationDataInstance& pData, const znCAnimationTimeline& pTimeline) const override;

private:
    std::string mTimeline;
};

#endif
