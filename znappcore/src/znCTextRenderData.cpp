#include "znappcore/src/znCTextRenderData.h"

#include "media/znNFonts.h"
#include "znappcore/src/znCFont.h"
#include "znappcore/src/znCSpriteRenderData.h"
#include "zncore/debug/znIDebug.h"

#include <cmath>

namespace
{
constexpr s32 CORNERS = 4;
constexpr float SCALE_TOLERANCE = 1.0e-4f;

// Whether a texel of the glyph texture becomes a device pixel.
bool pixelForPixelGet(const znAffineMtx2d& pMatrix)
{
    const float scale = znNFonts::displayScaleGet();
    return pMatrix.m01 == 0.0f && pMatrix.m10 == 0.0f && std::fabs(pMatrix.m00 - scale) < SCALE_TOLERANCE &&
           std::fabs(pMatrix.m11 - scale) < SCALE_TOLERANCE;
}
} // namespace

void znCTextRenderData::matrixApply(const znAffineMtx2d& pMatrix)
{
    mMatrix = pMatrix;
    znNRenderChanges::contentsMark();
    const bool snap = pixelForPixelGet(mMatrix);
    const float moveX = snap ? std::floor(mMatrix.m02 + 0.5f) : mMatrix.m02;
    const float moveY = snap ? std::floor(mMatrix.m12 + 0.5f) : mMatrix.m12;
    const znPointF* local = mLocalVertices.data();
    const znPointF* end = local + mGlyphCount * CORNERS;
    for (znPointF* world = mWorldVertices.data(); local != end; ++local, ++world)
        *world = {mMatrix.m00 * local->mX + mMatrix.m01 * local->mY + moveX,
                  mMatrix.m10 * local->mX + mMatrix.m11 * local->mY + moveY};
}

s32 znCTextRenderData::textWidthGet() const
{
    return mPrepared.widthGet();
}

void znCTextRenderData::colourSet(const znCColour& pColour)
{
    const u32 colour = znCSpriteRenderData::colourPack(pColour);
    if (colour != mColour)
        znNRenderChanges::contentsMark();
    mColour = colour;
}

const znCGlyphRun* znCTextRenderData::glyphRunGet(s32 pIndex) const
{
    if (pIndex > 0 || mGlyphCount == 0)
        return nullptr;
    mRun.mMaterial.mTexture = znNFonts::glyphTextureGet();
    mRun.mMaterial.mColour = mColour;
    mRun.mVertices = mWorldVertices.data();
    mRun.mUvs = mPrepared.uvsGet();
    mRun.mGlyphCount = mGlyphCount;
    return &mRun;
}

void znCTextRenderData::glyphsRefresh()
{
    if (mTextScale != znNFonts::textScaleGet())
        layoutUpdate();
    if (mPrepared.refresh())
        verticesBuild();
}

void znCTextRenderData::layoutUpdate()
{
    mTextScale = znNFonts::textScaleGet();
    const znCGraphicsFont* font = mFont != nullptr ? static_cast<const znCFont*>(mFont)->graphicsFontGet() : nullptr;
    if (font == nullptr)
        return;
    mPrepared.prepare(*font, mText, mFormattingRectSize.mX, mFormattingRectSize.mY, mAlignH, mAlignV);
    verticesBuild();
}

void znCTextRenderData::verticesBuild()
{
    mGlyphCount = mPrepared.glyphCountGet();
    const std::size_t points = static_cast<std::size_t>(mGlyphCount) * CORNERS;
    if (points > mLocalVertices.size())
    {
        mLocalVertices.resize(points);
        mWorldVertices.resize(points);
    }
    const float halfWidth = static_cast<float>(mFormattingRectSize.mX / 2);
    const float halfHeight = static_cast<float>(mFormattingRectSize.mY / 2);
    znPointF* corner = mLocalVertices.data();
    for (s32 i = 0; i < mGlyphCount; ++i)
    {
        const znCGlyphRect& rect = mPrepared.glyphRectGet(i);
        const float left = rect.mX - halfWidth;
        const float top = rect.mY - halfHeight;
        *corner++ = {left, top};
        *corner++ = {left, top + rect.mHeight};
        *corner++ = {left + rect.mWidth, top + rect.mHeight};
        *corner++ = {left + rect.mWidth, top};
    }
    matrixApply(mMatrix);
}

void znCTextRenderData::alignmentSetDo(s32 pH, s32 pV)
{
    const bool knownH = pH >= ALIGN_LEFT && pH <= ALIGN_RIGHT;
    const bool knownV = pV >= ALIGN_TOP && pV <= ALIGN_BOTTOM;
    ZN_ASSERT(knownH, "Unhandled horizontal text alignment.\n");
    ZN_ASSERT(knownV, "Unhandled vertical text alignment.\n");
    mAlignH = knownH ? pH : ALIGN_RIGHT;
    mAlignV = knownV ? pV : ALIGN_BOTTOM;
}
