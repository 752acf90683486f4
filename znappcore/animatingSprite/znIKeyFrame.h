#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNIKEYFRAME_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNIKEYFRAME_H

// One step of a timeline: what happens when it is reached, and how long until the next. Owned by its timeline, shared
// by all sprites that play it, and never changed after loading.

#include "zncore/znTypes.h"

#include <algorithm>

class znCAnimatingSprite;
class znCAnimationDataInstance;
class znCAnimationTimeline;

class znIKeyFrame
{
public:
    virtual void execute(znCAnimatingSprite& pSprite) const = 0;
    virtual ~znIKeyFrame() = default;
    // Whether all that the key frame names exists, asked once when the file is read. pTimeline is the one it stands in.
    virtual bool targetsExistGet(const znCAnimationDataInstance&, const znCAnimationTimeline&) const { return true; }

    s32 durationGet() const { return mDurationMs; }

    znIKeyFrame(const znIKeyFrame&) = delete;
    znIKeyFrame& operator=(const znIKeyFrame&) = delete;

protected:
    // A negative duration counts as 0.
    explicit znIKeyFrame(s32 pDurationMs) : mDurationMs(std::max(pDurationMs, 0)) {}

private:
    s32 mDurationMs;
};

#endif
