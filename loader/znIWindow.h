#ifndef LOADER_ZNIWINDOW_H
#define LOADER_ZNIWINDOW_H

#include "loader/znCDisplayModes.h"
#include "loader/znCInputQueue.h"

#include <optional>

// What the module draws to and gets its input from. The surface has the size that the module asks for, whatever the
// window beneath is; the window follows at the next frame.
class znIWindow
{
public:
    // A desktop's window, or a touch device whose display stands as it was built; a touch device is always used with
    // its longer side across and has no modes.
    znIWindow(s32 pWidth, s32 pHeight, bool pTouch, const znCDisplayModes& pModes);
    virtual ~znIWindow() = default;

    s32 surfaceWidthGet() const { return mFullScreenMode ? mFullScreenMode->mWidth : mWidth; }
    s32 surfaceHeightGet() const { return mFullScreenMode ? mFullScreenMode->mHeight : mHeight; }
    bool isTouch() const { return mTouch; }
    void deviceSizeGet(s32& pWidth, s32& pHeight) const;
    void displaySizeGet(s32& pWidth, s32& pHeight) const;
    const znCDisplayModes& modesGet() const { return mModes; }

    // The surface's size while not in full screen; false for one that can't be.
    bool sizeSet(s32 pWidth, s32 pHeight);
    // A mode of the list; null leaves full screen. False for another mode.
    bool fullScreenSet(const s3eWindowMode* pMode);
    bool isFullScreen() const { return mFullScreenMode.has_value(); }
    void cursorVisibleSet(bool pVisible) { mCursorVisible = pVisible; }
    bool isCursorVisible() const { return mCursorVisible; }

    // Brings the real window in line with what was asked for; called before a frame is drawn.
    virtual void wishesApply() {}
    // What happened since the last call, as events of the surface.
    virtual void eventsPump(znCInputQueue& pQueue) = 0;
    // Pixels that the window has to draw on; 0 by 0 without one.
    virtual void drawableSizeGet(s32& pWidth, s32& pHeight) const = 0;
    // Shows what was drawn; waits for the display where the window does so.
    virtual void swap() = 0;
    // Pictures a second that the display shows.
    virtual s32 refreshGet() const = 0;
    // Sleeps for pMs milliseconds, or until something happens.
    virtual void idle(s32 pMs) = 0;

private:
    znCDisplayModes mModes;
    std::optional<s3eWindowMode> mFullScreenMode;
    s32 mDeviceWidth;
    s32 mDeviceHeight;
    s32 mWidth;
    s32 mHeight;
    bool mTouch;
    bool mCursorVisible = true;

protected:
    const std::optional<s3eWindowMode>& fullScreenModeGet() const { return mFullScreenMode; }
    s32 windowedWidthGet() const { return mWidth; }
    s32 windowedHeightGet() const { return mHeight; }
};

#endif
