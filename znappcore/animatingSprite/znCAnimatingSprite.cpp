#include "znappcore/animatingSprite/znCAnimatingSprite.h"

#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNCoreUtils.h"

znCAnimatingSprite::znCAnimatingSprite(const znCResourceName& pName, bool pHitMap)
{
    if (!znIFile::existsGet(pName))
        return;
    if (znCAnimationDataManager* manager = znCAnimationDataManager::instanceGet())
        dataSet(manager->dataGet(pName, pHitMap));
}

void znCAnimatingSprite::dataSet(const znCAnimationDataPtr& pData)
{
    mTimeline = nullptr;
    mData = pData;
    framesBuild();
    reset();
}

void znCAnimatingSprite::framesBuild()
{
    mFrames.clear();
    if (mData == nullptr)
        return;
    mFrames.resize(mData->framesGet().size());
    for (std::size_t i = 0; i < mFrames.size(); ++i)
    {
        const znCAnimationDataInstance::Frame& frame = mData->framesGet()[i];
        if (frame.mBrush == nullptr)
            continue;
        mFrames[i].mSprite.brushSet(frame.mBrush);
        mFrames[i].mVisible = true;
        mFrames[i].mSprite.colourSet(znCColour(1.0f, 1.0f, 1.0f, frame.mAlpha));
        mFrames[i].mLocalMatrix = frame.mMatrix;
    }
}

void znCAnimatingSprite::reset()
{
    mRunning = mData != nullptr;
    mCurrentFrame = 0;
    mElapsedMs = 0;
    timelineSet(MAIN_TIMELINE);
}

void znCAnimatingSprite::timelineSet(const std::string& pName)
{
    mTimeline = mData != nullptr ? mData->timelineFind(pName) : nullptr;
    keyFrameGoto(0);
}

void znCAnimatingSprite::frameShow(s32 pFrame)
{
    if (pFrame >= 0 && pFrame < static_cast<s32>(mFrames.size()))
        mCurrentFrame = pFrame;
}

void znCAnimatingSprite::keyFrameGoto(s32 pIndex)
{
    if (mTimeline == nullptr || pIndex < 0 || pIndex >= mTimeline->keyFrameCountGet())
        return;
    mKeyIndex = pIndex;
    keyFrameExecute();
}

void znCAnimatingSprite::keyFrameExecute()
{
    constexpr s32 JUMPS_MAX = 64;
    const bool circle = mJumps >= JUMPS_MAX;
    ZN_ASSERT(!circle, "Animation %s jumps in a circle. It stops.\n", mData->nameGet().c_str());
    if (circle)
    {
        mRunning = false;
        return;
    }
    ++mJumps;
    mTimeline->keyFrameGet(mKeyIndex).execute(*this);
    --mJumps;
}

void znCAnimatingSprite::update(s32 pDeltaMs)
{
    constexpr s32 STALL_MS = 1000;
    constexpr s32 STALL_STEP_MS = 16;
    if (!mRunning)
        return;
    if (mTimeline == nullptr || mTimeline->keyFrameCountGet() == 0)
    {
        mRunning = false; // nothing will ever happen
        return;
    }
    const s32 step = pDeltaMs > STALL_MS ? STALL_STEP_MS : pDeltaMs;
    mElapsedMs = znNCoreUtils::s32Saturate(static_cast<s64>(mElapsedMs) + step);
    const s32 duration = mTimeline->keyFrameGet(mKeyIndex).durationGet();
    if (duration > mElapsedMs)
        return;
    mElapsedMs -= duration;
    if (mKeyIndex + 1 == mTimeline->keyFrameCountGet())
        mRunning = false;
    else
        keyFrameGoto(mKeyIndex + 1);
}

void znCAnimatingSprite::render()
{
    const std::size_t frame = static_cast<std::size_t>(mCurrentFrame);
    if (frame < mFrames.size() && mFrames[frame].mVisible)
        mFrames[frame].mSprite.render();
}

void znCAnimatingSprite::matrixApply(const znAffineMtx2d& pMatrix)
{
    for (znCSpriteFrame& frame : mFrames)
        if (frame.mVisible)
            frame.mSprite.matrixApply(pMatrix * frame.mLocalMatrix);
}
