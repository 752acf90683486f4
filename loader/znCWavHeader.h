#ifndef LOADER_ZNCWAVHEADER_H
#define LOADER_ZNCWAVHEADER_H

#include "zncore/znTypes.h"

// What a WAV file tells of its sound, read before anything is decoded, so that a broken or oversized file is refused
// the same way with and without a sound device.
struct znCWavHeader
{
    static constexpr u32 BYTES_MAX = 32 * 1024 * 1024;
    static constexpr u32 LENGTH_MAX_MS = 6 * 60 * 1000; // decoded about 60 MB
    static constexpr u32 RATE_MIN = 4000;
    static constexpr u32 RATE_MAX = 192000;
    static constexpr u32 CHANNELS_MAX = 8;

    u32 mRate = 0; // frames a second
    u32 mChannels = 0;
    u32 mFrames = 0;   // at least 1
    u32 mLengthMs = 0; // rounded up

    // False unless the bytes are a whole WAV file of plain samples (8, 16, 24 or 32 bits, or 32-bit floating point)
    // within the limits above.
    bool parse(const u8* pBytes, u32 pSize);

private:
    bool formatParse(const u8* pBytes, u32 pSize, u32& pFrameBytes);
};

#endif
