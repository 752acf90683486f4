#include "loader/znCClock.h"

#include <algorithm>

znCClock::znCClock(u64 pStartMs, s32 pStepMs)
    : mBegin(std::chrono::steady_clock::now()), mStartMs(pStartMs), mNowMs(pStartMs), mStepMs(pStepMs)
{
}

void znCClock::advance()
{
    if (isVirtual())
    {
        mNowMs += static_cast<u64>(mStepMs);
        return;
    }
    const auto elapsed = std::chrono::steady_clock::now() - mBegin;
    timeSet(mStartMs + static_cast<u64>(std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count()));
}

void znCClock::timeSet(u64 pMs)
{
    mNowMs = std::max(mNowMs, pMs);
}
