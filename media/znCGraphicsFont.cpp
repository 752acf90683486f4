#include "media/znCGraphicsFont.h"

#include <algorithm>

#include "media/impl/znCFontLayer.h"

namespace
{
constexpr float sUnit = 1.0f / 64.0f;
}

znCGraphicsFont::~znCGraphicsFont()
{
    free();
}

void znCGraphicsFont::free()
{
    hb_font_destroy(mShaper);
    mShaper = nullptr;
    mFace = nullptr;
    mQuick.reset();
}

bool znCGraphicsFont::load(const znCResourceName& pName, s32 pSize)
{
    znCFontLayer* layer = znCFontLayer::instanceGet();
    return faceUse(layer != nullptr ? layer->faceGet(pName) : nullptr, pSize);
}

bool znCGraphicsFont::faceUse(znCFontFace* pFace, s32 pSize)
{
    free();
    mFace = pFace;
    mSize = std::clamp(pSize, 1, sSizeMax);
    const float size = static_cast<float>(mSize);
    mAscent = 0.8f * size;
    mDescent = 0.2f * size;
    mLineGap = 0.0f;
    if (mFace == nullptr || !mFace->isUsable())
        return false;

    mShaper = hb_font_create(mFace->shaperFaceGet());
    hb_font_set_scale(mShaper, mSize * 64, mSize * 64);
    for (u32 i = 0; i < sQuickCount; ++i)
        mQuick[i] = glyphLookUp(i);
    hb_font_extents_t extents;
    if (hb_font_get_h_extents(mShaper, &extents))
    {
        // A faulty table can hold anything; lines stay lines.
        mAscent = std::clamp(static_cast<float>(extents.ascender) * sUnit, 0.1f * size, 4.0f * size);
        mDescent = std::clamp(static_cast<float>(-extents.descender) * sUnit, 0.0f, 4.0f * size);
        mLineGap = std::clamp(static_cast<float>(extents.line_gap) * sUnit, 0.0f, 4.0f * size);
    }
    return true;
}

bool znCGraphicsFont::glyphLookUp(u32 pCodePoint) const
{
    hb_codepoint_t glyph = 0;
    return mShaper != nullptr && hb_font_get_nominal_glyph(mShaper, pCodePoint, &glyph) && glyph != 0;
}
