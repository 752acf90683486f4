#include "media/znNFonts.h"

#include <algorithm>
#include <memory>

#include "media/impl/znCFontLayer.h"
#include "zncore/debug/znIDebug.h"

namespace
{
constexpr float sScaleMin = 1.0f / 16.0f;
constexpr float sScaleMax = 16.0f;

std::unique_ptr<znCFontLayer> sLayer;
float sTextScale = 1.0f; // outlives the layer that it is for: a player's size is known before there are fonts
} // namespace

znCFontLayer::znCFontLayer()
{
    if (FT_Init_FreeType(&mLibrary) != 0)
    {
        mLibrary = nullptr;
        ZN_LOG("The font library could not be started.\n");
    }
}

znCFontLayer::~znCFontLayer()
{
    mSized.clear();
    mFaces.clear();
    if (mLibrary != nullptr)
        FT_Done_FreeType(mLibrary);
}

znCFontLayer* znCFontLayer::instanceGet()
{
    return sLayer.get();
}

znCFontFace* znCFontLayer::faceGet(const znCResourceName& pName)
{
    std::unique_ptr<znCFontFace>& face = mFaces[pName.nameGet()];
    if (face == nullptr)
        face = std::make_unique<znCFontFace>(mLibrary, pName, static_cast<s32>(mFaces.size()));
    return face.get();
}

void znCFontLayer::fallbackAdd(const znCResourceName& pName)
{
    mFallbackNames.push_back(pName);
    mFallbackFaces.push_back(nullptr);
}

const znCGraphicsFont* znCFontLayer::fallbackGet(s32 pIndex, s32 pSize)
{
    const auto index = static_cast<std::size_t>(pIndex);
    if (index >= mFallbackNames.size())
        return nullptr;
    if (mFallbackFaces[index] == nullptr)
        mFallbackFaces[index] = faceGet(mFallbackNames[index]);
    return &sizedGet(mFallbackFaces[index], pSize);
}

const znCGraphicsFont& znCFontLayer::sizedGet(znCFontFace* pFace, s32 pSize)
{
    std::unique_ptr<znCGraphicsFont>& font = mSized[{pFace, pSize}];
    if (font == nullptr)
    {
        font = std::make_unique<znCGraphicsFont>();
        font->faceUse(pFace, pSize);
    }
    return *font;
}

void znNFonts::initialise()
{
    sLayer = std::make_unique<znCFontLayer>();
    sLayer->mTextScale = sTextScale;
}

void znNFonts::terminate()
{
    sLayer.reset();
    sTextScale = 1.0f;
}

void znNFonts::fallbackAdd(const znCResourceName& pName)
{
    if (sLayer != nullptr)
        sLayer->fallbackAdd(pName);
}

void znNFonts::frameBegin(float pDisplayScale)
{
    if (sLayer == nullptr)
        return;
    // The comparison is false for a number that is none.
    const float scale = pDisplayScale > 0.0f ? std::clamp(pDisplayScale, sScaleMin, sScaleMax) : sLayer->mDisplayScale;
    if (scale == sLayer->mDisplayScale && !sLayer->mStore.isFull())
        return;
    sLayer->mDisplayScale = scale;
    sLayer->mStore.reset();
}

float znNFonts::displayScaleGet()
{
    return sLayer != nullptr ? sLayer->mDisplayScale : 1.0f;
}

void znNFonts::textScaleSet(float pScale)
{
    sTextScale = pScale > 1.0f ? std::min(pScale, TEXT_SCALE_MAX) : 1.0f;
    if (sLayer != nullptr)
        sLayer->mTextScale = sTextScale;
}

float znNFonts::textScaleGet()
{
    return sTextScale;
}

u32 znNFonts::glyphUvGenerationGet()
{
    return sLayer != nullptr ? sLayer->mStore.uvGenerationGet() : 0;
}

const znCGraphicsTexture* znNFonts::glyphTextureGet()
{
    return sLayer != nullptr ? sLayer->mStore.textureGet() : nullptr;
}

s32 znNFonts::glyphsRasterisedGet()
{
    return sLayer != nullptr ? sLayer->mStore.rasterisedCountGet() : 0;
}
