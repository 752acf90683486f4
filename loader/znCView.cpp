#include "loader/znCView.h"

#include <algorithm>

namespace
{
s32 scaled(s32 pValue, s32 pNumerator, s32 pDenominator)
{
    return static_cast<s32>(static_cast<s64>(pValue) * pNumerator / std::max(pDenominator, 1));
}
} // namespace

znCView znCView::fit(s32 pSurfaceWidth, s32 pSurfaceHeight, s32 pWindowWidth, s32 pWindowHeight)
{
    znCView view;
    const bool barsAbove =
        static_cast<s64>(pWindowHeight) * pSurfaceWidth > static_cast<s64>(pWindowWidth) * pSurfaceHeight;
    view.mWidth = barsAbove ? pWindowWidth : scaled(pSurfaceWidth, pWindowHeight, pSurfaceHeight);
    view.mHeight = barsAbove ? scaled(pSurfaceHeight, pWindowWidth, pSurfaceWidth) : pWindowHeight;
    view.mX = (pWindowWidth - view.mWidth) / 2;
    view.mY = (pWindowHeight - view.mHeight) / 2;
    return view;
}

bool znCView::holds(s32 pX, s32 pY) const
{
    return pX >= mX && pX < mX + mWidth && pY >= mY && pY < mY + mHeight;
}

void znCView::toSurface(s32 pSurfaceWidth, s32 pSurfaceHeight, s32& pX, s32& pY) const
{
    pX = std::clamp(scaled(pX - mX, pSurfaceWidth, mWidth), 0, pSurfaceWidth - 1);
    pY = std::clamp(scaled(pY - mY, pSurfaceHeight, mHeight), 0, pSurfaceHeight - 1);
}
