#include "media/impl/znNTextDecoder.h"

#include <string_view>

namespace
{
constexpr u32 sReplacement = 0xFFFD;
constexpr u32 sDropped = 0xFFFFFFFFu;

bool isContinuation(const std::string& pText, std::size_t pAt)
{
    return pAt < pText.size() && (static_cast<u8>(pText[pAt]) & 0xC0) == 0x80;
}

// The code point at *pAt, and *pAt behind it. Overlong forms, surrogates and numbers beyond Unicode are faulty.
u32 codePointTake(const std::string& pText, std::size_t* pAt)
{
    const u8 first = static_cast<u8>(pText[(*pAt)++]);
    if (first < 0x80)
        return first;
    const std::size_t more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4)
        return sReplacement;
    u32 result = first & (0x3Fu >> more);
    for (std::size_t i = 0; i < more; ++i)
    {
        if (!isContinuation(pText, *pAt + i))
            return sReplacement;
        result = result << 6 | (static_cast<u8>(pText[*pAt + i]) & 0x3Fu);
    }
    static constexpr u32 sSmallest[] = {0, 0x80, 0x800, 0x10000};
    if (result < sSmallest[more] || result > 0x10FFFF || (result >= 0xD800 && result <= 0xDFFF))
        return sReplacement;
    *pAt += more;
    return result;
}

// Bytes of the tag at pAt; 0 if there is none.
std::size_t tagSizeGet(const std::string& pText, std::size_t pAt)
{
    static constexpr std::string_view sTags[] = {"<b>", "</b>", "<i>", "</i>", "<u>", "</u>", "<br>"};
    for (const std::string_view tag : sTags)
        if (pText.compare(pAt, tag.size(), tag) == 0)
            return tag.size();
    return 0;
}

// What a code point stands for in a layout; sDropped for nothing.
u32 meaningGet(u32 pCodePoint)
{
    if (pCodePoint == '\n' || pCodePoint == 0x85 || pCodePoint == 0x2028 || pCodePoint == 0x2029)
        return '\n';
    if (pCodePoint == '\t')
        return ' ';
    if (pCodePoint < 0x20 || (pCodePoint >= 0x7F && pCodePoint < 0xA0))
        return sDropped;
    return pCodePoint;
}
} // namespace

bool znNTextDecoder::decode(const std::string& pText, std::size_t pMax, std::vector<u32>* pCodePoints)
{
    pCodePoints->clear();
    std::size_t at = 0;
    while (at < pText.size())
    {
        u32 codePoint;
        const std::size_t tag = pText[at] == '<' ? tagSizeGet(pText, at) : 0;
        if (tag != 0)
        {
            codePoint = pText[at + 2] == 'r' ? '\n' : sDropped;
            at += tag;
        }
        else
            codePoint = meaningGet(codePointTake(pText, &at));
        if (codePoint == sDropped)
            continue;
        if (pCodePoints->size() == pMax)
            return false;
        pCodePoints->push_back(codePoint);
    }
    return true;
}
