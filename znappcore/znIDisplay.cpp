#include "znappcore/znIDisplay.h"

#include "znappcore/impl/platform/znCDisplay.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znIHardware.h"
#include "zncore/debug/znIDebug.h"

#include <string_view>

namespace
{
std::unique_ptr<znIDisplay> sInstance;
}

void znIDisplay::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znIDisplay.\n");
    sInstance = std::make_unique<znCDisplay>();
    sInstance->initialise();
}

znIDisplay* znIDisplay::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znIDisplay::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    // What dies with the tree may still ask for the display.
    if (sInstance != nullptr)
        sInstance->childrenDelete();
    sInstance.reset();
}

bool znIDisplay::existsGet()
{
    return sInstance != nullptr;
}

znIDisplay::znIDisplay() : znINode("znIDisplay") {}

void znIDisplay::initialise()
{
    if (isDesktopGet())
    {
        desktopScreenModesGet();
        canvasModesRead();
        bestFullScreenModeDetermine();
    }
    else
    {
        const znPoint size = fixedDisplaySizeGet();
        screenModeAdd(size.mX, size.mY, 32);
        ZN_ASSERT(mScreenModes.size() == 1, "\n");
        canvasModesRead();
    }
    fullScreenConfigurationTake();
    if (const znCUserSavedData* saved = znCUserSavedData::instanceGet())
        screenModeSet(saved->fullScreenGet());
}

// Whoever starts the program with a wish for window or full screen means it until they change it, so it goes where the
// toggle, the options and the resume look.
void znIDisplay::fullScreenConfigurationTake()
{
    char value[S3E_CONFIG_STRING_MAX] = "";
    if (s3eConfigGetString("s3e", znCUserSavedData::FULL_SCREEN, value) != S3E_RESULT_SUCCESS)
        return;
    if (znCUserSavedData* saved = znCUserSavedData::instanceGet())
        saved->boolSet(znCUserSavedData::FULL_SCREEN, std::string_view(value) == "1");
}

void znIDisplay::screenModeAdd(s32 pW, s32 pH, s32 pBpp)
{
    ZN_LOG("SUPPORTED SCREEN MODE:%d,%d %dbpp\n", pW, pH, pBpp);
    mScreenModes.push_back(std::make_unique<znCDisplayMode>(pW, pH, pBpp));
}

void znIDisplay::canvasModesRead()
{
    if (const znCAppSettings* settings = znCAppSettings::instanceGet())
        mCanvasMode.sizeSet(settings->s32Get("appCanvasW"), settings->s32Get("appCanvasH"));
    mVisibleCanvasMode = mCanvasMode;
    if (mVisibleCanvasMode.isWideScreenGet() && !wideScreenAvailable())
        mVisibleCanvasMode.widthFromHeightSet();
}

bool znIDisplay::wideScreenAvailable() const
{
    if (mScreenModes.size() == 1)
        return mScreenModes.front()->isWideScreenGet();
    for (const auto& mode : mScreenModes)
        if (mode->isWideScreenGet() && mode->widthGet() >= mCanvasMode.widthGet() &&
            mode->heightGet() >= mCanvasMode.heightGet())
            return true;
    return false;
}

void znIDisplay::bestFullScreenModeDetermine()
{
    mScreenModes.sort(
        [](const auto& pOne, const auto& pOther)
        {
            if (pOne->heightGet() != pOther->heightGet())
                return pOne->heightGet() < pOther->heightGet();
            return pOne->widthGet() < pOther->widthGet();
        });
    const bool wide = mVisibleCanvasMode.isWideScreenGet();
    for (const auto& mode : mScreenModes)
    {
        if (mode->isWideScreenGet() != wide || mode->widthGet() < mVisibleCanvasMode.widthGet() ||
            mode->heightGet() < mVisibleCanvasMode.heightGet())
            continue;
        mBestFullScreenMode = mode.get();
        break;
    }
    ZN_ASSERT(mBestFullScreenMode != nullptr, "Failed to find a screen mode big enough for the visible canvas.\n");
    if (mBestFullScreenMode == nullptr && !mScreenModes.empty())
        mBestFullScreenMode = mScreenModes.back().get();
    if (mBestFullScreenMode != nullptr)
        ZN_LOG("Setting best desktop res to:%dx%d.\n", mBestFullScreenMode->widthGet(),
               mBestFullScreenMode->heightGet());
}

void znIDisplay::screenModeSet(bool pFullScreen)
{
    if (!isDesktopGet())
    {
        ZN_ASSERT(mScreenModes.size() == 1, "\n");
        if (!mScreenModes.empty())
            modeApply(*mScreenModes.back());
        return;
    }
    // A desktop that names no mode at all still has its window.
    const bool fullScreen = pFullScreen && mBestFullScreenMode != nullptr;
    const znCDisplayMode& mode = fullScreen ? *mBestFullScreenMode : mVisibleCanvasMode;
    desktopScreenModeSetDo(mode, fullScreen);
    modeApply(mode);
}

void znIDisplay::modeApply(const znCDisplayMode& pMode)
{
    const bool canvasKnown = mVisibleCanvasMode.widthGet() > 0 && mVisibleCanvasMode.heightGet() > 0;
    ZN_ASSERT(canvasKnown, "The canvas has no size (%d,%d). Set appCanvasW and appCanvasH in appSettings.txt.\n",
              mVisibleCanvasMode.widthGet(), mVisibleCanvasMode.heightGet());
    mLocalMatrix = znAffineMtx2d();
    if (canvasKnown)
        scaleSet(static_cast<float>(pMode.widthGet()) / static_cast<float>(mVisibleCanvasMode.widthGet()),
                 static_cast<float>(pMode.heightGet()) / static_cast<float>(mVisibleCanvasMode.heightGet()));
    posSet(pMode.widthGet() / 2, pMode.heightGet() / 2);
}

void znIDisplay::fullScreenToggle()
{
    znIHardware* hardware = znIHardware::instanceGet();
    znCUserSavedData* saved = znCUserSavedData::instanceGet();
    if (hardware == nullptr || saved == nullptr || !hardware->isDesktopGet())
        return;
    const bool fullScreen = !saved->fullScreenGet();
    screenModeSet(fullScreen);
    saved->boolSet(znCUserSavedData::FULL_SCREEN, fullScreen);
    if (znCGuiMessageDispatcher* dispatcher = znCGuiMessageDispatcher::instanceGet())
        dispatcher->messageSend(FULL_SCREEN_TOGGLE, znCEmptyMessageData::sharedGet());
}
