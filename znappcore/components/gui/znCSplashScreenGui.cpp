#include "znappcore/components/gui/znCSplashScreenGui.h"

#include "znappcore/components/gui/znCModalGuiComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCAppCoreMain.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znIInputManager.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"

namespace
{
znCBrushPtr screenGet(const std::string& pImage)
{
    return znCBrushManager::instanceGet()->brushGet(znCResourceName(pImage, znCResourceName::GAME_DATA), false);
}
} // namespace

void znCSplashScreenGui::messagesRegister()
{
    znIInputManager::instanceGet()->listenerRegister(znIInputManager::POINTER_DOWN, this);
}

void znCSplashScreenGui::messagesDeregister()
{
    znIInputManager::instanceGet()->listenerDeregister(znIInputManager::POINTER_DOWN, this);
}

bool znCSplashScreenGui::messageProcess(const znCUniqueId& pType, void*)
{
    if (pType != znIInputManager::POINTER_DOWN)
        return false;
    if (mElapsedMs >= mMinDurationMs)
        next();
    return true;
}

void znCSplashScreenGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    // It takes every press itself; a modal component, which registers behind it, would be asked first.
    if (auto* modal = mEntity->componentGet<znCModalGuiComponent>())
        modal->modalSet(false);
    mMinDurationMs = pTable.s32Get("minDurationMs", mMinDurationMs);
    mMaxDurationMs = pTable.s32Get("maxDurationMs", mMaxDurationMs);
    mNextGui = pTable.strGet("nextGui");
    for (std::string key = "screen0"; pTable.keyExistsGet(key); key = "screen" + std::to_string(mScreens.size()))
        mScreens.push_back(pTable.strGet(key));
    if (znCScreenFade* fade = znCScreenFade::instanceGet())
        fade->fadeIn(FADE_MS);
}

void znCSplashScreenGui::update(s32 pDeltaMs)
{
    if (mScreenIndex > 0)
    {
        mElapsedMs += pDeltaMs;
        if (mElapsedMs >= mMaxDurationMs)
            next();
    }
    else if (mScreens.empty())
        guiEnd();
    else
    {
        mImage = mEntity->componentAdd<znCSpriteComponent>();
        nextPreload();
        next();
    }
}

void znCSplashScreenGui::next()
{
    if (mScreenIndex >= static_cast<s32>(mScreens.size()))
    {
        guiEnd();
        return;
    }
    const znCBrushPtr screen = screenGet(mScreens[static_cast<std::size_t>(mScreenIndex)]);
    ++mScreenIndex;
    if (mImage != nullptr)
        mImage->brushSet(screen);
    nextPreload();
    mElapsedMs = 0;
}

// The manager keeps the brush, so that the next picture comes without a stall.
void znCSplashScreenGui::nextPreload() const
{
    if (mScreenIndex < static_cast<s32>(mScreens.size()))
        screenGet(mScreens[static_cast<std::size_t>(mScreenIndex)]);
}

// A press and the time may both end it within one frame.
void znCSplashScreenGui::guiEnd()
{
    if (mEnded)
        return;
    mEnded = true;
    znCAppCoreMain* main = znCAppCoreMain::instanceGet();
    znCEntity* gui = guiCreateFromFile(znCResourceName(mNextGui, znCResourceName::GAME_DATA), nullptr, true);
    if (gui != nullptr && main != nullptr)
        main->appDisplayChildAdd(gui);
    mEntity->destroy();
}
