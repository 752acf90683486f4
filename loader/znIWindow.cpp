#include "loader/znIWindow.h"

#include "loader/znCCommandLine.h"

#include <algorithm>

znIWindow::znIWindow(s32 pWidth, s32 pHeight, bool pTouch, const znCDisplayModes& pModes)
    : mModes(pModes), mDeviceWidth(pWidth), mDeviceHeight(pHeight), mWidth(pTouch ? std::max(pWidth, pHeight) : pWidth),
      mHeight(pTouch ? std::min(pWidth, pHeight) : pHeight), mTouch(pTouch)
{
}

void znIWindow::deviceSizeGet(s32& pWidth, s32& pHeight) const
{
    const s3eWindowMode largest = mModes.largestGet();
    pWidth = mTouch ? mDeviceWidth : largest.mWidth;
    pHeight = mTouch ? mDeviceHeight : largest.mHeight;
}

void znIWindow::displaySizeGet(s32& pWidth, s32& pHeight) const
{
    deviceSizeGet(pWidth, pHeight);
    if (mTouch && pWidth < pHeight)
        std::swap(pWidth, pHeight);
}

bool znIWindow::sizeSet(s32 pWidth, s32 pHeight)
{
    const auto possible = [](s32 pSide)
    {
        return pSide > 0 && pSide <= znCCommandLine::SIDE_MAX;
    };
    if (!possible(pWidth) || !possible(pHeight))
        return false;
    mWidth = pWidth;
    mHeight = pHeight;
    return true;
}

bool znIWindow::fullScreenSet(const s3eWindowMode* pMode)
{
    if (pMode != nullptr && !mModes.holds(pMode->mWidth, pMode->mHeight))
        return false;
    mFullScreenMode = pMode == nullptr ? std::nullopt : std::optional(*pMode);
    return true;
}
