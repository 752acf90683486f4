#ifndef TESTS_SUPPORT_ZNCTESTWINDOW_H
#define TESTS_SUPPORT_ZNCTESTWINDOW_H

// The platform's virtual window or display, and the desktop's mouse. By default a desktop: the s3eWindow table exists,
// the window measures 800 x 600 and the modes are 800x600, 1024x768, 1280x720 and 1920x1080, 32 bits deep.

#include "zncore/impl/platform/s3eExtensions.h"
#include <string>
#include <vector>

class znCTestWindow
{
public:
    // --- for the test ---
    void modesSet(const std::vector<s3eWindowMode>& pModes) { mModes = pModes; }
    // A device with one display and no s3eWindow and windowsMouseExt tables. The size is that of the display as it was
    // built; used, it lies with its longer side across.
    void fixedDisplaySet(s32 pDeviceWidth, s32 pDeviceHeight);

    bool mPresent = true;       // s3eExtGetHash finds s3eWindow
    bool mMousePresent = true;  // s3eExtGetHash finds windowsMouseExt
    bool mModeSetFails = false; // fullScreenSet and sizeSet answer an error and change nothing
    bool mInClientArea = true;
    void mouseLogSend(const std::string& pText); // through the registered log callback, if there is one

    s32 mWidth = 800; // of the surface
    s32 mHeight = 600;
    s32 mDeviceWidth = 800;
    s32 mDeviceHeight = 600;
    bool mFullScreen = false;
    s32 mFullScreenModeIndex = -1;    // mIndex of the mode that was set last
    bool mCursorVisible = true;       // as s3eWindow was told
    bool mMouseCursorVisible = false; // as windowsMouseExt was told
    s32 mSizeSetCount = 0;
    s32 mFullScreenSetCount = 0;
    s3eCallback mMouseLogCallback = nullptr;
    void* mMouseLogUserData = nullptr;
    std::vector<std::string> mMouseLogReturned;

    // --- for the tables ---
    s3eResult sizeSet(s32 pWidth, s32 pHeight);
    s3eResult modesGet(s3eWindowMode* pModes, s32* pCount) const;
    s3eResult fullScreenSet(const s3eWindowMode* pMode);

private:
    void surfaceSet(s32 pWidth, s32 pHeight);

    std::vector<s3eWindowMode> mModes = {
        {800, 600, 32, 60, 0}, {1024, 768, 32, 60, 1}, {1280, 720, 32, 60, 2}, {1920, 1080, 32, 60, 3}};
    s32 mWindowWidth = 800; // what leaving full screen goes back to
    s32 mWindowHeight = 600;
};

#endif
