#include "zncore/znCColour.h"
#include "zncore/debug/znIDebug.h"
#include <algorithm>
#include <charconv>

namespace
{
constexpr std::string::size_type TEXT_SIZE = 8;

// Reads the two digits at pAt. False, and pOut as it was, if they aren't there.
bool byteRead(const std::string& pText, std::string::size_type pAt, float& pOut)
{
    if (pAt + 2 > pText.size())
        return false;
    u8 value = 0;
    const char* begin = pText.data() + pAt;
    const auto result = std::from_chars(begin, begin + 2, value, 16);
    if (result.ptr != begin + 2)
        return false;
    pOut = static_cast<float>(value) / 255.0f;
    return true;
}
} // namespace

znCColour::znCColour(const std::string& pText)
{
    const bool digits =
        byteRead(pText, 0, mR) && byteRead(pText, 2, mG) && byteRead(pText, 4, mB) && byteRead(pText, 6, mA);
    ZN_ASSERT(digits && pText.size() == TEXT_SIZE,
              "Expected an 8 character hex string when creating an znCColour from a string (%s).\n", pText.c_str());
}

znCColour znCColour::operator+(const znCColour& pOther) const
{
    return znCColour(std::min(mR + pOther.mR, 1.0f), std::min(mG + pOther.mG, 1.0f), std::min(mB + pOther.mB, 1.0f),
                     std::min(mA + pOther.mA, 1.0f));
}

znCColour znCColour::operator-(const znCColour& pOther) const
{
    return znCColour(mR - pOther.mR, mG - pOther.mG, mB - pOther.mB, mA - pOther.mA);
}

znCColour znCColour::operator*(s32 pFactor) const
{
    const float factor = static_cast<float>(pFactor);
    return znCColour(mR * factor, mG * factor, mB * factor, mA * factor);
}

znCColour znCColour::operator/(s32 pDivisor) const
{
    const float divisor = static_cast<float>(pDivisor);
    return znCColour(mR / divisor, mG / divisor, mB / divisor, mA / divisor);
}
