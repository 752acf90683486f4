#include "znappcore/znCDisplayMode.h"

#include "zncore/debug/znIDebug.h"

#include <algorithm>
#include <cmath>
#include <limits>

znCDisplayMode::znCDisplayMode() : znCDisplayMode(0, 0, 0) {}

znCDisplayMode::znCDisplayMode(s32 pWidth, s32 pHeight, s32 pBpp) : mBpp(pBpp)
{
    sizeSet(pWidth, pHeight);
}

void znCDisplayMode::sizeSet(s32 pW, s32 pH)
{
    mSize.mX = pW;
    mSize.mY = pH;
}

void znCDisplayMode::widthFromHeightSet()
{
    // Sizes come from a settings file, so the product may not fit.
    const s64 width = static_cast<s64>(mSize.mY) * 4 / 3;
    mSize.mX =
        static_cast<s32>(std::clamp<s64>(width, std::numeric_limits<s32>::min(), std::numeric_limits<s32>::max()));
}

bool znCDisplayMode::isWideScreenGet() const
{
    constexpr float NARROW = 1.3333334f;
    constexpr float TOLERANCE = 0.1f;
    ZN_ASSERT(mSize.mX <= 0 || mSize.mY >= 1, "Display mode has not been configured correctly.\n");
    return std::fabs(static_cast<float>(mSize.mX) / static_cast<float>(mSize.mY) - NARROW) > TOLERANCE;
}
