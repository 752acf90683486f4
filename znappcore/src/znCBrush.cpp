#include "znappcore/src/znCBrush.h"

#include "zncore/debug/znIDebug.h"
#include "zncore/znNCoreUtils.h"

void znCBrush::init(const std::string& pName, const znITexturePtr& pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight)
{
    // Sprites are placed by half their size in whole units: an odd one stands half a pixel off.
    ZN_ASSERT(pWidth % 2 == 0 && pHeight % 2 == 0, "%s width or height is not a multiple of 2 (%d,%d).\n",
              pName.c_str(), pWidth, pHeight);
    mTexture = pTexture;
    mX = pX;
    mY = pY;
    mWidth = pWidth;
    mHeight = pHeight;
}

void znCBrush::hitBrushSet(const znCBrushPtr& pBrush)
{
    const znCBrush* brush = pBrush.get();
    while (brush != nullptr && brush != this)
        brush = brush->mHitBrush.get();
    ZN_ASSERT(brush == nullptr, "A brush can't be its own hit brush.\n");
    if (brush == nullptr)
        mHitBrush = pBrush;
}

const znCBrush& znCBrush::hitBrushLastGet() const
{
    const znCBrush* brush = this;
    while (brush->mHitBrush != nullptr)
        brush = brush->mHitBrush.get();
    return *brush;
}

s32 znCBrush::hitWidthGet() const
{
    return mHitBrush != nullptr ? mHitBrush->mWidth : mWidth;
}

s32 znCBrush::hitHeightGet() const
{
    return mHitBrush != nullptr ? mHitBrush->mHeight : mHeight;
}

bool znCBrush::hasHitMap() const
{
    const znITexture* texture = hitBrushLastGet().mTexture.get();
    return texture != nullptr && texture->hasHitMap();
}

bool znCBrush::hasAlpha() const
{
    const znITexture* texture = hitBrushLastGet().mTexture.get();
    return texture != nullptr && texture->hasAlpha();
}

bool znCBrush::hitTest(const znPoint& pLocal) const
{
    const znCBrush& brush = hitBrushLastGet();
    return brush.mTexture != nullptr &&
           brush.mTexture->hitTest({znNCoreUtils::s32Saturate(static_cast<s64>(pLocal.mX) + brush.mX),
                                    znNCoreUtils::s32Saturate(static_cast<s64>(pLocal.mY) + brush.mY)});
}
