#include "loader/znCSamplePlayer.h"

#include "loader/znCWavHeader.h"

#include <algorithm>

u32 znCSamplePlayer::sampleCreate(const void* pBytes, u32 pSize)
{
    const u8* bytes = static_cast<const u8*>(pBytes);
    znCWavHeader header;
    if (!header.parse(bytes, pSize) || !mDevice.sampleAdd(mLastSample + 1, bytes, pSize, header))
        return 0;
    mSamples.insert(++mLastSample);
    return mLastSample;
}

void znCSamplePlayer::sampleFree(u32 pSample)
{
    if (mSamples.erase(pSample) == 0)
        return;
    for (s32 i = 0; i < mDevice.channelCountGet(); ++i)
        if (channelGet(i).mBusy && channelGet(i).mSample == pSample)
            channelFree(i);
    mDevice.sampleRemove(pSample);
}

s32 znCSamplePlayer::channelFind(u32 pPlay) const
{
    const auto found = std::find_if(mChannels.begin(), mChannels.end(),
                                    [pPlay](const Channel& pChannel) { return pChannel.mPlay == pPlay; });
    return pPlay == 0 || found == mChannels.end() ? NONE : static_cast<s32>(found - mChannels.begin());
}

void znCSamplePlayer::channelFree(s32 pChannel)
{
    mDevice.channelStop(pChannel);
    channelGet(pChannel) = {};
}

// Channels whose play was reported and sounds no more.
void znCSamplePlayer::overFree()
{
    for (s32 i = 0; i < mDevice.channelCountGet(); ++i)
        if (channelGet(i).mBusy && channelGet(i).mPlay == 0 && mDevice.channelIsOver(i))
            channelFree(i);
}

// The sample whose end is being reported begins again: the same channel goes on without a gap.
bool znCSamplePlayer::endingContinue(u32 pSample)
{
    if (mReported == NONE)
        return false;
    const Channel& channel = channelGet(mReported);
    return channel.mBusy && channel.mPlay == 0 && channel.mSample == pSample && mDevice.channelContinue(mReported);
}

s32 znCSamplePlayer::channelStart(u32 pSample)
{
    if (endingContinue(pSample))
        return mReported;
    overFree();
    for (s32 i = 0; i < mDevice.channelCountGet(); ++i)
        if (!channelGet(i).mBusy)
            return mDevice.channelStart(i, pSample) ? i : NONE;
    return NONE;
}

u32 znCSamplePlayer::play(u32 pSample)
{
    const s32 channel = mSamples.count(pSample) != 0 ? channelStart(pSample) : NONE;
    if (channel == NONE)
        return 0;
    channelGet(channel) = {++mLastPlay, pSample, true, false};
    return mLastPlay;
}

void znCSamplePlayer::stop(u32 pPlay)
{
    const s32 channel = channelFind(pPlay);
    if (channel != NONE)
        channelFree(channel);
}

void znCSamplePlayer::pauseSet(u32 pPlay, bool pPaused)
{
    const s32 channel = channelFind(pPlay);
    if (channel == NONE)
        return;
    channelGet(channel).mPaused = pPaused;
    mDevice.channelPauseSet(channel, pPaused);
}

void znCSamplePlayer::endCallbackSet(s3eCallback pCallback, void* pUserData)
{
    mCallback = pCallback;
    mUserData = pUserData;
}

void znCSamplePlayer::endReport(u32 pPlay)
{
    mReported = channelFind(pPlay);
    if (mReported == NONE)
        return; // stopped by a callback before this one
    channelGet(mReported).mPlay = 0;
    if (mCallback != nullptr)
        mCallback(&pPlay, mUserData);
    mReported = NONE;
}

void znCSamplePlayer::update(s32 pDeltaMs)
{
    mDevice.timePass(pDeltaMs);
    std::array<u32, S3E_SOUND_CHANNELS> ended;
    u32* end = ended.data();
    for (s32 i = 0; i < mDevice.channelCountGet(); ++i)
        if (channelGet(i).mPlay != 0 && !channelGet(i).mPaused && mDevice.channelIsEnding(i))
            *end++ = channelGet(i).mPlay;
    std::sort(ended.data(), end);
    for (const u32* play = ended.data(); play != end; ++play)
        endReport(*play);
    overFree();
}
