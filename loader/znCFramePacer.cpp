#include "loader/znCFramePacer.h"

#include <thread>

znCFramePacer::znCFramePacer(s32 pRate) : mInterval(900000 / pRate), mLast(std::chrono::steady_clock::now()) {}

void znCFramePacer::wait()
{
    std::this_thread::sleep_until(mLast + mInterval);
    mLast = std::chrono::steady_clock::now();
}
