#ifndef TOOLS_AUTHOR_ZNNPNG_H
#define TOOLS_AUTHOR_ZNNPNG_H

#include "zncore/znTypes.h"

#include <filesystem>
#include <string>
#include <vector>

// A picture of four bytes a pixel, R, G, B, A, not multiplied, rows from the top.
struct znSPicture
{
    znSPicture() : znSPicture(0, 0) {}
    znSPicture(s32 pWidth, s32 pHeight);
    bool operator==(const znSPicture&) const = default;
    u8* at(s32 pX, s32 pY)
    {
        return &mPixels[4 * (static_cast<std::size_t>(pY) * static_cast<std::size_t>(mWidth) +
                             static_cast<std::size_t>(pX))];
    }
    const u8* at(s32 pX, s32 pY) const { return const_cast<znSPicture*>(this)->at(pX, pY); }
    bool holds(s32 pX, s32 pY) const { return pX >= 0 && pY >= 0 && pX < mWidth && pY < mHeight; }

    s32 mWidth;
    s32 mHeight;
    std::vector<u8> mPixels; // transparent black at first
};

namespace znNPng
{
// By the game's own decoder; false if it can't. pName is for the log.
bool decode(const std::string& pBytes, const std::string& pName, znSPicture& pPicture);
// The area of that corner and size, which lies inside.
znSPicture areaGet(const znSPicture& pPicture, s32 pX, s32 pY, s32 pWidth, s32 pHeight);
// False if the file can't be written.
bool write(const std::filesystem::path& pFile, const znSPicture& pPicture);
} // namespace znNPng

#endif
