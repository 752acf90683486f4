#include "loader/znCSilentAudioDevice.h"

#include "loader/znCWavHeader.h"

#include <algorithm>

bool znCSilentAudioDevice::trackStart(std::vector<u8>, Track, u32, std::string&)
{
    return true;
}

void znCSilentAudioDevice::trackPauseSet(bool) {}

void znCSilentAudioDevice::trackVolumeSet(s32) {}

void znCSilentAudioDevice::samplesVolumeSet(s32) {}

bool znCSilentAudioDevice::sampleAdd(u32 pSample, const u8*, u32, const znCWavHeader& pHeader)
{
    mLengths[pSample] = static_cast<s32>(pHeader.mLengthMs);
    return true;
}

bool znCSilentAudioDevice::channelStart(s32 pChannel, u32 pSample)
{
    channelGet(pChannel) = {mLengths.at(pSample), false};
    return true;
}

// Its ends are told when they are past.
bool znCSilentAudioDevice::channelContinue(s32)
{
    return false;
}

bool znCSilentAudioDevice::channelIsOver(s32 pChannel) const
{
    return mChannels[static_cast<size_t>(pChannel)].mLeftMs == 0;
}

void znCSilentAudioDevice::timePass(s32 pDeltaMs)
{
    for (Channel& channel : mChannels)
        if (!channel.mPaused)
            channel.mLeftMs = std::max(0, channel.mLeftMs - std::max(0, pDeltaMs));
}
