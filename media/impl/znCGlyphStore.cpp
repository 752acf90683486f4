#include "media/impl/znCGlyphStore.h"

#include <algorithm>
#include <cstring>

#include "media/impl/znCFontFace.h"
#include "media/znNGraphics.h"
#include "zncore/debug/znIDebug.h"

s32 znCGlyphStore::glyphFind(znCFontFace* pFace, u32 pGlyph, u32 pSize)
{
    const u64 face = pFace != nullptr && pGlyph != sBoxGlyph ? static_cast<u64>(pFace->idGet()) + 1 : 0;
    const u64 key = face << 52 | static_cast<u64>(pSize) << 32 | pGlyph;
    const auto found = mNumbers.find(key);
    if (found != mNumbers.end())
        return found->second;
    s32 number;
    if (face == 0)
        number = boxDraw(pSize);
    else
    {
        const znCFontFace::Bitmap bitmap = pFace->glyphRasterise(pGlyph, pSize);
        number =
            entryAdd(bitmap.mPixels, bitmap.mPitch, {0, 0, bitmap.mWidth, bitmap.mHeight, bitmap.mLeft, bitmap.mTop});
    }
    if (number == sNoRoom)
        return sNoRoom;
    ++mRasterisedCount;
    mNumbers.emplace(key, number);
    return number;
}

// An outline of half the em square's width and seven tenths of its height.
s32 znCGlyphStore::boxDraw(u32 pSize)
{
    const s32 em = static_cast<s32>(pSize / 64);
    const s32 width = std::max(3, em / 2);
    const s32 height = std::max(3, em * 7 / 10);
    const s32 line = std::max(1, em / 16);
    std::vector<u8> pixels(static_cast<std::size_t>(width * height), 255);
    for (s32 y = line; y < height - line; ++y)
        for (s32 x = line; x < width - line; ++x)
            pixels[static_cast<std::size_t>(y * width + x)] = 0;
    return entryAdd(pixels.data(), width, {0, 0, width, height, std::max(1, em / 20), height});
}

s32 znCGlyphStore::entryAdd(const u8* pPixels, s32 pPitch, Entry pEntry)
{
    if (pPixels != nullptr && !areaTake(pEntry.mWidth, pEntry.mHeight, &pEntry.mX, &pEntry.mY))
    {
        if (!mFullLogged)
            ZN_LOG("The glyph texture is full (%d,%d).\n", mWidth, mHeight);
        mFull = true;
        mFullLogged = true;
        return sNoRoom;
    }
    if (pPixels != nullptr)
        texelsCopy(pPixels, pPitch, pEntry);
    mEntries.push_back(pEntry);
    return static_cast<s32>(mEntries.size()) - 1;
}

void znCGlyphStore::texelsCopy(const u8* pPixels, s32 pPitch, const Entry& pEntry)
{
    u8* target = mTexels.data() + static_cast<std::size_t>(pEntry.mY * mWidth + pEntry.mX);
    for (s32 y = 0; y < pEntry.mHeight; ++y)
        std::memcpy(target + static_cast<std::ptrdiff_t>(y) * mWidth, pPixels + static_cast<std::ptrdiff_t>(y) * pPitch,
                    static_cast<std::size_t>(pEntry.mWidth));
    mTexture->alpha8Update(pEntry.mX, pEntry.mY, pEntry.mWidth, pEntry.mHeight, target, mWidth);
}

bool znCGlyphStore::areaTake(s32 pWidth, s32 pHeight, s32* pX, s32* pY)
{
    const s32 width = pWidth + sGap;
    const s32 height = pHeight + sGap;
    do
    {
        // A shelf much higher than the glyph would waste its room.
        for (Shelf& shelf : mShelves)
            if (shelf.mHeight >= height && shelf.mHeight <= height + height / 4 + 2 && shelfTake(&shelf, width, pX, pY))
                return true;
        const s32 bottom = mShelves.empty() ? sGap : mShelves.back().mY + mShelves.back().mHeight;
        if (bottom + height <= mHeight && width + sGap <= mWidth)
        {
            mShelves.push_back({bottom, height, sGap});
            return shelfTake(&mShelves.back(), width, pX, pY);
        }
    } while (grow());
    // The last resort before there is no room: any shelf that is high enough.
    for (Shelf& shelf : mShelves)
        if (shelf.mHeight >= height && shelfTake(&shelf, width, pX, pY))
            return true;
    return false;
}

bool znCGlyphStore::shelfTake(Shelf* pShelf, s32 pWidth, s32* pX, s32* pY) const
{
    if (pShelf->mUsed + pWidth > mWidth)
        return false;
    *pX = pShelf->mUsed;
    *pY = pShelf->mY;
    pShelf->mUsed += pWidth;
    return true;
}

bool znCGlyphStore::grow()
{
    const s32 side = std::min(sSideMax, znNGraphics::textureSizeLimitGet());
    const s32 width = mWidth == 0 ? std::min(sSideStart, side) : mWidth <= mHeight ? mWidth * 2 : mWidth;
    const s32 height = mHeight == 0 ? std::min(sSideStart, side) : mWidth <= mHeight ? mHeight : mHeight * 2;
    if (width > side || height > side)
        return false;
    std::vector<u8> texels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (s32 y = 0; y < mHeight; ++y)
        std::memcpy(texels.data() + static_cast<std::ptrdiff_t>(y) * width,
                    mTexels.data() + static_cast<std::ptrdiff_t>(y) * mWidth, static_cast<std::size_t>(mWidth));
    mTexels = std::move(texels);
    mWidth = width;
    mHeight = height;
    textureRenew();
    return true;
}

void znCGlyphStore::textureRenew()
{
    if (mRetiredFrame != znNGraphics::frameNumberGet())
        mRetired.clear();
    mRetiredFrame = znNGraphics::frameNumberGet();
    if (mTexture != nullptr)
        mRetired.push_back(std::move(mTexture));
    mTexture = std::make_unique<znCGraphicsTexture>();
    mTexture->alpha8Upload(mTexels.data(), mWidth, mHeight, mWidth);
    ++mUvGeneration;
}

void znCGlyphStore::reset()
{
    mNumbers.clear();
    mEntries.clear();
    mShelves.clear();
    mFull = false;
    ++mPlaceGeneration;
    ++mUvGeneration;
    if (mTexture == nullptr)
        return;
    std::fill(mTexels.begin(), mTexels.end(), u8{0});
    textureRenew();
}
