#include "znappcore/src/znCSprite.h"

#include "znappcore/znIRenderer.h"
#include "zncore/debug/znIDebug.h"

void znCSprite::brushSet(const znCBrushPtr& pBrush)
{
    if (pBrush != nullptr)
        mRenderData.brushApply(*pBrush);
    else
        mRenderData.materialSet(znCMaterial());
    if ((pBrush == nullptr) != (mBrush == nullptr))
        znNRenderChanges::structureMark();
    mBrush = pBrush;
    mWidth = pBrush != nullptr ? pBrush->widthGet() : 0;
    mHeight = pBrush != nullptr ? pBrush->heightGet() : 0;
    sizeApply();
}

void znCSprite::widthSet(s32 pWidth)
{
    mWidth = pWidth;
    sizeApply();
}

void znCSprite::heightSet(s32 pHeight)
{
    mHeight = pHeight;
    sizeApply();
}

void znCSprite::sizeApply()
{
    const float halfWidth = static_cast<float>(mWidth / 2);
    const float halfHeight = static_cast<float>(mHeight / 2);
    mLocalCorners[0] = {-halfWidth, -halfHeight};
    mLocalCorners[1] = {-halfWidth, halfHeight};
    mLocalCorners[2] = {halfWidth, halfHeight};
    mLocalCorners[3] = {halfWidth, -halfHeight};
    cornersTransform();
}

void znCSprite::colourSet(const znCColour& pColour)
{
    mRenderData.colourSet(pColour);
}

void znCSprite::alphaModeSet(u32 pMode)
{
    mRenderData.alphaModeSet(pMode);
}

void znCSprite::render()
{
    if (mBrush == nullptr)
        return;
    if (znIRenderer* renderer = znIRenderer::instanceGet())
        renderer->spriteAddToBatch(&mRenderData);
}

bool znCSprite::hitTest(const znPoint& pLocal, bool pExpectHitMap) const
{
    const s64 x = static_cast<s64>(mWidth / 2) + pLocal.mX;
    const s64 y = static_cast<s64>(mHeight / 2) + pLocal.mY;
    if (mBrush == nullptr || x < 0 || y < 0 || x >= mWidth || y >= mHeight)
        return false;
    if (mBrush->hasHitMap())
        return mBrush->hitTest({static_cast<s32>(x), static_cast<s32>(y)});
    ZN_ASSERT(!pExpectHitMap, "Attempting a hitmap test on a SpriteComponent that does not have a hitmap.\n");
    return true;
}
