#ifndef LOADER_ZNIAUDIODEVICE_H
#define LOADER_ZNIAUDIODEVICE_H

#include "zncore/znTypes.h"

#include <string>
#include <vector>

struct znCWavHeader;

// What makes the sound: one streamed track and numbered channels for samples. It knows no names and no plays; those are
// znCMusicPlayer's and znCSamplePlayer's. All operations belong to the one thread of the game.
class znIAudioDevice
{
public:
    enum class Track
    {
        OGG_VORBIS,
        MP3
    };

    virtual ~znIAudioDevice() = default;

    // --- the track ---

    // Starts the track of a file's bytes in place of the one before. A repeat count of 0 repeats for ever. False, with
    // a sentence in pError and silence, if it can't be played.
    virtual bool trackStart(std::vector<u8> pBytes, Track pKind, u32 pRepeatCount, std::string& pError) = 0;
    virtual void trackStop() = 0;
    virtual void trackPauseSet(bool pPaused) = 0;
    virtual void trackVolumeSet(s32 pVolume) = 0; // 0 to S3E_AUDIO_MAX_VOLUME

    // --- samples and the channels that play them ---

    virtual s32 channelCountGet() const = 0;
    // Keeps a sample under a number that isn't taken. pBytes: a WAV file whose header is pHeader. False if it can't be
    // played.
    virtual bool sampleAdd(u32 pSample, const u8* pBytes, u32 pSize, const znCWavHeader& pHeader) = 0;
    // No channel may play it any more.
    virtual void sampleRemove(u32 pSample) = 0;
    virtual void samplesVolumeSet(s32 pVolume) = 0; // 0 to S3E_SOUND_MAX_VOLUME

    // Starts a sample from its beginning, whatever the channel did before. False if it can't.
    virtual bool channelStart(s32 pChannel, u32 pSample) = 0;
    // Joins another pass of the same sample to one that is ending, without a gap; false if that comes too late.
    virtual bool channelContinue(s32 pChannel) = 0;
    virtual void channelStop(s32 pChannel) = 0;
    virtual void channelPauseSet(s32 pChannel, bool pPaused) = 0;
    // The end is near enough to be told, so that what follows can still join; or it is past already.
    virtual bool channelIsEnding(s32 pChannel) const = 0;
    // Nothing sounds on the channel any more.
    virtual bool channelIsOver(s32 pChannel) const = 0;

    // The game's time, for a device without a time of its own.
    virtual void timePass(s32 pDeltaMs) = 0;
};

#endif
