#ifndef ZNAPPCORE_IMPL_PLATFORM_ZNCDISPLAY_H
#define ZNAPPCORE_IMPL_PLATFORM_ZNCDISPLAY_H

#include "znappcore/znIDisplay.h"
#include "zncore/impl/platform/s3eExtensions.h"

#include <memory>

// The display on the loader's window extension; without that extension, on the one size of the device.
class znCDisplay : public znIDisplay
{
public:
    znCDisplay();

    void update(s32 pDeltaMs) override;
    bool isFullScreenGet() override;
    bool isDesktopGet() override;

protected:
    znPoint fixedDisplaySizeGet() override;
    void desktopScreenModesGet() override;
    bool desktopScreenModeSetDo(const znCDisplayMode& pMode, bool pFullScreen) override;

private:
    void fullScreenEnter(const znCDisplayMode& pMode);
    s32 deviceModeFind(const znCDisplayMode& pMode) const;

    std::unique_ptr<s3eWindowMode[]> mDeviceModes;
    s32 mDeviceModeCount = 0;
    s32 mDeviceModeIndex = -1; // into mDeviceModes: the record for full screen, once looked up
    s3eWindow mWindow = {};
    bool mWindowBound = false;
};

#endif
