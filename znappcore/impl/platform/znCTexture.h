#ifndef ZNAPPCORE_IMPL_PLATFORM_ZNCTEXTURE_H
#define ZNAPPCORE_IMPL_PLATFORM_ZNCTEXTURE_H

#include "media/znCGraphicsTexture.h"
#include "media/znCImage.h"
#include "znappcore/znITexture.h"

#include <string>

// A texture on the media layer.
class znCTexture final : public znITexture
{
public:
    s32 widthGet() const override { return mWidth; }
    s32 heightGet() const override { return mHeight; }
    s32 gpuWidthGet() const override;
    s32 gpuHeightGet() const override;
    bool hasAlpha() const override;
    u8 alphaValueGet(s32 pX, s32 pY) const override;
    const znCGraphicsTexture* graphicsTextureGet() const override { return mGxTexture.get(); }

protected:
    bool imageLoad(const znCResourceName& pName) override;
    void vramUpload() override;
    void alpha8Upload(const u8* pData, s32 pWidth, s32 pHeight, s32 pTexWidth, s32 pTexHeight) override;
    void hitBitsFill(u8* pBits) const override;

private:
    std::unique_ptr<znCGraphicsTexture> mGxTexture; // null before the upload
    std::unique_ptr<znCImage> mImage;               // null after the upload
    s32 mWidth = 0;
    s32 mHeight = 0;
    std::string mName; // for the log, until the upload
};

#endif
