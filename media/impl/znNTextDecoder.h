#ifndef MEDIA_IMPL_ZNNTEXTDECODER_H
#define MEDIA_IMPL_ZNNTEXTDECODER_H

#include <string>
#include <vector>

#include "zncore/znTypes.h"

namespace znNTextDecoder
{
// Any bytes as code points: what is no UTF-8 as U+FFFD, one for each faulty byte, all line ends and "<br>" as a line
// feed, tabs as a space; without the other tags and control characters. At most pMax code points; false if there were
// more. *pCodePoints is replaced and keeps its memory.
bool decode(const std::string& pText, std::size_t pMax, std::vector<u32>* pCodePoints);
} // namespace znNTextDecoder

#endif
