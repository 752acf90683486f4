#include "tests/support/znCTestWindow.h"
#include <algorithm>

void znCTestWindow::fixedDisplaySet(s32 pDeviceWidth, s32 pDeviceHeight)
{
    mPresent = false;
    mMousePresent = false;
    mDeviceWidth = pDeviceWidth;
    mDeviceHeight = pDeviceHeight;
    mWidth = std::max(pDeviceWidth, pDeviceHeight);
    mHeight = std::min(pDeviceWidth, pDeviceHeight);
}

void znCTestWindow::mouseLogSend(const std::string& pText)
{
    if (mMouseLogCallback != nullptr)
        mMouseLogCallback(const_cast<char*>(pText.c_str()), mMouseLogUserData);
}

void znCTestWindow::surfaceSet(s32 pWidth, s32 pHeight)
{
    mWidth = mDeviceWidth = pWidth;
    mHeight = mDeviceHeight = pHeight;
}

s3eResult znCTestWindow::sizeSet(s32 pWidth, s32 pHeight)
{
    ++mSizeSetCount;
    if (mModeSetFails || pWidth <= 0 || pHeight <= 0)
        return S3E_RESULT_ERROR;
    mWindowWidth = pWidth;
    mWindowHeight = pHeight;
    if (!mFullScreen)
        surfaceSet(pWidth, pHeight);
    return S3E_RESULT_SUCCESS;
}

s3eResult znCTestWindow::modesGet(s3eWindowMode* pModes, s32* pCount) const
{
    const s32 count = static_cast<s32>(mModes.size());
    *pCount = pModes != nullptr ? std::min(*pCount, count) : count;
    if (pModes != nullptr)
        std::copy_n(mModes.begin(), *pCount, pModes);
    return S3E_RESULT_SUCCESS;
}

s3eResult znCTestWindow::fullScreenSet(const s3eWindowMode* pMode)
{
    ++mFullScreenSetCount;
    if (mModeSetFails)
        return S3E_RESULT_ERROR;
    mFullScreen = pMode != nullptr;
    mFullScreenModeIndex = mFullScreen ? pMode->mIndex : -1;
    surfaceSet(mFullScreen ? pMode->mWidth : mWindowWidth, mFullScreen ? pMode->mHeight : mWindowHeight);
    return S3E_RESULT_SUCCESS;
}
