#include "znappcore/znITexture.h"

#include "znappcore/impl/platform/znCTexture.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>

namespace
{
std::size_t hitBytesGet(s32 pWidth, s32 pHeight)
{
    return (static_cast<std::size_t>(pWidth) * static_cast<std::size_t>(pHeight) + 7) / 8;
}

s32 paddedSizeGet(s32 pSize)
{
    s32 size = 16;
    while (size < pSize)
        size *= 2;
    return size;
}

// The part of pSize pixels from pStart on that lies in 0 to pLimit: first and behind the last, counted from pStart.
struct Part
{
    s32 mBegin;
    s32 mEnd;
};

Part partInsideGet(s32 pStart, s32 pSize, s32 pLimit)
{
    const s64 begin = std::clamp<s64>(-static_cast<s64>(pStart), 0, pSize);
    const s64 end = std::clamp<s64>(static_cast<s64>(pLimit) - pStart, begin, pSize);
    return {static_cast<s32>(begin), static_cast<s32>(end)};
}
} // namespace

znITexturePtr znITexture::textureCreate(const znCResourceName& pName, bool pHitMap)
{
    const znITexturePtr texture(new znCTexture());
    texture->mDefaultPicture = !texture->imageLoad(pName);
    if (pHitMap)
        texture->hitMapBuild();
    texture->vramUpload();
    return texture;
}

void znITexture::hitMapBuild()
{
    mHitBits = std::make_unique<u8[]>(hitBytesGet(widthGet(), heightGet()));
    hitBitsFill(mHitBits.get());
}

bool znITexture::hitBitGet(s32 pX, s32 pY, s32 pWidth) const
{
    const std::size_t i =
        static_cast<std::size_t>(pWidth) * static_cast<std::size_t>(pY) + static_cast<std::size_t>(pX);
    return (mHitBits[i >> 3] >> (i & 7) & 1) != 0;
}

bool znITexture::hitTest(const znPoint& pPoint) const
{
    ZN_ASSERT(hasHitMap(), "Attempting to perform a hit text on a znITexture that does not have a hit map.\n");
    if (!hasHitMap())
        return false;
    const s32 width = widthGet();
    const bool inside = pPoint.mX >= 0 && pPoint.mY >= 0 && pPoint.mX < width && pPoint.mY < heightGet();
    ZN_ASSERT(inside, "Attempting to test a hit point outside the bounds of the texture.\n");
    return inside && hitBitGet(pPoint.mX, pPoint.mY, width);
}

std::unique_ptr<u8[]> znITexture::alpha8TexDataGet(const znITexturePtr& pSource, s32 pX, s32 pY, s32 pWidth,
                                                   s32 pHeight, s32* pTexWidth, s32* pTexHeight)
{
    const s32 width = std::clamp(pWidth, 0, znCImage::sSideMax);
    const s32 height = std::clamp(pHeight, 0, znCImage::sSideMax);
    *pTexWidth = paddedSizeGet(width);
    *pTexHeight = paddedSizeGet(height);
    const std::size_t rowBytes = static_cast<std::size_t>(*pTexWidth);
    auto data = std::make_unique<u8[]>(rowBytes * static_cast<std::size_t>(*pTexHeight));

    const bool source = pSource != nullptr && pSource->hasHitMap();
    ZN_ASSERT(source, "Source texture does not have a hitmap.\n");
    if (!source)
        return data;
    const s32 sourceWidth = pSource->widthGet();
    const Part columns = partInsideGet(pX, width, sourceWidth);
    const Part rows = partInsideGet(pY, height, pSource->heightGet());
    for (s32 y = rows.mBegin; y < rows.mEnd; ++y)
    {
        u8* row = data.get() + rowBytes * static_cast<std::size_t>(y);
        for (s32 x = columns.mBegin; x < columns.mEnd; ++x)
            row[x] = pSource->hitBitGet(pX + x, pY + y, sourceWidth) ? 255 : 0;
    }
    return data;
}

znITexturePtr znITexture::alpha8TextureCreate(const znITexturePtr& pSource, s32 pX, s32 pY, s32 pWidth, s32 pHeight)
{
    s32 texWidth = 0;
    s32 texHeight = 0;
    const std::unique_ptr<u8[]> data = alpha8TexDataGet(pSource, pX, pY, pWidth, pHeight, &texWidth, &texHeight);
    const znITexturePtr texture(new znCTexture());
    texture->alpha8Upload(data.get(), std::clamp(pWidth, 0, texWidth), std::clamp(pHeight, 0, texHeight), texWidth,
                          texHeight);
    return texture;
}
