#ifndef LOADER_ZNCCLOCK_H
#define LOADER_ZNCCLOCK_H

#include "zncore/znTypes.h"

#include <chrono>

// The module's clock. It stands still within a frame and moves on at frame boundaries only, so that one number a frame
// is all that a recording needs. It never runs backwards.
class znCClock
{
public:
    // Starts at pStartMs; a step of 0 follows the real time, another one is added at each boundary.
    znCClock(u64 pStartMs, s32 pStepMs);

    u64 timeGet() const { return mNowMs; }
    bool isVirtual() const { return mStepMs != 0; }
    void advance();
    // Sets the time that a recording tells; an earlier one than now changes nothing.
    void timeSet(u64 pMs);

private:
    std::chrono::steady_clock::time_point mBegin;
    u64 mStartMs;
    u64 mNowMs;
    s32 mStepMs;
};

#endif
