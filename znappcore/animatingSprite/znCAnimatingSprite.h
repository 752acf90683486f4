#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATINGSPRITE_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCANIMATINGSPRITE_H

#include "znappcore/animatingSprite/znCAnimationDataInstance.h"
#include "znappcore/animatingSprite/znCSpriteFrame.h"

class znCResourceName;

// One playing animation. It starts at the timeline "main" and runs until a timeline runs off its end, showing the last
// frame from then on. Times are milliseconds.
class znCAnimatingSprite
{
public:
    static constexpr const char* MAIN_TIMELINE = "main";

    // Shows nothing until dataSet().
    znCAnimatingSprite() = default;
    // Plays a file of the current level's data. Without the file it shows nothing, and logs nothing.
    znCAnimatingSprite(const znCResourceName& pName, bool pHitMap);
    virtual ~znCAnimatingSprite() = default;
    znCAnimatingSprite(const znCAnimatingSprite&) = delete;
    znCAnimatingSprite& operator=(const znCAnimatingSprite&) = delete;

    // Plays this from the start; null shows nothing. Needs a matrixApply() before the next drawing.
    void dataSet(const znCAnimationDataPtr& pData);
    const znCAnimationDataPtr& dataGet() const { return mData; }

    // Starts again at MAIN_TIMELINE.
    void reset();
    void stop() { mRunning = false; }
    bool isRunning() const { return mRunning; }
    bool loopsGet() const { return mData != nullptr && mData->loopsGet(); }
    // Goes on with the first key frame of that timeline; without one of that name the animation ends.
    void timelineSet(const std::string& pName);

    // A step above 1000 counts as 16. At most one key frame is reached in an update.
    void update(s32 pDeltaMs);
    void render();
    void matrixApply(const znAffineMtx2d& pMatrix);

    // For key frames; what is out of range changes nothing. Both count from 0.
    void frameShow(s32 pFrame);
    void keyFrameGoto(s32 pIndex);

private:
    void framesBuild();
    void keyFrameExecute();

    s32 mElapsedMs = 0; // since mKeyIndex was reached
    bool mRunning = false;
    s32 mKeyIndex = 0;
    s32 mCurrentFrame = 0;
    znCAnimationDataPtr mData;                       // may be null
    const znCAnimationTimeline* mTimeline = nullptr; // of mData; may be null
    std::vector<znCSpriteFrame> mFrames;
    s32 mJumps = 0; // key frames that are being executed, one within the other
};

#endif
