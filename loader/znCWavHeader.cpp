#include "loader/znCWavHeader.h"

#include <algorithm>
#include <cstring>

namespace
{
constexpr u32 FORMAT_PCM = 1;
constexpr u32 FORMAT_FLOAT = 3;
constexpr u32 FORMAT_EXTENSIBLE = 0xfffe; // the real one stands at the start of a longer number
constexpr u32 FORMAT_BYTES = 16;
constexpr u32 FORMAT_EXTENSIBLE_BYTES = 40;
constexpr u32 EXTENSIBLE_FORMAT_AT = 24;
constexpr u32 RIFF_BYTES = 12;
constexpr u32 CHUNK_BYTES = 8;

u32 numberGet(const u8* pBytes, u32 pCount)
{
    u32 number = 0;
    for (u32 i = pCount; i > 0; --i)
        number = number << 8 | pBytes[i - 1];
    return number;
}

bool namedIs(const u8* pBytes, const char* pName)
{
    return std::memcmp(pBytes, pName, 4) == 0;
}

bool bitsFit(u32 pFormat, u32 pBits)
{
    if (pFormat == FORMAT_FLOAT)
        return pBits == 32;
    return pFormat == FORMAT_PCM && pBits % 8 == 0 && pBits >= 8 && pBits <= 32;
}
} // namespace

bool znCWavHeader::formatParse(const u8* pBytes, u32 pSize, u32& pFrameBytes)
{
    if (pSize < FORMAT_BYTES)
        return false;
    u32 format = numberGet(pBytes, 2);
    if (format == FORMAT_EXTENSIBLE && pSize >= FORMAT_EXTENSIBLE_BYTES)
        format = numberGet(pBytes + EXTENSIBLE_FORMAT_AT, 2);
    mChannels = numberGet(pBytes + 2, 2);
    mRate = numberGet(pBytes + 4, 4);
    pFrameBytes = numberGet(pBytes + 12, 2);
    const u32 bits = numberGet(pBytes + 14, 2);
    return bitsFit(format, bits) && mChannels >= 1 && mChannels <= CHANNELS_MAX && mRate >= RATE_MIN &&
           mRate <= RATE_MAX && pFrameBytes == mChannels * bits / 8;
}

bool znCWavHeader::parse(const u8* pBytes, u32 pSize)
{
    if (pBytes == nullptr || pSize < RIFF_BYTES || pSize > BYTES_MAX || !namedIs(pBytes, "RIFF") ||
        !namedIs(pBytes + 8, "WAVE"))
        return false;
    u32 frameBytes = 0; // 0: no format yet
    u32 at = RIFF_BYTES;
    while (pSize - at >= CHUNK_BYTES)
    {
        const u8* name = pBytes + at;
        const u32 size = numberGet(name + 4, 4);
        at += CHUNK_BYTES;
        if (size > pSize - at)
            return false; // cut off
        if (namedIs(name, "fmt ") && !formatParse(pBytes + at, size, frameBytes))
            return false;
        if (namedIs(name, "data"))
        {
            if (frameBytes == 0 || size < frameBytes)
                return false;
            mFrames = size / frameBytes;
            mLengthMs = static_cast<u32>((u64(mFrames) * 1000 + mRate - 1) / mRate);
            return mLengthMs <= LENGTH_MAX_MS;
        }
        at = std::min(pSize, at + size + size % 2); // chunks begin at even places
    }
    return false;
}
