#ifndef TESTS_LOADER_WAVOF_H
#define TESTS_LOADER_WAVOF_H

#include "zncore/znTypes.h"

#include <string>

// A WAV file of pFrames 16-bit frames, all of them pValue.
inline std::string wavOf(u32 pFrames, u32 pRate = 44100, u32 pChannels = 2, s16 pValue = 8000)
{
    const auto number = [](u32 pNumber, u32 pBytes)
    {
        std::string text;
        for (u32 i = 0; i < pBytes; ++i)
            text += static_cast<char>(pNumber >> 8 * i & 0xff);
        return text;
    };
    const u32 frameBytes = pChannels * 2;
    std::string data;
    for (u32 i = 0; i < pFrames * pChannels; ++i)
        data += number(static_cast<u16>(pValue), 2);
    const std::string format = number(1, 2) + number(pChannels, 2) + number(pRate, 4) + number(pRate * frameBytes, 4) +
                               number(frameBytes, 2) + number(16, 2);
    const std::string chunks =
        "WAVEfmt " + number(16, 4) + format + "data" + number(static_cast<u32>(data.size()), 4) + data;
    return "RIFF" + number(static_cast<u32>(chunks.size()), 4) + chunks;
}

#endif
