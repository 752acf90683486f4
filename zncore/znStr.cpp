#include "zncore/znStr.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znNCoreUtils.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace
{
constexpr const char* WHITE_SPACE = " \t\n\r";
constexpr const char* TOKEN_END = "= \t\n\r";
constexpr std::string_view TAG_BEGIN = "&lt;";
constexpr std::string_view TAG_END = "&gt;";
constexpr s32 CODE_POINT_LIMIT = 0x1FFFFF;

// Where the code point that starts at pAt ends.
std::string::size_type codePointEnd(const std::string& pText, std::string::size_type pAt)
{
    const s32 extra = znNCoreUtils::leadingOnesBelowTop(static_cast<u8>(pText[pAt]));
    return std::min(pAt + 1 + static_cast<std::string::size_type>(extra), pText.size());
}

char continuationByte(s32 pCodePoint, s32 pShift)
{
    return static_cast<char>(0x80 | ((pCodePoint >> pShift) & 0x3F));
}

void spaceSkip(std::string_view& pText)
{
    pText.remove_prefix(std::min(pText.find_first_not_of(WHITE_SPACE), pText.size()));
}

void commentsSkip(std::string_view& pText)
{
    spaceSkip(pText);
    while (pText.starts_with('#'))
    {
        const std::string_view::size_type lineEnd = pText.find('\n');
        pText.remove_prefix(lineEnd == std::string_view::npos ? pText.size() : lineEnd + 1);
        spaceSkip(pText);
    }
}

std::string_view quotedCut(std::string_view& pText)
{
    pText.remove_prefix(1);
    const std::string_view::size_type quote = pText.find('"');
    ZN_ASSERT(quote != std::string_view::npos, "Missing '\"' in string.\n");
    const std::string_view token = pText.substr(0, quote);
    pText.remove_prefix(quote == std::string_view::npos ? pText.size() : quote + 1);
    return token;
}

// Blanks, then a plus sign before a digit or dot: what a number may begin with and from_chars doesn't take.
std::string_view numberStart(std::string_view pText)
{
    pText.remove_prefix(std::min(pText.find_first_not_of(" \t\n\r\v\f"), pText.size()));
    if (pText.size() > 1 && pText[0] == '+' && pText[1] != '-')
        pText.remove_prefix(1);
    return pText;
}

bool digitOrDot(std::string_view pText)
{
    return !pText.empty() && ((pText[0] >= '0' && pText[0] <= '9') || pText[0] == '.');
}

// A replacement that contains what it replaces: one pass, what was put in isn't looked at again.
void replaceOnce(std::string& pText, const std::string& pFind, const std::string& pReplace)
{
    std::string result;
    std::string::size_type from = 0;
    for (std::string::size_type at; (at = pText.find(pFind, from)) != std::string::npos; from = at + pFind.size())
        result.append(pText, from, at - from).append(pReplace);
    pText = result.append(pText, from);
}
} // namespace

znStr::znStr(s32 pValue) : std::string(std::to_string(pValue)) {}

znStr::znStr(uint32 pValue) : std::string(std::to_string(pValue)) {}

znStr::znStr(float pValue)
{
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, static_cast<double>(pValue), std::chars_format::general, 6);
    assign(buffer, end.ptr);
}

s32 znStr::lengthGet() const
{
    s32 length = 0;
    for (size_type at = 0; at < size(); at = codePointEnd(*this, at))
        ++length;
    return length;
}

znStr& znStr::operator+=(s32 pCodePoint)
{
    const bool valid = pCodePoint >= 0 && pCodePoint <= CODE_POINT_LIMIT;
    ZN_ASSERT(valid, "Invalid Unicode value");
    if (!valid)
        return *this;
    if (pCodePoint < 0x80)
        push_back(static_cast<char>(pCodePoint));
    else if (pCodePoint < 0x800)
        push_back(static_cast<char>(0xC0 | (pCodePoint >> 6)));
    else if (pCodePoint < 0x10000)
        push_back(static_cast<char>(0xE0 | (pCodePoint >> 12)));
    else
        push_back(static_cast<char>(0xF0 | (pCodePoint >> 18)));
    if (pCodePoint >= 0x10000)
        push_back(continuationByte(pCodePoint, 12));
    if (pCodePoint >= 0x800)
        push_back(continuationByte(pCodePoint, 6));
    if (pCodePoint >= 0x80)
        push_back(continuationByte(pCodePoint, 0));
    return *this;
}

void znStr::toLower()
{
    toLower(*this);
}

void znStr::toLower(std::string& pText)
{
    for (char& letter : pText)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
}

void znStr::trimLeft()
{
    erase(0, std::min(find_first_not_of(WHITE_SPACE), size()));
}

void znStr::trimRight()
{
    resize(find_last_not_of(WHITE_SPACE) + 1);
}

void znStr::truncate(s32 pLength)
{
    size_type end = 0;
    for (s32 length = 0; length < pLength && end < size(); ++length)
        end = codePointEnd(*this, end);
    resize(end);
}

// What is done is a text without an occurrence, what is left a stack with the next letter on top: each letter is looked
// at once for every time that it is put in, and the order of replacements is that of searching anew each time.
void znStr::replaceAll(const std::string& pFind, const std::string& pReplace)
{
    if (pFind.empty() || find(pFind) == npos)
        return;
    if (pReplace.find(pFind) != npos)
        return replaceOnce(*this, pFind, pReplace);
    std::string left(rbegin(), rend());
    clear();
    while (!left.empty())
    {
        push_back(left.back());
        left.pop_back();
        if (!ends_with(pFind))
            continue;
        resize(size() - pFind.size());
        left.append(pReplace.rbegin(), pReplace.rend());
    }
}

znStr znStr::tokenCut(const std::string& pDelimiter)
{
    const size_type at = find(pDelimiter);
    znStr token = substr(0, at);
    erase(0, at == npos ? npos : at + pDelimiter.size());
    return token;
}

znStr znStr::chunk()
{
    std::string_view rest = *this;
    znStr token = std::string(chunk(rest));
    erase(0, size() - rest.size());
    return token;
}

std::string_view znStr::chunk(std::string_view& pText)
{
    commentsSkip(pText);
    if (pText.starts_with('"'))
        return quotedCut(pText);
    const std::string_view token = pText.substr(0, pText.find_first_of(TOKEN_END));
    pText.remove_prefix(token.size());
    spaceSkip(pText);
    return token;
}

void znStr::removeXmlTags()
{
    if (find(TAG_BEGIN) == npos)
        return;
    const std::string text = std::move(*this);
    clear();
    for (size_type at = 0; at < text.size();)
    {
        push_back(text[at++]);
        if (!ends_with(TAG_BEGIN))
            continue;
        const size_type end = text.find(TAG_END, at);
        ZN_ASSERT(end != npos, "XML tag appears to not be terminated");
        if (end == npos)
        {
            append(text, at);
            return;
        }
        resize(size() - TAG_BEGIN.size());
        at = end + TAG_END.size();
    }
}

void znStr::afterLastCut(const std::string& pSeparator)
{
    if (const size_type at = rfind(pSeparator); at != npos)
        erase(0, at + pSeparator.size());
}

void znStr::fromLastCut(const std::string& pText)
{
    if (const size_type at = rfind(pText); at != npos)
        resize(at);
}

s32 znStr::toS32() const
{
    return toS32(std::string_view(*this));
}

float znStr::toF32() const
{
    return toF32(std::string_view(*this));
}

s32 znStr::toS32(std::string_view pText)
{
    const std::string_view number = numberStart(pText);
    s32 value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    return number[0] == '-' ? std::numeric_limits<s32>::min() : std::numeric_limits<s32>::max();
}

float znStr::toF32(std::string_view pText)
{
    const std::string_view number = numberStart(pText);
    const bool negative = number.starts_with('-');
    // "inf" and "nan" are words, not decimal numbers.
    if (!digitOrDot(number.substr(negative ? 1 : 0)))
        return 0.0f;
    float value = 0.0f;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    // Too large or too close to zero: the C function tells which.
    const double wide = std::strtod(std::string(number.data(), result.ptr).c_str(), nullptr);
    return std::fabs(wide) < 1.0 ? 0.0f : std::copysign(std::numeric_limits<float>::max(), static_cast<float>(wide));
}
