#ifndef ZNAPPCORE_IMPL_PLATFORM_ZNNHITBITS_H
#define ZNAPPCORE_IMPL_PLATFORM_ZNNHITBITS_H

#include "zncore/znTypes.h"

#include <cstddef>

namespace znNHitBits
{
// Sets one bit for each of pCount pixels of four bytes whose fourth byte isn't 0: pixel k is bit ((pFirst + k) & 7),
// lowest first, of byte ((pFirst + k) >> 3). The bits were 0 before. As fast as the pixels can be read.
void alphaBitsSet(u8* pBits, std::size_t pFirst, const u8* pPixels, std::size_t pCount);
// Sets pCount bits from pFirst on.
void bitsSet(u8* pBits, std::size_t pFirst, std::size_t pCount);
} // namespace znNHitBits

#endif
