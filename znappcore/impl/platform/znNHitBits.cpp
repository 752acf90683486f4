#include "znappcore/impl/platform/znNHitBits.h"

#include <algorithm>
#include <bit>
#include <cstring>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace
{
static_assert(std::endian::native == std::endian::little, "the fourth byte of a pixel is taken as its highest");

constexpr std::size_t PIXEL_BYTES = 4;
constexpr std::size_t GROUP = 8; // pixels to a byte of bits

#if defined(__SSE2__)
// 0xFFFFFFFF for each of four pixels whose alpha is 0, 0 for the others.
__m128i clearPixelsGet(const u8* pPixels)
{
    const __m128i pixels = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pPixels));
    return _mm_cmpeq_epi32(_mm_srli_epi32(pixels, 24), _mm_setzero_si128());
}

// One byte of bits from eight pixels.
u32 groupBitsGet(const u8* pPixels)
{
    const __m128i clear = _mm_packs_epi32(clearPixelsGet(pPixels), clearPixelsGet(pPixels + 16));
    return ~static_cast<u32>(_mm_movemask_epi8(_mm_packs_epi16(clear, clear)));
}
#else
// The bits 0 and 32 of the result: whether the two pixels of a word have an alpha that isn't 0.
u64 pairBitsGet(const u8* pPixels)
{
    constexpr u64 LOW_BYTES = 0x000000FF000000FFu;
    constexpr u64 LOW_BITS = 0x0000000100000001u;
    u64 pair;
    std::memcpy(&pair, pPixels, sizeof pair);
    // Adding 255 carries into the next byte exactly if the byte isn't 0.
    return (((pair >> 24 & LOW_BYTES) + LOW_BYTES) >> 8) & LOW_BITS;
}

// One byte of bits from eight pixels.
u32 groupBitsGet(const u8* pPixels)
{
    const u64 pairs = pairBitsGet(pPixels) | pairBitsGet(pPixels + 8) << 2 | pairBitsGet(pPixels + 16) << 4 |
                      pairBitsGet(pPixels + 24) << 6;
    return static_cast<u32>(pairs | pairs >> 31);
}
#endif

void singleBitsSet(u8* pBits, std::size_t pFirst, const u8* pPixels, std::size_t pCount)
{
    for (std::size_t k = 0; k < pCount; ++k)
    {
        const u32 hit = pPixels[k * PIXEL_BYTES + 3] != 0 ? 1 : 0;
        u8& byte = pBits[(pFirst + k) >> 3];
        byte = static_cast<u8>(byte | hit << ((pFirst + k) & 7));
    }
}
} // namespace

void znNHitBits::alphaBitsSet(u8* pBits, std::size_t pFirst, const u8* pPixels, std::size_t pCount)
{
    // Up to the first whole byte of bits, whole bytes, the rest.
    const std::size_t head = std::min((GROUP - (pFirst & 7)) & 7, pCount);
    singleBitsSet(pBits, pFirst, pPixels, head);
    const u8* pixels = pPixels + head * PIXEL_BYTES;
    u8* bits = pBits + ((pFirst + head) >> 3);
    const std::size_t groups = (pCount - head) / GROUP;
    for (std::size_t group = 0; group < groups; ++group, pixels += GROUP * PIXEL_BYTES)
        bits[group] = static_cast<u8>(groupBitsGet(pixels));
    const std::size_t done = head + groups * GROUP;
    singleBitsSet(pBits, pFirst + done, pixels, pCount - done);
}

void znNHitBits::bitsSet(u8* pBits, std::size_t pFirst, std::size_t pCount)
{
    std::size_t i = pFirst;
    const std::size_t end = pFirst + pCount;
    for (; i < end && (i & 7) != 0; ++i)
        pBits[i >> 3] = static_cast<u8>(pBits[i >> 3] | 1u << (i & 7));
    std::memset(pBits + (i >> 3), 0xFF, (end - i) >> 3);
    for (i += (end - i) & ~std::size_t{7}; i < end; ++i)
        pBits[i >> 3] = static_cast<u8>(pBits[i >> 3] | 1u << (i & 7));
}
