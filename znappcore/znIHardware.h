#ifndef ZNAPPCORE_ZNIHARDWARE_H
#define ZNAPPCORE_ZNIHARDWARE_H

#include "zncore/znTypes.h"

#include <string>

// What the game asks of the machine beyond display, sound and input. A singleton that lives from before the display
// to after it.
class znIHardware
{
public:
    // A second call logs "Already created znIHardware.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znIHardware* instanceGet();
    static void destroy();

    // Has the system open an address; whether it does is not reported.
    virtual void urlOpen(const std::string& pUrl) = 0;
    virtual void systemCursorVisibleSet(bool pVisible) = 0;
    // Whether there is a window that can go full screen.
    virtual bool isDesktopGet() = 0;
    // Called once a frame: sends ENTER_CLIENT or LEAVE_CLIENT through znIInputManager when the mouse came into the
    // window or left it since the last call. It counts as inside at first.
    virtual void clientAreaPoll() = 0;

    virtual ~znIHardware() = default;
    znIHardware(const znIHardware&) = delete;
    znIHardware& operator=(const znIHardware&) = delete;

protected:
    znIHardware() = default;
};

#endif
