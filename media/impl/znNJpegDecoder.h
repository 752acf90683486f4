#ifndef MEDIA_IMPL_ZNNJPEGDECODER_H
#define MEDIA_IMPL_ZNNJPEGDECODER_H

#include <cstddef>
#include <string>

#include "zncore/znTypes.h"

class znCImage;

namespace znNJpegDecoder
{
bool isJpeg(const u8* pBytes, std::size_t pSize);

// Decodes into *pImage. True, or false with the reason in *pReason and the picture in any state.
bool decode(const u8* pBytes, std::size_t pSize, znCImage* pImage, std::string* pReason);
} // namespace znNJpegDecoder

#endif
