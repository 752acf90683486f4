#include "loader/znCVoice.h"

#include <algorithm>
#include <cstring>

void znCVoice::begin(u32 pBytes)
{
    mLength = pBytes;
    mLeft = pBytes;
    mState = State::PLAYING;
}

bool znCVoice::passBegin()
{
    State state = State::ENDING;
    if (mState.compare_exchange_strong(state, State::OVER) || state == State::OVER)
        return false;
    mState = State::PLAYING; // it was CONTINUING, which the game's thread leaves alone
    mLeft = mLength;
    return true;
}

void znCVoice::mix(void* pStream, u32 pBytes)
{
    if (mLeft == 0 && !passBegin())
    {
        std::memset(pStream, 0, pBytes);
        return;
    }
    mLeft -= std::min(pBytes, mLeft);
    State playing = State::PLAYING;
    if (mLeft <= LEAD_BYTES)
        mState.compare_exchange_strong(playing, State::ENDING);
}

bool znCVoice::isEnding() const
{
    const State state = mState;
    return state == State::ENDING || state == State::OVER;
}

bool znCVoice::continueAsk()
{
    State ending = State::ENDING;
    return mState.compare_exchange_strong(ending, State::CONTINUING);
}
