#include "znappcore/impl/platform/znCTexture.h"

#include "znappcore/impl/platform/znNHitBits.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

s32 znCTexture::gpuWidthGet() const
{
    return mGxTexture != nullptr ? mGxTexture->widthGet() : mWidth;
}

s32 znCTexture::gpuHeightGet() const
{
    return mGxTexture != nullptr ? mGxTexture->heightGet() : mHeight;
}

bool znCTexture::hasAlpha() const
{
    return mGxTexture != nullptr && mGxTexture->hasAlpha();
}

bool znCTexture::imageLoad(const znCResourceName& pName)
{
    mName = pName.nameGet();
    mImage = std::make_unique<znCImage>();
    const bool loaded = mImage->load(pName);
    mWidth = mImage->widthGet();
    mHeight = mImage->heightGet();
    return loaded;
}

void znCTexture::vramUpload()
{
    if (mImage == nullptr)
        return;
    mGxTexture = std::make_unique<znCGraphicsTexture>();
    mGxTexture->upload(*mImage, mName.c_str());
    mImage.reset();
    mName.clear();
    mName.shrink_to_fit();
}

void znCTexture::alpha8Upload(const u8* pData, s32 pWidth, s32 pHeight, s32 pTexWidth, s32 pTexHeight)
{
    mGxTexture = std::make_unique<znCGraphicsTexture>();
    mGxTexture->alpha8Upload(pData, pTexWidth, pTexHeight, pTexWidth);
    mWidth = pWidth;
    mHeight = pHeight;
}

u8 znCTexture::alphaValueGet(s32 pX, s32 pY) const
{
    constexpr u8 OPAQUE = 255;
    ZN_ASSERT(mImage != nullptr, "Trying to read image data after it has been uploaded to VRAM.\n");
    if (mImage == nullptr)
        return OPAQUE;
    switch (mImage->formatGet())
    {
    case ZN_IMAGE_ABGR_8888:
        if (pX < 0 || pY < 0 || pX >= mWidth || pY >= mHeight)
            return 0;
        return mImage->pixelsGet()[static_cast<std::size_t>(pY) * static_cast<std::size_t>(mImage->pitchGet()) +
                                   static_cast<std::size_t>(pX) * 4 + 3];
    case ZN_IMAGE_RGB_888:
    case ZN_IMAGE_BGR_888:
        return OPAQUE;
    default:
        ZN_ASSERT(false, "Unhandled image format (%d). Not returning default value.\n", mImage->formatGet());
        return OPAQUE;
    }
}

// Gives what alphaValueGet would give, pixel by pixel, in a fraction of the time.
void znCTexture::hitBitsFill(u8* pBits) const
{
    const std::size_t width = static_cast<std::size_t>(mWidth);
    const std::size_t height = static_cast<std::size_t>(mHeight);
    if (mImage == nullptr || mImage->formatGet() != ZN_IMAGE_ABGR_8888)
    {
        if (width > 0 && height > 0 && alphaValueGet(0, 0) != 0)
            znNHitBits::bitsSet(pBits, 0, width * height);
        return;
    }
    const std::size_t pitch = static_cast<std::size_t>(mImage->pitchGet());
    const u8* pixels = mImage->pixelsGet();
    if (pitch == width * 4)
        znNHitBits::alphaBitsSet(pBits, 0, pixels, width * height);
    else
        for (std::size_t y = 0; y < height; ++y)
            znNHitBits::alphaBitsSet(pBits, y * width, pixels + y * pitch, width);
}
