#ifndef LOADER_ZNCFRAMEPACER_H
#define LOADER_ZNCFRAMEPACER_H

#include "zncore/znTypes.h"

#include <chrono>

// Keeps frames from following each other faster than the display shows them, where waiting for the display doesn't.
class znCFramePacer
{
public:
    // Frames a second; a little less time than that is left between them, so that a display that waits by itself sets
    // the pace.
    explicit znCFramePacer(s32 pRate);
    // Sleeps until the next frame may start.
    void wait();

private:
    std::chrono::microseconds mInterval;
    std::chrono::steady_clock::time_point mLast;
};

#endif
