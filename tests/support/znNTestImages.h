#ifndef TESTS_SUPPORT_ZNNTESTIMAGES_H
#define TESTS_SUPPORT_ZNNTESTIMAGES_H

// Image files made in memory, whole ones and broken ones.

#include "zncore/znTypes.h"
#include <string>
#include <utility>
#include <vector>

namespace znNTestImages
{
using Bytes = std::vector<u8>;

// The bytes as a zlib stream, as PNG chunks hold them.
Bytes deflate(const Bytes& pBytes);

// What a PNG file says, whether it makes sense or not.
struct PngParts
{
    u32 mWidth = 1;
    u32 mHeight = 1;
    u8 mDepth = 8;
    u8 mColourType = 6; // 0 grey, 2 RGB, 3 palette, 4 grey with alpha, 6 RGBA
    u8 mInterlace = 0;
    Bytes mRows;                                          // each row a 0 (no filter) and its bytes
    std::vector<std::pair<std::string, Bytes>> mChunks{}; // between header and data
};
Bytes pngMake(const PngParts& pParts);

// Four bytes a pixel, R, G, B, A, rows from the top.
Bytes pngMake(s32 pWidth, s32 pHeight, const Bytes& pPixels);

// Three bytes a pixel, R, G, B.
Bytes jpegMake(s32 pWidth, s32 pHeight, const Bytes& pPixels, bool pProgressive = false);
} // namespace znNTestImages

#endif
