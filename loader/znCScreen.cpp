#include "loader/znCScreen.h"

#include "loader/znCView.h"
#include "loader/znNReport.h"

#include <algorithm>

namespace
{
float channel(u32 pColour, u32 pShift)
{
    return static_cast<float>((pColour >> pShift) & 0xff) / 255.0f;
}
} // namespace

znCScreen::znCScreen(const znCGl& pGl, znIWindow& pWindow, bool pKeepsFrames)
    : mGl(pGl), mWindow(pWindow), mTextures(pGl), mQuads(pGl, mTextures), mTarget(pGl), mKeepsFrames(pKeepsFrames)
{
}

void znCScreen::frameBegin()
{
    s32 windowWidth = 0;
    s32 windowHeight = 0;
    mWindow.wishesApply();
    mWindow.drawableSizeGet(windowWidth, windowHeight);
    const s32 width = mWindow.surfaceWidthGet();
    const s32 height = mWindow.surfaceHeightGet();
    const bool targetUsed = mKeepsFrames || windowWidth != width || windowHeight != height;
    mBound = mBound && width == mWidth && height == mHeight && targetUsed == mTargetUsed;
    mWidth = width;
    mHeight = height;
    mTargetUsed = targetUsed;
    mFrameBegun = true;
    surfaceBind();
}

void znCScreen::surfaceBind()
{
    if (mBound)
        return;
    if (mTargetUsed && !mTarget.bind(mWidth, mHeight))
        znNReport::lineWrite("the display's driver can't draw a picture of %d by %d", mWidth, mHeight);
    if (!mTargetUsed)
        mGl.BindFramebuffer(GL_FRAMEBUFFER, 0);
    mGl.Viewport(0, 0, mWidth, mHeight);
    mQuads.surfaceSizeSet(mWidth, mHeight);
    mBound = true;
}

void znCScreen::clear(u32 pColour)
{
    frameBegin();
    const float alpha = channel(pColour, 24);
    mGl.ClearColor(channel(pColour, 0) * alpha, channel(pColour, 8) * alpha, channel(pColour, 16) * alpha, alpha);
    mGl.Clear(GL_COLOR_BUFFER_BIT);
}

void znCScreen::flush()
{
    if (!mFrameBegun)
        frameBegin();
    mQuads.flush();
}

void znCScreen::scaledPresent(s32 pWindowWidth, s32 pWindowHeight)
{
    const znCView view = znCView::fit(mWidth, mHeight, pWindowWidth, pWindowHeight);
    mGl.BindFramebuffer(GL_FRAMEBUFFER, 0);
    mGl.ClearColor(0.0f, 0.0f, 0.0f, 1.0f);
    mGl.Clear(GL_COLOR_BUFFER_BIT);
    mGl.Viewport(view.mX, pWindowHeight - view.mY - view.mHeight, view.mWidth, view.mHeight);
    mQuads.pictureDraw(mTarget.textureGet());
    mBound = false;
}

void znCScreen::present()
{
    flush();
    s32 windowWidth = 0;
    s32 windowHeight = 0;
    mWindow.drawableSizeGet(windowWidth, windowHeight);
    if (mTargetUsed && windowWidth > 0)
        scaledPresent(windowWidth, windowHeight);
    if (windowWidth == 0)
        mGl.Flush(); // a swap does that
    mWindow.swap();
    surfaceBind();
    mFrameBegun = false;
    ++mPresented;
}

bool znCScreen::pixelsRead(s32 pX, s32 pY, s32 pWidth, s32 pHeight, void* pPixels)
{
    if (pPixels == nullptr || pX < 0 || pY < 0 || pWidth < 1 || pHeight < 1 || pWidth > mWidth - pX ||
        pHeight > mHeight - pY)
        return false;
    mGl.ReadPixels(pX, mHeight - pY - pHeight, pWidth, pHeight, GL_RGBA, GL_UNSIGNED_BYTE, pPixels);
    const size_t row = static_cast<size_t>(pWidth) * 4;
    auto* top = static_cast<u8*>(pPixels);
    for (u8* bottom = top + row * static_cast<size_t>(pHeight - 1); top < bottom; top += row, bottom -= row)
        std::swap_ranges(top, top + row, bottom);
    return true;
}
