#ifndef MEDIA_ZNCGRAPHICSTEXTURE_H
#define MEDIA_ZNCGRAPHICSTEXTURE_H

// One texture of the drawing table: owns it from upload to destruction. Neither copied nor moved, so that materials may
// point at it. Without a drawing table everything works but the picture: sizes and formats are kept, the id is 0.

#include "media/znCImage.h"
#include "zncore/znTypes.h"

class znCGraphicsTexture
{
public:
    znCGraphicsTexture() = default;
    ~znCGraphicsTexture();
    znCGraphicsTexture(const znCGraphicsTexture&) = delete;
    znCGraphicsTexture& operator=(const znCGraphicsTexture&) = delete;

    // Uploads a picture of any format and replaces what was here. The picture's pixels are used up: they are multiplied
    // by alpha, and shrunk with a log line when they are larger than the device takes, all in place; pName is for that
    // line. The caller frees the picture. False with a log line when the device refuses it.
    bool upload(znCImage& pImage, const char* pName);

    // Uploads one byte a texel: 255 shows as opaque white, 0 as nothing. pTexels null: all 0. pPitch in bytes.
    bool alpha8Upload(const u8* pTexels, s32 pWidth, s32 pHeight, s32 pPitch);

    // Replaces a rectangle of a texture made by alpha8Upload; one outside the texture is ignored.
    void alpha8Update(s32 pX, s32 pY, s32 pWidth, s32 pHeight, const u8* pTexels, s32 pPitch);

    void free();

    // The size as it was asked for. UVs are parts of this size, also when the device holds fewer texels.
    s32 widthGet() const { return mWidth; }
    s32 heightGet() const { return mHeight; }
    // The format as it was asked for; ZN_IMAGE_NONE before upload.
    znEImageFormat formatGet() const { return mFormat; }
    // True for ABGR_8888 and ARGB_8888.
    bool hasAlpha() const { return mFormat == ZN_IMAGE_ABGR_8888 || mFormat == ZN_IMAGE_ARGB_8888; }
    // The drawing table's number; 0 before upload, after a refused one and without a drawing table.
    u32 idGet() const { return mId; }

private:
    u32 mId = 0;
    znEImageFormat mFormat = ZN_IMAGE_NONE;
    s32 mWidth = 0;
    s32 mHeight = 0;
};

#endif
