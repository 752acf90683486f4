#ifndef ZNAPPCORE_ZNITEXTURE_H
#define ZNAPPCORE_ZNITEXTURE_H

#include "zncore/znPoint.h"
#include "zncore/znTypes.h"

#include <boost/shared_ptr.hpp>
#include <memory>

class znCGraphicsTexture;
class znCResourceName;
class znITexture;

// The last holder frees the texture: brushes hold theirs, materials only point at it.
using znITexturePtr = boost::shared_ptr<znITexture>;

// A picture in video memory, and optionally its hit map: one bit for each pixel, set where alpha isn't 0. The pixels
// themselves leave main memory at the upload, so the hit map is made before that.
class znITexture
{
public:
    // The texture of an image file. A faulty file gives the media layer's default picture and one log line.
    static znITexturePtr textureCreate(const znCResourceName& pName, bool pHitMap);

    // The hit map of a rectangle as one byte a pixel, 255 hit and 0 not, in rows of *pTexWidth. The sizes stored are
    // the smallest of 16, 32, 64, ... that hold the rectangle; bytes beyond it are 0. A source without hit map logs
    // "Source texture does not have a hitmap.\n" and gives zeros. Parts outside the source are 0.
    static std::unique_ptr<u8[]> alpha8TexDataGet(const znITexturePtr& pSource, s32 pX, s32 pY, s32 pWidth, s32 pHeight,
                                                  s32* pTexWidth, s32* pTexHeight);
    // A texture of that data: white where the source is hit. widthGet and heightGet are the rectangle's.
    static znITexturePtr alpha8TextureCreate(const znITexturePtr& pSource, s32 pX, s32 pY, s32 pWidth, s32 pHeight);

    // Size in pixels of the image.
    virtual s32 widthGet() const = 0;
    virtual s32 heightGet() const = 0;
    // What UVs are parts of. Larger than the size for alpha8 textures, which are padded.
    virtual s32 gpuWidthGet() const = 0;
    virtual s32 gpuHeightGet() const = 0;
    // Whether the uploaded texture has an alpha channel.
    virtual bool hasAlpha() const = 0;
    virtual ~znITexture() = default;

protected:
    // The four steps of making one, in this order: imageLoad, hitMapBuild if wanted, vramUpload; or alpha8Upload.
    // False if the picture is the default one.
    virtual bool imageLoad(const znCResourceName& pName) = 0;
    virtual void vramUpload() = 0;

public:
    // Alpha of a pixel, 0 to 255; 255 for formats without it. Only before the upload: after it "Trying to read image
    // data after it has been uploaded to VRAM.\n" is logged and the answer is 255.
    virtual u8 alphaValueGet(s32 pX, s32 pY) const = 0;

protected:
    virtual void alpha8Upload(const u8* pData, s32 pWidth, s32 pHeight, s32 pTexWidth, s32 pTexHeight) = 0;
    // Sets the bits of all pixels whose alpha isn't 0 in zeroed bytes: pixel (x, y) is bit (i & 7), lowest first, of
    // byte (i >> 3), with i = width * y + x.
    virtual void hitBitsFill(u8* pBits) const = 0;

public:
    // What the renderer draws with; null before the upload.
    virtual const znCGraphicsTexture* graphicsTextureGet() const = 0;

    void hitMapBuild();
    bool hasHitMap() const { return mHitBits != nullptr; }
    // Whether the pixel is hit. False with a log line without a hit map or outside the texture.
    bool hitTest(const znPoint& pPoint) const;
    // Whether the file was faulty and the default picture stands in for it.
    bool isDefaultPicture() const { return mDefaultPicture; }

    znITexture(const znITexture&) = delete;
    znITexture& operator=(const znITexture&) = delete;

protected:
    znITexture() = default;

private:
    // Of a point inside, with the hit map there.
    bool hitBitGet(s32 pX, s32 pY, s32 pWidth) const;

    std::unique_ptr<u8[]> mHitBits;
    bool mDefaultPicture = false;
};

#endif
