#include "znappcore/src/znCScreenFade.h"

#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>

namespace
{
constexpr float OPEN = 0.0f;
constexpr float COVERED = 1.0f;

znCScreenFade* sInstance = nullptr; // owned by the display's tree
} // namespace

void znCScreenFade::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCScreenFade.\n");
    znIDisplay* display = znIDisplay::instanceGet();
    if (sInstance != nullptr || display == nullptr)
        return;
    sInstance = new znCScreenFade();
    display->childAdd(sInstance);
}

znCScreenFade* znCScreenFade::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance;
}

znCScreenFade::znCScreenFade() : znCEntity("AppDisplayScreenFade"), mColour(0.0f, 0.0f, 0.0f, COVERED)
{
    mComponent = componentAdd<znCScreenFadeComponent>();
    if (mComponent == nullptr)
        return;
    mComponent->quadSet();
    mComponent->colourSet(mColour);
}

znCScreenFade::~znCScreenFade()
{
    if (sInstance == this)
        sInstance = nullptr;
}

void znCScreenFade::fadeOut(s32 pMs)
{
    fadeStart(pMs, 1.0f);
}

void znCScreenFade::fadeIn(s32 pMs)
{
    fadeStart(pMs, -1.0f);
}

void znCScreenFade::fadeStart(s32 pMs, float pDirection)
{
    constexpr s32 HOLD_FRAMES = 3;
    mFadeHoldCount = HOLD_FRAMES;
    mFadeSpeed = pDirection / static_cast<float>(std::max(pMs, 1));
}

void znCScreenFade::update(s32 pDeltaMs)
{
    znCEntity::update(pDeltaMs);
    if (pDeltaMs <= 0 || mFadeSpeed == 0.0f)
        return;
    mFadeAlpha += static_cast<float>(pDeltaMs) * mFadeSpeed;
    if (mFadeAlpha <= OPEN)
        limitHold(OPEN, FADE_IN_COMPLETE);
    else if (mFadeAlpha >= COVERED)
        limitHold(COVERED, FADE_OUT_COMPLETE);

    mColour.mA = mFadeAlpha;
    if (mComponent != nullptr)
        mComponent->colourSet(mColour);
    const znCUserSavedData* saved = znCUserSavedData::instanceGet();
    znIAudioManager* audio = znIAudioManager::instanceGet();
    if (audio != nullptr && (saved == nullptr || !saved->muteAllGet()))
        audio->masterVolumeSet(COVERED - mFadeAlpha);
}

// The limit is shown for as long as frames are left to hold; the last one says so.
void znCScreenFade::limitHold(float pLimit, const znCUniqueId& pMessage)
{
    --mFadeHoldCount;
    mFadeAlpha = pLimit;
    if (mFadeHoldCount >= 1)
        return;
    mFadeSpeed = 0.0f;
    if (znCGuiMessageDispatcher* dispatcher = znCGuiMessageDispatcher::instanceGet())
        dispatcher->messageSend(pMessage, znCEmptyMessageData::sharedGet());
}
