#include "loader/znNUtf8.h"

namespace
{
struct Form
{
    u32 mLead; // value of the lead byte's marker bits
    u32 mMask;
    size_t mLength;
    u32 mLowest; // code points below would be an overlong form
};

constexpr Form FORMS[] = {
    {0x00, 0x80, 1, 0x0}, {0xc0, 0xe0, 2, 0x80}, {0xe0, 0xf0, 3, 0x800}, {0xf0, 0xf8, 4, 0x10000}};

// The code point at pAt, with pAt moved behind it; false, with pAt moved by one byte, where no UTF-8 stands.
bool pointTake(const std::string& pText, size_t& pAt, u32& pPoint)
{
    const size_t begin = pAt++;
    const u32 lead = static_cast<u8>(pText[begin]);
    for (const Form& form : FORMS)
    {
        if ((lead & form.mMask) != form.mLead)
            continue;
        if (begin + form.mLength > pText.size())
            return false;
        pPoint = lead & ~form.mMask;
        for (size_t i = 1; i < form.mLength; ++i)
        {
            const u32 next = static_cast<u8>(pText[begin + i]);
            if ((next & 0xc0) != 0x80)
                return false;
            pPoint = (pPoint << 6) | (next & 0x3f);
        }
        if (pPoint < form.mLowest || pPoint > 0x10ffff || (pPoint >= 0xd800 && pPoint < 0xe000))
            return false;
        pAt = begin + form.mLength;
        return true;
    }
    return false;
}
} // namespace

void znNUtf8::unitsEach(const std::string& pText, const std::function<void(u16)>& pUse)
{
    for (size_t at = 0; at < pText.size();)
    {
        u32 point = 0;
        if (!pointTake(pText, at, point))
            continue;
        if (point >= 0x10000)
        {
            pUse(static_cast<u16>(0xd800 + ((point - 0x10000) >> 10)));
            pUse(static_cast<u16>(0xdc00 + ((point - 0x10000) & 0x3ff)));
        }
        else
            pUse(static_cast<u16>(point));
    }
}

bool znNUtf8::isValid(const std::string& pText)
{
    u32 point = 0;
    for (size_t at = 0; at < pText.size();)
        if (!pointTake(pText, at, point))
            return false;
    return true;
}
