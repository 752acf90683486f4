#ifndef MEDIA_ZNCIMAGE_H
#define MEDIA_ZNCIMAGE_H

// A decoded picture in main memory: rows of pixels from the top, each row pitchGet() bytes after the one before it.
//
// Owned by whoever makes it, moved but never copied: a picture may hold a quarter of a gigabyte. It is meant to live
// from loading to uploading (znCGraphicsTexture) and no longer. Files are hostile until read: the size is checked from
// the header, before any memory is taken for pixels, and whatever a file holds ends in a picture or in one log line.

#include <cstddef>
#include <memory>

#include "zncore/znTypes.h"

class znCResourceName;

// What a pixel is made of, in the order of its bytes. The decoders make ABGR_8888 and RGB_888.
enum znEImageFormat : s32
{
    ZN_IMAGE_NONE = 0,      // no picture
    ZN_IMAGE_ABGR_8888 = 1, // R, G, B, A
    ZN_IMAGE_ARGB_8888 = 2, // B, G, R, A
    ZN_IMAGE_RGB_888 = 3,   // R, G, B
    ZN_IMAGE_BGR_888 = 4,   // B, G, R
    ZN_IMAGE_ALPHA_8 = 5    // white of that alpha
};

class znCImage
{
public:
    static constexpr s32 sSideMax = 8192;               // pixels; the longest side that is decoded or created
    static constexpr s64 sPixelsMax = 64 * 1024 * 1024; // of a whole picture
    static constexpr s32 sDefaultSide = 64;             // of the picture that stands in for a faulty file

    znCImage() = default;
    znCImage(znCImage&& pOther) noexcept;
    znCImage& operator=(znCImage&& pOther) noexcept;

    // Reads and decodes a PNG or JPEG file; what it is shows in its first bytes, not in its name. When that fails, one
    // log line names the file and the reason, the picture becomes the default one (defaultMake), and the answer is
    // false.
    bool load(const znCResourceName& pName);

    // As load, from a file's bytes. A picture with transparency of any kind becomes ABGR_8888, without it RGB_888; 16
    // bits a channel are cut to 8. pName is used for the log alone.
    bool decode(const u8* pBytes, std::size_t pSize, const char* pName);

    // A checkerboard of magenta and black, RGB_888, sDefaultSide a side: nobody takes it for a part of the game.
    void defaultMake();

    // Takes memory for a picture and leaves its pixels unset. False, and no picture, when a side is below 1, a limit is
    // passed or memory is short.
    bool create(znEImageFormat pFormat, s32 pWidth, s32 pHeight);
    void free();

    // Multiplies the colours of a format with alpha by it, rounding to nearest. Once a picture: a second call darkens.
    void alphaPremultiply();

    // Shrinks the picture by averaging, in its own memory, until no side is longer than pSideMax; keeps the proportion.
    // The colours of transparent pixels count as much as others, so premultiply first. True if anything changed.
    bool scaleDown(s32 pSideMax);

    znEImageFormat formatGet() const { return mFormat; }
    bool hasAlpha() const { return mFormat == ZN_IMAGE_ABGR_8888 || mFormat == ZN_IMAGE_ARGB_8888; }
    s32 widthGet() const { return mWidth; }
    s32 heightGet() const { return mHeight; }
    s32 pitchGet() const { return mPitch; }               // bytes from one row to the next
    const u8* pixelsGet() const { return mPixels.get(); } // null without a picture
    u8* pixelsGet() { return mPixels.get(); }

    // Bytes of a pixel; 0 for ZN_IMAGE_NONE.
    static s32 pixelBytesGet(znEImageFormat pFormat);

private:
    // Writes the one log line and makes the default picture.
    void failureReport(const char* pName, const char* pReason);

    std::unique_ptr<u8[]> mPixels;
    znEImageFormat mFormat = ZN_IMAGE_NONE;
    s32 mWidth = 0;
    s32 mHeight = 0;
    s32 mPitch = 0;
};

#endif
