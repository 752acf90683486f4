#include "media/znCGraphicsText.h"

#include <algorithm>
#include <cmath>

#include "media/impl/znCFontLayer.h"
#include "zncore/debug/znIDebug.h"

namespace
{
constexpr s32 sCorners = 4;
constexpr s32 sSmallestSize = 6; // canvas units; what a text that doesn't fit its box may shrink to
constexpr s32 sReportBytes = 40; // of a text in the log

// The size at which a font's glyphs are drawn, in 1/64 of a device pixel.
u32 rasterSizeGet(const znCGraphicsFont& pFont, float pScale)
{
    constexpr long sMax = znCGraphicsFont::sSizeMax * 64L;
    return static_cast<u32>(std::clamp(std::lround(static_cast<float>(pFont.sizeGet()) * pScale * 64.0f), 64L, sMax));
}

// One line in a box that is a little low is how small buttons are made, and fits.
bool isTooHigh(const znCTextLayout& pLayout, s32 pBoxHeight)
{
    return pLayout.lineCountGet() > 1 && pLayout.heightGet() > static_cast<float>(pBoxHeight) + 1.0f;
}

// The start of a text, not cut inside a code point.
std::string startGet(const std::string& pText)
{
    std::size_t end = std::min<std::size_t>(pText.size(), sReportBytes);
    while (end > 0 && end < pText.size() && (static_cast<u8>(pText[end]) & 0xC0) == 0x80)
        --end;
    return pText.substr(0, end);
}
} // namespace

void znCGraphicsText::prepare(const znCGraphicsFont& pFont, const std::string& pText, s32 pBoxWidth, s32 pBoxHeight,
                              s32 pAlignH, s32 pAlignV)
{
    constexpr s32 sBoxMax = 1 << 20;
    mLaid.clear();
    mRects.clear();
    mStored.clear();
    mWidth = 0;
    mLineCount = 0;
    znCFontLayer* layer = znCFontLayer::instanceGet();
    if (layer == nullptr)
        return;
    const s32 width = std::clamp(pBoxWidth, 1, sBoxMax);
    const s32 height = std::clamp(pBoxHeight, 1, sBoxMax);
    mHalfWidth = width / 2;
    mHalfHeight = height / 2;
    layer->mLayout.textSet(pText);
    layer->mLayout.layOut(layer, pFont, width, height, pAlignH, pAlignV, false, &mLaid);
    const bool tooHigh = isTooHigh(layer->mLayout, height);
    if (tooHigh && !mTooHigh)
        ZN_LOG("A text of %d lines does not fit its box (%d,%d) and is shown smaller: \"%s\".\n",
               layer->mLayout.lineCountGet(), width, height, startGet(pText).c_str());
    mTooHigh = tooHigh;
    if (tooHigh)
        fit(pFont, width, height, pAlignH, pAlignV);
    else if (layer->mTextScale > 1.0f)
        enlarge(pFont, width, height, pAlignH, pAlignV);
    mWidth = static_cast<s32>(std::ceil(layer->mLayout.widthGet()));
    mLineCount = layer->mLayout.lineCountGet();
    place();
}

// To the largest size up to the text scale's at which the text, which fits as it is, fits too.
void znCGraphicsText::enlarge(const znCGraphicsFont& pFont, s32 pBoxWidth, s32 pBoxHeight, s32 pAlignH, s32 pAlignV)
{
    znCFontLayer& layer = *znCFontLayer::instanceGet();
    const bool oneLine = layer.mLayout.lineCountGet() == 1;
    const float height = std::max(static_cast<float>(pBoxHeight), layer.mLayout.heightGet());
    s32 size = static_cast<s32>(std::lround(static_cast<float>(pFont.sizeGet()) * layer.mTextScale));
    for (; size > pFont.sizeGet(); --size)
    {
        layer.mLayout.layOut(&layer, layer.sizedGet(pFont.faceGet(), size), pBoxWidth, pBoxHeight, pAlignH, pAlignV,
                             false, &mLaid);
        if (layer.mLayout.heightGet() <= height && (!oneLine || layer.mLayout.lineCountGet() == 1))
            return;
    }
    layer.mLayout.layOut(&layer, pFont, pBoxWidth, pBoxHeight, pAlignH, pAlignV, false, &mLaid);
}

// Halves the range of sizes until the largest one that fits is found.
void znCGraphicsText::fit(const znCGraphicsFont& pFont, s32 pBoxWidth, s32 pBoxHeight, s32 pAlignH, s32 pAlignV)
{
    znCFontLayer& layer = *znCFontLayer::instanceGet();
    s32 fitting = std::min(pFont.sizeGet(), std::max(sSmallestSize, pFont.sizeGet() / 4));
    s32 tooLarge = pFont.sizeGet();
    while (tooLarge - fitting > 1)
    {
        const s32 size = (fitting + tooLarge) / 2;
        layer.mLayout.layOut(&layer, layer.sizedGet(pFont.faceGet(), size), pBoxWidth, pBoxHeight, pAlignH, pAlignV,
                             false, &mLaid);
        (isTooHigh(layer.mLayout, pBoxHeight) ? tooLarge : fitting) = size;
    }
    layer.mLayout.layOut(&layer, layer.sizedGet(pFont.faceGet(), fitting), pBoxWidth, pBoxHeight, pAlignH, pAlignV,
                         true, &mLaid);
}

bool znCGraphicsText::refresh()
{
    znCFontLayer* layer = znCFontLayer::instanceGet();
    if (layer == nullptr)
        return false;
    if (mPlaceGeneration == layer->mStore.placeGenerationGet())
        return false;
    place();
    return true;
}

void znCGraphicsText::place()
{
    znCFontLayer& layer = *znCFontLayer::instanceGet();
    mPlaceGeneration = layer.mStore.placeGenerationGet();
    mRects.clear();
    mStored.clear();
    const float left = static_cast<float>(mHalfWidth);
    const float top = static_cast<float>(mHalfHeight);
    for (const znCLaidGlyph& laid : mLaid)
    {
        const u32 size = rasterSizeGet(*laid.mFont, layer.mDisplayScale);
        const s32 number = laid.mGlyph == 0 ? znCGlyphStore::sNoRoom
                                            : layer.mStore.glyphFind(laid.mFont->faceGet(), laid.mGlyph, size);
        if (number == znCGlyphStore::sNoRoom)
            continue;
        const znCGlyphStore::Entry& entry = layer.mStore.entryGet(number);
        if (entry.mWidth == 0)
            continue;
        // Whole device pixels away from the box's middle, where the node stands.
        const float scale = static_cast<float>(size) / (64.0f * static_cast<float>(laid.mFont->sizeGet()));
        const float x = std::floor((laid.mX - left) * scale + 0.5f) + static_cast<float>(entry.mLeft);
        const float y = std::floor((laid.mY - top) * scale + 0.5f) - static_cast<float>(entry.mTop);
        mRects.push_back({x / scale + left, y / scale + top, static_cast<float>(entry.mWidth) / scale,
                          static_cast<float>(entry.mHeight) / scale});
        mStored.push_back(number);
    }
    mUvs.resize(mRects.size() * sCorners);
    mUvGeneration = 0;
}

const znPointF* znCGraphicsText::uvsGet() const
{
    const znCFontLayer* layer = znCFontLayer::instanceGet();
    if (layer != nullptr && mPlaceGeneration == layer->mStore.placeGenerationGet() &&
        mUvGeneration != layer->mStore.uvGenerationGet())
        uvsWrite();
    return mUvs.data();
}

void znCGraphicsText::uvsWrite() const
{
    const znCGlyphStore& store = znCFontLayer::instanceGet()->mStore;
    mUvGeneration = store.uvGenerationGet();
    const float width = 1.0f / static_cast<float>(std::max(1, store.widthGet()));
    const float height = 1.0f / static_cast<float>(std::max(1, store.heightGet()));
    znPointF* uv = mUvs.data();
    for (const s32 number : mStored)
    {
        const znCGlyphStore::Entry& entry = store.entryGet(number);
        const float u0 = static_cast<float>(entry.mX) * width;
        const float u1 = static_cast<float>(entry.mX + entry.mWidth) * width;
        const float v0 = static_cast<float>(entry.mY) * height;
        const float v1 = static_cast<float>(entry.mY + entry.mHeight) * height;
        *uv++ = {u0, v0};
        *uv++ = {u0, v1};
        *uv++ = {u1, v1};
        *uv++ = {u1, v0};
    }
}
