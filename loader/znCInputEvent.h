#ifndef LOADER_ZNCINPUTEVENT_H
#define LOADER_ZNCINPUTEVENT_H

#include "zncore/znTypes.h"

// One thing that happened to the device, wherever it came from: the window, a script or a recording. All input takes
// this form before it reaches the module, which is why a recording can repeat it.
struct znCInputEvent
{
    enum class Kind : u8
    {
        KEY,          // mId: key code, mPressed
        CHARACTER,    // mId: UTF-16 unit
        BUTTON,       // mId: button, mPressed, position
        MOTION,       // position of the mouse
        TOUCH,        // mId: finger, mPressed, position
        TOUCH_MOTION, // mId: finger, position
        CLIENT_AREA,  // mPressed: the mouse is in the window's picture
        SUSPEND,
        RESUME,
        QUIT
    };

    Kind mKind = Kind::QUIT;
    s32 mId = 0;
    bool mPressed = false;
    s32 mX = 0; // pixels of the surface
    s32 mY = 0;

    bool operator==(const znCInputEvent&) const = default;
};

#endif
