#ifndef ZNAPPCORE_IMPL_PLATFORM_ZNCPLATFORMLOOP_H
#define ZNAPPCORE_IMPL_PLATFORM_ZNCPLATFORMLOOP_H

#include "zncore/znTypes.h"

// Drives the frames of znCAppCoreMain from the platform's clock and events, and takes the time spent suspended out of
// them. Made after the main object, ended before it. step() is the whole body of the loop, so that a platform that
// must not be looped in (a browser) can call it instead.
class znCPlatformLoop
{
public:
    // Registers for suspend and resume.
    znCPlatformLoop();
    ~znCPlatformLoop();
    znCPlatformLoop(const znCPlatformLoop&) = delete;
    znCPlatformLoop& operator=(const znCPlatformLoop&) = delete;

    // Polls the platform and, unless suspended, runs one frame. True when the program should end: a quit request, the
    // back key, Alt with F4, or the frame said so. Quit requests are not looked at while suspended.
    bool step();

private:
    static s32 suspendCb(void* pSystemData, void* pUserData);
    static s32 resumeCb(void* pSystemData, void* pUserData);
    void suspend();
    void resume();
    bool quitRequestedGet() const;

    u64 mPrevious;         // ms, when the last frame began
    u64 mPausedAt = 0;     // ms, 0 while not suspended
    u64 mPausedLength = 0; // ms to take out of the next frame
};

#endif
