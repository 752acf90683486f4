#ifndef MEDIA_IMPL_ZNCGLYPHSTORE_H
#define MEDIA_IMPL_ZNCGLYPHSTORE_H

// Every glyph that was ever drawn, once for each face and size in pixels, in one texture. The texture starts small and
// doubles when it is full. At its largest, a glyph that finds no room is left out until the owner
// resets the store at the start of a frame; it then fills with what is in use.

#include <memory>
#include <unordered_map>
#include <vector>

#include "media/znCGraphicsTexture.h"
#include "zncore/znTypes.h"

class znCFontFace;

class znCGlyphStore
{
public:
    static constexpr u32 sBoxGlyph = 0xFFFFFFFFu; // the empty box that stands for a missing glyph
    static constexpr s32 sNoRoom = -1;

    // Texels, and where they go around the pen in device pixels.
    struct Entry
    {
        s32 mX = 0;
        s32 mY = 0;
        s32 mWidth = 0; // 0: nothing shows
        s32 mHeight = 0;
        s32 mLeft = 0;
        s32 mTop = 0; // above the baseline
    };

    // The number of a glyph, drawn now if it is new; sNoRoom. pFace may be null for the box. pSize: of the em square in
    // 1/64 pixel.
    s32 glyphFind(znCFontFace* pFace, u32 pGlyph, u32 pSize);
    const Entry& entryGet(s32 pNumber) const { return mEntries[static_cast<std::size_t>(pNumber)]; }

    // Forgets all glyphs.
    void reset();

    // Changes with each reset: numbers are then of no use.
    u32 placeGenerationGet() const { return mPlaceGeneration; }
    // Changes with each reset and each growth: UVs are then of no use.
    u32 uvGenerationGet() const { return mUvGeneration; }
    // A glyph was left out since the last reset.
    bool isFull() const { return mFull; }

    const znCGraphicsTexture* textureGet() const { return mTexture.get(); }
    s32 widthGet() const { return mWidth; }
    s32 heightGet() const { return mHeight; }
    s32 rasterisedCountGet() const { return mRasterisedCount; }

private:
    static constexpr s32 sSideStart = 512;
    static constexpr s32 sSideMax = 4096;
    static constexpr s32 sGap = 1; // empty texels around each glyph, so that filtering meets no neighbour

    // A row of glyphs of about one height.
    struct Shelf
    {
        s32 mY;
        s32 mHeight;
        s32 mUsed; // from the left
    };

    struct KeyHash
    {
        std::size_t operator()(u64 pKey) const { return static_cast<std::size_t>(pKey * 0x9E3779B97F4A7C15u >> 16); }
    };

    s32 entryAdd(const u8* pPixels, s32 pPitch, Entry pEntry);
    bool areaTake(s32 pWidth, s32 pHeight, s32* pX, s32* pY);
    bool shelfTake(Shelf* pShelf, s32 pWidth, s32* pX, s32* pY) const;
    bool grow();
    void textureRenew();
    void texelsCopy(const u8* pPixels, s32 pPitch, const Entry& pEntry);
    s32 boxDraw(u32 pSize);

    std::unordered_map<u64, s32, KeyHash> mNumbers; // by face, size and glyph
    std::vector<Entry> mEntries;
    std::vector<Shelf> mShelves;
    std::vector<u8> mTexels; // what the texture holds
    std::unique_ptr<znCGraphicsTexture> mTexture;
    // Textures that runs of this frame may still be drawn from, freed in a later one.
    std::vector<std::unique_ptr<znCGraphicsTexture>> mRetired;
    u32 mRetiredFrame = 0;
    bool mFull = false;
    bool mFullLogged = false;
    s32 mWidth = 0;
    s32 mHeight = 0;
    u32 mPlaceGeneration = 1;
    u32 mUvGeneration = 1;
    s32 mRasterisedCount = 0;
};

#endif
