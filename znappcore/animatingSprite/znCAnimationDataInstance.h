#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONDATAINSTANCE_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATIONDATAINSTANCE_H

#include "znappcore/animatingSprite/znCAnimationTimeline.h"
#include "znappcore/src/znCBrush.h"
#include "zncore/znAffineMtx2d.h"

#include <memory>
#include <string>
#include <vector>

class znCAnimationDataInstance;

// Shared by the manager and the sprites that play it, so that clearing the manager takes nothing from under a sprite.
using znCAnimationDataPtr = std::shared_ptr<const znCAnimationDataInstance>;

// What one animation file says: its frames and timelines. Not changed after loading.
class znCAnimationDataInstance
{
public:
    // A picture with its place: the matrix maps the picture, centred on its origin, into the space of the animation.
    struct Frame
    {
        znCBrushPtr mBrush; // null for a blank frame
        float mAlpha = 1.0f;
        znAffineMtx2d mMatrix;
    };

    explicit znCAnimationDataInstance(const std::string& pName) : mName(pName) {}

    const std::string& nameGet() const { return mName; } // of the file, for the log
    const std::vector<Frame>& framesGet() const { return mFrames; }
    // The first of that name; null without one.
    const znCAnimationTimeline* timelineFind(const std::string& pName) const;
    // Whether a key frame jumps or swaps timelines: an animation that may never end.
    bool loopsGet() const { return mLoops; }

    // For the reader of files.
    void frameAdd(const Frame& pFrame) { mFrames.push_back(pFrame); }
    znCAnimationTimeline& timelineAdd(const std::string& pName);
    std::vector<std::unique_ptr<znCAnimationTimeline>>& timelinesGet() { return mTimelines; }
    void sheetSet(const znCBrushPtr& pSheet) { mSheet = pSheet; }
    const znCBrushPtr& sheetGet() const { return mSheet; }
    void loopsSet() { mLoops = true; }

private:
    std::vector<Frame> mFrames;
    std::vector<std::unique_ptr<znCAnimationTimeline>> mTimelines;
    znCBrushPtr mSheet; // may be null
    bool mLoops = false;
    std::string mName;
};

#endif
