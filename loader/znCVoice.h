#ifndef LOADER_ZNCVOICE_H
#define LOADER_ZNCVOICE_H

#include "zncore/znTypes.h"

#include <atomic>

// One pass of a sample after another on one channel. The mixer, on its own thread, runs through the sample round and
// round and shows each piece; whether another pass sounds is decided by the game's thread before the one is over. So a
// loop that the game renews at each end has no gap, and neither thread waits for the other.
class znCVoice
{
public:
    // How long before its last byte a pass counts as ending: long enough for the game's next frame to answer.
    static constexpr u32 LEAD_BYTES = 3 * 1024 * 4; // 70 ms of 16-bit stereo at 44,100 Hz

    // A first pass of pBytes, while the mixer doesn't run through the channel.
    void begin(u32 pBytes);

    // --- the mixer's thread ---

    // The next pBytes, not beyond the end of a pass, of 16-bit samples; makes them silent when nothing is to sound.
    void mix(void* pStream, u32 pBytes);

    // --- the game's thread ---

    bool isEnding() const; // or over
    bool isOver() const { return mState == State::OVER; }
    // Asks for one more pass; false if the last one is over or not near its end.
    bool continueAsk();

private:
    enum class State
    {
        PLAYING,
        ENDING,
        CONTINUING, // ENDING, and one more pass was asked for
        OVER
    };

    bool passBegin();

    std::atomic<State> mState = State::OVER;
    u32 mLength = 0; // bytes of a pass
    u32 mLeft = 0;   // of the current one
};

#endif
