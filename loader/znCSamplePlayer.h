#ifndef LOADER_ZNCSAMPLEPLAYER_H
#define LOADER_ZNCSAMPLEPLAYER_H

#include "loader/znIAudioDevice.h"
#include "zncore/impl/platform/s3eExtensions.h"

#include <array>
#include <set>

// Serves the petrelSound table: samples and their plays by number, on the channels of a device. Ends are reported in
// update alone, in the order in which their plays began.
class znCSamplePlayer
{
public:
    // pDevice must outlive the player.
    explicit znCSamplePlayer(znIAudioDevice& pDevice) : mDevice(pDevice) {}

    u32 sampleCreate(const void* pBytes, u32 pSize);
    void sampleFree(u32 pSample);
    u32 play(u32 pSample);
    void stop(u32 pPlay);
    void pauseSet(u32 pPlay, bool pPaused);
    void volumeSet(s32 pVolume) { mDevice.samplesVolumeSet(pVolume); }
    void endCallbackSet(s3eCallback pCallback, void* pUserData);
    void update(s32 pDeltaMs);

private:
    struct Channel
    {
        u32 mPlay = 0; // 0: nothing, or the last moments of a play whose end was reported
        u32 mSample = 0;
        bool mBusy = false;
        bool mPaused = false;
    };

    static constexpr s32 NONE = -1;

    Channel& channelGet(s32 pChannel) { return mChannels[static_cast<size_t>(pChannel)]; }
    s32 channelFind(u32 pPlay) const;
    void channelFree(s32 pChannel);
    // A channel that the sample now sounds on.
    s32 channelStart(u32 pSample);
    bool endingContinue(u32 pSample);
    void overFree();
    void endReport(u32 pPlay);

    znIAudioDevice& mDevice;
    std::array<Channel, S3E_SOUND_CHANNELS> mChannels;
    std::set<u32> mSamples;
    u32 mLastSample = 0;
    u32 mLastPlay = 0;
    s32 mReported = NONE; // the channel whose end is being reported
    s3eCallback mCallback = nullptr;
    void* mUserData = nullptr;
};

#endif
