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
    mStreamIndex = 0;
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
        znCGraphicsVertex* vertices = streamsTake(sprites * CORNERS);
        if (!mStreamsKept)
            spriteStreamsWrite(vertices, sprites);
        mVertexStreams[index] = &vertices->mPosition;
        mUvStreams[index] = &vertices->mUv;
        mColourStreams[index] = &vertices->mColour;

        const znITexture* texture = mMaterials[index]->textureGet();
        znCGraphicsMaterial material;
        material.mTexture = texture != nullptr ? texture->graphicsTextureGet() : nullptr;
        material.mBlend = mMaterials[index]->alphaModeGet();
        znNGraphics::materialSet(material);
        znNGraphics::verticesSet(vertices);
        znNGraphics::quadsDraw(sprites * CORNERS);
    }
}

// The streams of the next draw call: in an unchanged frame those that it had in the frame before.
znCGraphicsVertex* znCRenderer::streamsTake(s32 pVertices)
{
    if (mStreamIndex == 0)
    {
        mStreamsKept = mUnchanged && mMemoryNumber == znNGraphics::frameMemoryNumberGet();
        znNGraphics::unchangedSet(mStreamsKept);
        if (!mStreamsKept)
        {
            znNGraphics::frameMemoryReset();
            mMemoryNumber = znNGraphics::frameMemoryNumberGet();
            mStreams.clear();
        }
    }
    if (!mStreamsKept)
        mStreams.push_back(znNGraphics::frameArrayTake<znCGraphicsVertex>(pVertices));
    return mStreams[mStreamIndex++];
}

void znCRenderer::spriteStreamsWrite(znCGraphicsVertex* pVertices, s32 pSprites)
{
    znISpriteRenderData* const* read = &mSprites[static_cast<std::size_t>(mSpriteReadIndex)];
    mSpriteReadIndex += pSprites;
    for (s32 i = 0; i < pSprites; ++i, pVertices += CORNERS)
    {
        const znCSpriteRenderData& sprite = *static_cast<const znCSpriteRenderData*>(read[i]);
        const znPointF* vertices = sprite.verticesGet();
        const znPointF* uvs = sprite.uvsGet();
        const u32 colour = sprite.colourGet();
        for (s32 corner = 0; corner < CORNERS; ++corner)
            pVertices[corner] = {vertices[corner], uvs[corner], colour};
    }
}

void znCRenderer::textDraw(s32 pFirst, s32 pLast)
{
    for (s32 run = pFirst; run <= pLast; ++run)
        for (s32 left = mFontTextCounts[static_cast<std::size_t>(run)]; left > 0; --left)
        {
            const znITextRenderData& text = *mTexts[static_cast<std::size_t>(mTextReadIndex)];
            ++mTextReadIndex;
            s32 index = 0;
            while (const znCGlyphRun* glyphs = text.glyphRunGet(index++))
            {
                const s32 count = glyphs->mGlyphCount * CORNERS;
                znCGraphicsVertex* vertices = streamsTake(count);
                for (s32 i = 0; i < count && !mStreamsKept; ++i)
                    vertices[i] = {glyphs->mVertices[i], glyphs->mUvs[i], glyphs->mMaterial.mColour};
                znNGraphics::materialSet(glyphs->mMaterial);
                znNGraphics::verticesSet(vertices);
                znNGraphics::quadsDraw(count);
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
