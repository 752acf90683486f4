#ifndef LOADER_ZNCSILENTAUDIODEVICE_H
#define LOADER_ZNCSILENTAUDIODEVICE_H

#include "loader/znIAudioDevice.h"
#include "zncore/impl/platform/s3eExtensions.h"

#include <array>
#include <map>

// No sound at all, for runs without a window and machines without a sound device. Samples end by the game's time, so
// that a run repeats itself.
class znCSilentAudioDevice : public znIAudioDevice
{
public:
    bool trackStart(std::vector<u8> pBytes, Track pKind, u32 pRepeatCount, std::string& pError) override;
    void trackStop() override {}
    void trackPauseSet(bool pPaused) override;
    void trackVolumeSet(s32 pVolume) override;

    s32 channelCountGet() const override { return S3E_SOUND_CHANNELS; }
    bool sampleAdd(u32 pSample, const u8* pBytes, u32 pSize, const znCWavHeader& pHeader) override;
    void sampleRemove(u32 pSample) override { mLengths.erase(pSample); }
    void samplesVolumeSet(s32 pVolume) override;
    bool channelStart(s32 pChannel, u32 pSample) override;
    bool channelContinue(s32 pChannel) override;
    void channelStop(s32 pChannel) override { channelGet(pChannel) = {}; }
    void channelPauseSet(s32 pChannel, bool pPaused) override { channelGet(pChannel).mPaused = pPaused; }
    bool channelIsEnding(s32 pChannel) const override { return channelIsOver(pChannel); }
    bool channelIsOver(s32 pChannel) const override;
    void timePass(s32 pDeltaMs) override;

private:
    struct Channel
    {
        s32 mLeftMs = 0; // 0: over
        bool mPaused = false;
    };

    Channel& channelGet(s32 pChannel) { return mChannels[static_cast<size_t>(pChannel)]; }

    std::map<u32, s32> mLengths; // of the samples, ms
    std::array<Channel, S3E_SOUND_CHANNELS> mChannels;
};

#endif
