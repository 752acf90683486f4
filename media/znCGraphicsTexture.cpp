#include "media/znCGraphicsTexture.h"

#include <utility>

#include "media/impl/znNDrawTable.h"
#include "media/znNGraphics.h"
#include "zncore/debug/znIDebug.h"

namespace
{
// The table's number for a format as redFirstMake leaves it.
s32 tableFormatGet(znEImageFormat pFormat)
{
    switch (pFormat)
    {
    case ZN_IMAGE_ABGR_8888:
    case ZN_IMAGE_ARGB_8888:
        return S3E_DRAW_ABGR_8888;
    case ZN_IMAGE_ALPHA_8:
        return S3E_DRAW_ALPHA_8;
    default:
        return S3E_DRAW_RGB_888;
    }
}

// The device takes red first: swaps red and blue of the formats that have them the other way.
void redFirstMake(znCImage& pImage)
{
    const znEImageFormat format = pImage.formatGet();
    if (format != ZN_IMAGE_ARGB_8888 && format != ZN_IMAGE_BGR_888)
        return;
    const s32 step = znCImage::pixelBytesGet(format);
    for (s32 y = 0; y < pImage.heightGet(); ++y)
    {
        u8* pixel = pImage.pixelsGet() + static_cast<std::size_t>(y) * pImage.pitchGet();
        for (s32 x = 0; x < pImage.widthGet(); ++x, pixel += step)
            std::swap(pixel[0], pixel[2]);
    }
}
} // namespace

znCGraphicsTexture::~znCGraphicsTexture()
{
    free();
}

bool znCGraphicsTexture::upload(znCImage& pImage, const char* pName)
{
    free();
    if (pImage.pixelsGet() == nullptr)
        return false;
    mFormat = pImage.formatGet();
    mWidth = pImage.widthGet();
    mHeight = pImage.heightGet();
    const s3eDraw* table = znNDrawTable::get();
    if (table == nullptr)
        return true;

    pImage.alphaPremultiply();
    redFirstMake(pImage);
    if (pImage.scaleDown(table->textureSizeLimitGet()))
        ZN_LOG("Image %s is larger than the device takes (%d,%d). Shrunk to (%d,%d).\n", pName, mWidth, mHeight,
               pImage.widthGet(), pImage.heightGet());
    mId = table->textureCreate(tableFormatGet(mFormat), pImage.widthGet(), pImage.heightGet(), pImage.pixelsGet(),
                               pImage.pitchGet());
    if (mId == 0)
        ZN_LOG("The device refused the texture of image %s (%d,%d).\n", pName, mWidth, mHeight);
    return mId != 0;
}

bool znCGraphicsTexture::alpha8Upload(const u8* pTexels, s32 pWidth, s32 pHeight, s32 pPitch)
{
    free();
    if (pWidth < 1 || pHeight < 1)
        return false;
    mFormat = ZN_IMAGE_ALPHA_8;
    mWidth = pWidth;
    mHeight = pHeight;
    const s3eDraw* table = znNDrawTable::get();
    if (table == nullptr)
        return true;
    mId = table->textureCreate(S3E_DRAW_ALPHA_8, pWidth, pHeight, pTexels, pPitch);
    if (mId == 0)
        ZN_LOG("The device refused a texture of alpha values (%d,%d).\n", pWidth, pHeight);
    return mId != 0;
}

void znCGraphicsTexture::alpha8Update(s32 pX, s32 pY, s32 pWidth, s32 pHeight, const u8* pTexels, s32 pPitch)
{
    const s3eDraw* table = znNDrawTable::get();
    if (table == nullptr || mId == 0 || mFormat != ZN_IMAGE_ALPHA_8)
        return;
    if (pX < 0 || pY < 0 || pWidth < 1 || pHeight < 1 || pWidth > mWidth - pX || pHeight > mHeight - pY)
        return;
    table->textureUpdate(mId, pX, pY, pWidth, pHeight, pTexels, pPitch);
}

void znCGraphicsTexture::free()
{
    const s3eDraw* table = znNDrawTable::get();
    if (table != nullptr && mId != 0)
        table->textureFree(mId);
    mId = 0;
    mFormat = ZN_IMAGE_NONE;
    mWidth = 0;
    mHeight = 0;
}
