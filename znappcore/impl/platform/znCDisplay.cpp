#include "znappcore/impl/platform/znCDisplay.h"

#include "media/znNGraphics.h"
#include "znappcore/znIHardware.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>

znCDisplay::znCDisplay()
{
    mWindowBound = s3eExtGetHash(S3E_WINDOW_HASH, &mWindow, sizeof mWindow) == S3E_RESULT_SUCCESS;
}

void znCDisplay::update(s32)
{
    if (znIHardware* hardware = znIHardware::instanceGet())
        hardware->clientAreaPoll();
}

bool znCDisplay::isFullScreenGet()
{
    return mWindowBound && mWindow.fullScreenGet() == 1;
}

bool znCDisplay::isDesktopGet()
{
    return mWindowBound;
}

znPoint znCDisplay::fixedDisplaySizeGet()
{
    ZN_ASSERT(!isDesktopGet(), "Trying to get fixed display size in a desktop environment.\n");
    s32 width = 0;
    s32 height = 0;
    znNGraphics::displaySizeGet(&width, &height);
    const znCDisplayMode display(width, height, 0);
    znNGraphics::surfaceSizeGet(&width, &height);
    const znCDisplayMode screen(width, height, 0);
    znNGraphics::deviceSizeGet(&width, &height);
    ZN_LOG("Device size:%d,%d\n", width, height);
    ZN_LOG("Display size:%d,%d\n", display.widthGet(), display.heightGet());
    ZN_LOG("Screen size:%d,%d\n", screen.widthGet(), screen.heightGet());

    const znPoint size(std::max(width, height), std::min(width, height));
    ZN_LOG("Setting fixed display size:%d,%d\n", size.mX, size.mY);
    return size;
}

void znCDisplay::desktopScreenModesGet()
{
    constexpr s32 MODES_MAX = 4096; // far beyond any screen's
    constexpr s32 BPP_MIN = 24;
    mDeviceModeCount = 0;
    s32 count = 0;
    if (mWindow.displayModesGet(nullptr, &count) != S3E_RESULT_SUCCESS)
        return;
    const s32 capacity = std::clamp(count, 0, MODES_MAX);
    mDeviceModes = std::make_unique<s3eWindowMode[]>(static_cast<std::size_t>(capacity));
    count = capacity;
    if (capacity > 0 && mWindow.displayModesGet(mDeviceModes.get(), &count) == S3E_RESULT_SUCCESS)
        mDeviceModeCount = std::clamp(count, 0, capacity);
    for (s32 i = 0; i < mDeviceModeCount; ++i)
    {
        const s3eWindowMode& mode = mDeviceModes[static_cast<std::size_t>(i)];
        if (mode.mBpp >= BPP_MIN || mode.mBpp == 0)
            screenModeAdd(mode.mWidth, mode.mHeight, mode.mBpp);
    }
}

bool znCDisplay::desktopScreenModeSetDo(const znCDisplayMode& pMode, bool pFullScreen)
{
    mWindow.fullScreenSet(nullptr);
    mWindow.sizeSet(pMode.widthGet(), pMode.heightGet());
    if (pFullScreen)
        fullScreenEnter(pMode);
    return true;
}

void znCDisplay::fullScreenEnter(const znCDisplayMode& pMode)
{
    if (mDeviceModeIndex < 0)
        mDeviceModeIndex = deviceModeFind(pMode);
    ZN_ASSERT(mDeviceModeIndex >= 0, "No full screen mode of %dx%d. Staying in the window.\n", pMode.widthGet(),
              pMode.heightGet());
    if (mDeviceModeIndex < 0)
        return;
    const s3eWindowMode& mode = mDeviceModes[static_cast<std::size_t>(mDeviceModeIndex)];
    mWindow.fullScreenSet(&mode);
    ZN_LOG("Setting full screen resolution to %dx%d.\n", mode.mWidth, mode.mHeight);
}

s32 znCDisplay::deviceModeFind(const znCDisplayMode& pMode) const
{
    for (const s32 bpp : {24, 32})
        for (s32 i = 0; i < mDeviceModeCount; ++i)
        {
            const s3eWindowMode& mode = mDeviceModes[static_cast<std::size_t>(i)];
            if ((mode.mBpp == 0 || mode.mBpp == bpp) && mode.mWidth == pMode.widthGet() &&
                mode.mHeight == pMode.heightGet())
                return i;
        }
    return -1;
}
