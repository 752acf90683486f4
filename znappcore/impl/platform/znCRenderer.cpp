#include "znappcore/impl/platform/znCRenderer.h"

#include "media/znNFonts.h"
#include "media/znNGraphics.h"
#include "znappcore/src/znCSpriteRenderData.h"
#include "znappcore/znITextRenderData.h"
#include "znappcore/znITexture.h"
#include "zncore/debug/znIDebug.h"

#include <cmath>
#include <cstring>

namespace
{
constexpr u32 OPAQUE_BLACK = 0xFF000000u;
constexpr s32 CORNERS = 4;

constexpr s32 LIGHT_NONE = 0x7FFFFFFF;
constexpr s32 SLOT_FREE = 0;
constexpr s32 SLOT_AMBIENT = 1;
constexpr s32 SLOT_DIRECTIONAL = 2;
} // namespace

znCRenderer::znCRenderer(s32 pMaxSprites, s32 pMaxMaterialChanges) : znIRenderer(pMaxSprites, pMaxMaterialChanges) {}

void znCRenderer::platformInitialise()
{
    znNFonts::initialise();
    const std::size_t runs = static_cast<std::size_t>(mMaxMaterialChanges);
    mVertexStreams = std::make_unique<znPointF*[]>(runs);
    mUvStreams = std::make_unique<znPointF*[]>(runs);
    mColourStreams = std::make_unique<u32*[]>(runs);
}

void znCRenderer::platformTerminate()
{
    znNFonts::terminate();
    mVertexStreams.reset();
    mUvStreams.reset();
    mColourStreams.reset();
}

void znCRenderer::screenClear()
{
    znNGraphics::clear(OPAQUE_BLACK);
}

void znCRenderer::readCursorsReset()
{
    mSpriteReadIndex = 0;
    mTextReadIndex = 0;
}

void znCRenderer::renderFlush()
{
    znNGraphics::flush();
}

void znCRenderer::buffersSwap()
{
    znNGraphics::present();
}

void znCRenderer::spritesDraw(s32 pFirst, s32 pLast)
{
    for (s32 run = pFirst; run <= pLast; ++run)
    {
        const std::size_t index = static_cast<std::size_t>(run);
        const s32 sprites = mMaterialSpriteCounts[index];
        spriteStreamsWrite(run, sprites);

        const znITexture* texture = mMaterials[index]->textureGet();
        znCGraphicsMaterial material;
        material.mTexture = texture != nullptr ? texture->graphicsTextureGet() : nullptr;
        material.mBlend = mMaterials[index]->alphaModeGet();
        znNGraphics::materialSet(material);
        znNGraphics::positionsSet(mVertexStreams[index]);
        znNGraphics::uvsSet(mUvStreams[index]);
        znNGraphics::coloursSet(mColourStreams[index]);
        znNGraphics::quadsDraw(sprites * CORNERS);
    }
}

void znCRenderer::spriteStreamsWrite(s32 pRun, s32 pSprites)
{
    const std::size_t index = static_cast<std::size_t>(pRun);
    znPointF* vertices = znNGraphics::frameArrayTake<znPointF>(pSprites * CORNERS);
    znPointF* uvs = znNGraphics::frameArrayTake<znPointF>(pSprites * CORNERS);
    u32* colours = znNGraphics::frameArrayTake<u32>(pSprites * CORNERS);
    mVertexStreams[index] = vertices;
    mUvStreams[index] = uvs;
    mColourStreams[index] = colours;

    znISpriteRenderData* const* read = &mSprites[static_cast<std::size_t>(mSpriteReadIndex)];
    mSpriteReadIndex += pSprites;
    for (s32 i = 0; i < pSprites; ++i, vertices += CORNERS, uvs += CORNERS, colours += CORNERS)
    {
        const znCSpriteRenderData& sprite = *static_cast<const znCSpriteRenderData*>(read[i]);
        std::memcpy(vertices, sprite.verticesGet(), sizeof(znPointF) * CORNERS);
        std::memcpy(uvs, sprite.uvsGet(), sizeof(znPointF) * CORNERS);
        const u32 colour = sprite.colourGet();
        colours[0] = colour;
        colours[1] = colour;
        colours[2] = colour;
        colours[3] = colour;
    }
}

void znCRenderer::textDraw(s32 pFirst, s32 pLast)
{
    znNGraphics::coloursSet(nullptr);
    for (s32 run = pFirst; run <= pLast; ++run)
        for (s32 left = mFontTextCounts[static_cast<std::size_t>(run)]; left > 0; --left)
        {
            const znITextRenderData& text = *mTexts[static_cast<std::size_t>(mTextReadIndex)];
            ++mTextReadIndex;
            s32 index = 0;
            while (const znCGlyphRun* glyphs = text.glyphRunGet(index++))
            {
                znNGraphics::materialSet(glyphs->mMaterial);
                znNGraphics::positionsSet(glyphs->mVertices);
                znNGraphics::uvsSet(glyphs->mUvs);
                znNGraphics::quadsDraw(glyphs->mGlyphCount * CORNERS);
            }
        }
}

void znCRenderer::perspectiveSet(float pNear, float pFar, float pFieldOfView)
{
    constexpr float UNITS_PER_METRE = 100.0f;
    constexpr float ASPECT = 1.7786459f; // 1366 x 768
    const float n = pNear * UNITS_PER_METRE;
    const float f = pFar * UNITS_PER_METRE;
    const float t = 1.0f / std::tan(pFieldOfView * 0.5f);
    std::memset(mPerspective, 0, sizeof mPerspective);
    mPerspective[0][0] = t / ASPECT;
    mPerspective[1][1] = t;
    mPerspective[2][2] = -f / (f - n);
    mPerspective[2][3] = -1.0f;
    mPerspective[3][2] = -f * n / (f - n);
}

s32 znCRenderer::unusedLightIndexGet() const
{
    if (mLights[0].mType == SLOT_FREE)
        return 0;
    ZN_ASSERT(mLights[1].mType == SLOT_FREE, "only 2 lights are supported.");
    return 1;
}

void znCRenderer::lightAdd(znCLight& pLight)
{
    pLight.mIndex = unusedLightIndexGet();
    LightSlot& slot = mLights[pLight.mIndex];
    slot.mType = pLight.mType == 0 ? SLOT_AMBIENT : SLOT_DIRECTIONAL;
    slot.mLight = pLight;
}

void znCRenderer::lightRemove(znCLight& pLight)
{
    if (pLight.mIndex == 0 || pLight.mIndex == 1)
        mLights[pLight.mIndex] = LightSlot();
    pLight.mIndex = LIGHT_NONE;
}
