#ifndef MEDIA_IMPL_ZNNPNGDECODER_H
#define MEDIA_IMPL_ZNNPNGDECODER_H

#include <cstddef>
#include <string>

#include "zncore/znTypes.h"

class znCImage;

namespace znNPngDecoder
{
bool isPng(const u8* pBytes, std::size_t pSize);

// Decodes into *pImage. True, or false with the reason in *pReason and the picture in any state.
bool decode(const u8* pBytes, std::size_t pSize, znCImage* pImage, std::string* pReason);
} // namespace znNPngDecoder

#endif
