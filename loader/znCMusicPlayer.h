#ifndef LOADER_ZNCMUSICPLAYER_H
#define LOADER_ZNCMUSICPLAYER_H

#include "loader/znIAudioDevice.h"

#include <string>

class znCFiles;

// Serves s3eAudio: finds the track's file among the module's files and hands it to the device whole, so that the
// device's thread never waits for the disk.
class znCMusicPlayer
{
public:
    static constexpr s32 BYTES_MAX = 64 * 1024 * 1024;

    // Both must outlive the player.
    znCMusicPlayer(znCFiles& pFiles, znIAudioDevice& pDevice) : mFiles(pFiles), mDevice(pDevice) {}

    // Plays an Ogg Vorbis or MP3 file in place of the track before. False, with one line on standard error and no
    // track, if it can't be played.
    bool play(const char* pName, u32 pRepeatCount);

private:
    bool fileRead(const char* pName, std::vector<u8>& pBytes, std::string& pError);
    bool start(const char* pName, u32 pRepeatCount, std::string& pError);

    znCFiles& mFiles;
    znIAudioDevice& mDevice;
};

#endif
