#ifndef LOADER_ZNCSDLAUDIODEVICE_H
#define LOADER_ZNCSDLAUDIODEVICE_H

#include "loader/znCVoice.h"
#include "loader/znIAudioDevice.h"
#include "zncore/impl/platform/s3eExtensions.h"

#include <array>
#include <map>
#include <memory>
#include <SDL_mixer.h>

// The machine's sound device through SDL_mixer: 16-bit stereo at 44,100 Hz. Every channel runs its sample round and
// round, and its voice says how much of that sounds. At most one at a time.
class znCSdlAudioDevice : public znIAudioDevice
{
public:
    static constexpr s32 RATE = 44100;
    static constexpr s32 BUFFER_FRAMES = 1024; // 23 ms

    ~znCSdlAudioDevice() override;
    znCSdlAudioDevice(const znCSdlAudioDevice&) = delete;
    znCSdlAudioDevice& operator=(const znCSdlAudioDevice&) = delete;

    // Null, with a sentence in pError, if there is no device that works.
    static std::unique_ptr<znCSdlAudioDevice> open(std::string& pError);

    bool trackStart(std::vector<u8> pBytes, Track pKind, u32 pRepeatCount, std::string& pError) override;
    void trackStop() override;
    void trackPauseSet(bool pPaused) override;
    void trackVolumeSet(s32 pVolume) override;

    s32 channelCountGet() const override { return mChannelCount; }
    bool sampleAdd(u32 pSample, const u8* pBytes, u32 pSize, const znCWavHeader& pHeader) override;
    void sampleRemove(u32 pSample) override { mSamples.erase(pSample); }
    void samplesVolumeSet(s32 pVolume) override;
    bool channelStart(s32 pChannel, u32 pSample) override;
    bool channelContinue(s32 pChannel) override { return voiceGet(pChannel).continueAsk(); }
    void channelStop(s32 pChannel) override;
    void channelPauseSet(s32 pChannel, bool pPaused) override;
    bool channelIsEnding(s32 pChannel) const override { return mVoices[static_cast<size_t>(pChannel)].isEnding(); }
    bool channelIsOver(s32 pChannel) const override { return mVoices[static_cast<size_t>(pChannel)].isOver(); }
    void timePass(s32) override {} // it has its own

private:
    struct Free
    {
        void operator()(Mix_Music* pTrack) const { Mix_FreeMusic(pTrack); }
        void operator()(Mix_Chunk* pSample) const { Mix_FreeChunk(pSample); }
    };

    znCSdlAudioDevice() = default;
    znCVoice& voiceGet(s32 pChannel) { return mVoices[static_cast<size_t>(pChannel)]; }

    s32 mChannelCount = 0;
    std::vector<u8> mTrackBytes; // the track reads from them as it plays
    std::unique_ptr<Mix_Music, Free> mTrack;
    std::map<u32, std::unique_ptr<Mix_Chunk, Free>> mSamples;
    std::array<znCVoice, S3E_SOUND_CHANNELS> mVoices;
};

#endif
