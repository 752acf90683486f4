#include "loader/znCDisplayModes.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace
{
constexpr s32 SIDE_MAX = 16384;

// "A", "AxB" and so on into pNumbers, as many as there are; 0 if the text is anything else.
size_t numbersParse(std::string_view pText, s32 (&pNumbers)[4])
{
    const char* at = pText.data();
    const char* end = at + pText.size();
    for (size_t count = 0; count < std::size(pNumbers);)
    {
        const auto [stop, error] = std::from_chars(at, end, pNumbers[count++]);
        if (error != std::errc() || pNumbers[count - 1] < 0 || pNumbers[count - 1] > SIDE_MAX)
            return 0;
        if (stop == end)
            return count;
        if (*stop != 'x')
            return 0;
        at = stop + 1;
    }
    return 0;
}
} // namespace

bool znCDisplayModes::textParse(const std::string& pText)
{
    znCDisplayModes parsed;
    std::string_view rest = pText;
    while (!rest.empty())
    {
        const size_t comma = std::min(rest.find(','), rest.size());
        s32 numbers[4] = {0, 0, 32, 0};
        if (numbersParse(rest.substr(0, comma), numbers) < 2 || numbers[0] == 0 || numbers[1] == 0)
            return false;
        parsed.modeAdd(numbers[0], numbers[1], numbers[2], numbers[3]);
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    if (parsed.mList.empty())
        return false;
    mList = parsed.mList;
    return true;
}

std::string znCDisplayModes::textGet() const
{
    std::string text;
    for (const s3eWindowMode& mode : mList)
        text += (text.empty() ? "" : ",") + std::to_string(mode.mWidth) + "x" + std::to_string(mode.mHeight) + "x" +
                std::to_string(mode.mBpp) + "x" + std::to_string(mode.mRefresh);
    return text;
}

void znCDisplayModes::modeAdd(s32 pWidth, s32 pHeight, s32 pBpp, s32 pRefresh)
{
    const auto same = [=](const s3eWindowMode& pMode)
    {
        return pMode.mWidth == pWidth && pMode.mHeight == pHeight && pMode.mBpp == pBpp && pMode.mRefresh == pRefresh;
    };
    if (std::none_of(mList.begin(), mList.end(), same))
        mList.push_back({pWidth, pHeight, pBpp, pRefresh, static_cast<s32>(mList.size())});
}

bool znCDisplayModes::holds(s32 pWidth, s32 pHeight) const
{
    return std::any_of(mList.begin(), mList.end(),
                       [=](const s3eWindowMode& pMode) { return pMode.mWidth == pWidth && pMode.mHeight == pHeight; });
}

s3eWindowMode znCDisplayModes::largestGet() const
{
    const auto largest = std::max_element(mList.begin(), mList.end(),
                                          [](const s3eWindowMode& pLeft, const s3eWindowMode& pRight)
                                          { return pLeft.mWidth * pLeft.mHeight < pRight.mWidth * pRight.mHeight; });
    return largest == mList.end() ? s3eWindowMode() : *largest;
}
