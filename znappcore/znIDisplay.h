#ifndef ZNAPPCORE_ZNIDISPLAY_H
#define ZNAPPCORE_ZNIDISPLAY_H

#include "znappcore/znCDisplayMode.h"
#include "znappcore/znCUniqueId.h"
#include "znappcore/znINode.h"

#include <list>
#include <memory>

// The root of the node tree, and the mapping of the canvas to the screen.
//
// Everything is laid out on one canvas of the size "appCanvasW" x "appCanvasH", (0, 0) at its centre. The display
// chooses a screen mode and maps the canvas to it with its own scale and position, so that whatever hangs below it has
// world coordinates in device pixels. A desktop has a window and full-screen modes; any other device has one mode, its
// own size.
//
// A singleton. It is created once the saved settings can be read, and destroy() deletes the whole tree below it.
class znIDisplay : public znINode
{
public:
    // Sent through znCGuiMessageDispatcher after fullScreenToggle(); empty data.
    static constexpr znCUniqueId FULL_SCREEN_TOGGLE{"FullScreenToggle"};

    // Chooses the modes and applies "FullScreen" of the saved settings. The configuration value "FullScreen" of group
    // "s3e", when the program was started with one, replaces the saved value first.
    // A second call logs "Already created znIDisplay.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znIDisplay* instanceGet();
    static void destroy();
    // Whether there is an instance; logs nothing.
    static bool existsGet();

    // The canvas that the pictures are made for.
    s32 canvasWidthGet() const { return mCanvasMode.widthGet(); }
    s32 canvasHeightGet() const { return mCanvasMode.heightGet(); }
    // The part of it that shows: the canvas, or its middle at 4:3 where no wide screen is to be had.
    s32 visibleCanvasWidthGet() const { return mVisibleCanvasMode.widthGet(); }
    s32 visibleCanvasHeightGet() const { return mVisibleCanvasMode.heightGet(); }

    // Appends a mode and logs "SUPPORTED SCREEN MODE:%d,%d %dbpp\n".
    void screenModeAdd(s32 pW, s32 pH, s32 pBpp);

    // Switches between window and full screen; a device without a desktop stays as it is.
    void screenModeSet(bool pFullScreen);
    // Turns "FullScreen" of the saved settings round, applies it and sends "FullScreenToggle". Nothing on a device
    // without a desktop.
    void fullScreenToggle();

    // Whether the display is in full screen now.
    virtual bool isFullScreenGet() = 0;
    virtual bool isDesktopGet() = 0;

protected:
    znIDisplay();

    // The size of the one mode of a device without a desktop, the longer side as width. Logs the sizes; on a desktop
    // also "Trying to get fixed display size in a desktop environment.\n".
    virtual znPoint fixedDisplaySizeGet() = 0;
    // Adds every full-screen mode of 24 bits or more, or of an unknown depth.
    virtual void desktopScreenModesGet() = 0;
    // Sizes the window and enters or leaves full screen. Always true.
    virtual bool desktopScreenModeSetDo(const znCDisplayMode& pMode, bool pFullScreen) = 0;

private:
    void initialise();
    void fullScreenConfigurationTake();
    void canvasModesRead();
    bool wideScreenAvailable() const;
    void bestFullScreenModeDetermine();
    void modeApply(const znCDisplayMode& pMode);

    znCDisplayMode mCanvasMode;
    znCDisplayMode mVisibleCanvasMode;
    std::list<std::unique_ptr<znCDisplayMode>> mScreenModes;
    znCDisplayMode* mBestFullScreenMode = nullptr; // one of mScreenModes; null until determined and without modes
};

#endif
