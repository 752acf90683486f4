#include "media/znCImage.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string>
#include <utility>

#include "media/impl/znNJpegDecoder.h"
#include "media/impl/znNPngDecoder.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"

namespace
{
constexpr s32 sFileBytesMax = 256 * 1024 * 1024;
constexpr s32 sDefaultSquare = 8; // pixels a side of the squares of the default picture

// A pixel's four bytes at once, alpha in the top one: two products of two channels each.
u32 pixelPremultiply(u32 pPixel)
{
    const u32 alpha = pPixel >> 24;
    u32 even = (pPixel & 0x00FF00FFu) * alpha + 0x00800080u;
    u32 odd = (((pPixel >> 8) & 0x000000FFu) | 0x00FF0000u) * alpha + 0x00800080u;
    even = ((even + ((even >> 8) & 0x00FF00FFu)) >> 8) & 0x00FF00FFu;
    odd = (odd + ((odd >> 8) & 0x00FF00FFu)) & 0xFF00FF00u;
    return even | odd;
}

void rowPremultiply(u8* pRow, s32 pWidth)
{
    for (s32 x = 0; x < pWidth; ++x)
    {
        u32 pixel;
        std::memcpy(&pixel, pRow + 4 * x, 4);
        pixel = pixelPremultiply(pixel);
        std::memcpy(pRow + 4 * x, &pixel, 4);
    }
}

// The bytes of a file; null with the reason in *pReason.
std::unique_ptr<u8[]> fileRead(const znCResourceName& pName, s32* pSize, const char** pReason)
{
    *pSize = znIFile::sizeGet(pName);
    *pReason = *pSize < 0 ? "no such file" : "a file too large";
    if (*pSize < 0 || *pSize > sFileBytesMax)
        return nullptr;
    *pReason = "reading failed";
    std::unique_ptr<u8[]> bytes(new (std::nothrow) u8[static_cast<std::size_t>(*pSize)]);
    const boost::shared_ptr<znIFile> file = znIFile::create();
    if (bytes == nullptr || !file->open(pName, znIFile::MODE_READ) ||
        !file->read(bytes.get(), static_cast<u32>(*pSize)))
        return nullptr;
    return bytes;
}

// Average of one channel over the rectangle of pWidth x pHeight pixels at pTopLeft.
u8 channelAverage(const u8* pTopLeft, s32 pWidth, s32 pHeight, s32 pStep, std::size_t pPitch)
{
    u32 sum = 0;
    for (s32 y = 0; y < pHeight; ++y)
        for (s32 x = 0; x < pWidth; ++x)
            sum += pTopLeft[pPitch * static_cast<std::size_t>(y) + static_cast<std::size_t>(x * pStep)];
    const u32 count = static_cast<u32>(pWidth * pHeight);
    return static_cast<u8>((sum + count / 2) / count);
}
} // namespace

znCImage::znCImage(znCImage&& pOther) noexcept
{
    *this = std::move(pOther);
}

znCImage& znCImage::operator=(znCImage&& pOther) noexcept
{
    mPixels = std::move(pOther.mPixels);
    mFormat = std::exchange(pOther.mFormat, ZN_IMAGE_NONE);
    mWidth = std::exchange(pOther.mWidth, 0);
    mHeight = std::exchange(pOther.mHeight, 0);
    mPitch = std::exchange(pOther.mPitch, 0);
    return *this;
}

s32 znCImage::pixelBytesGet(znEImageFormat pFormat)
{
    static constexpr s32 sBytes[] = {0, 4, 4, 3, 3, 1};
    return sBytes[pFormat];
}

bool znCImage::create(znEImageFormat pFormat, s32 pWidth, s32 pHeight)
{
    free();
    const s32 pixelBytes = pixelBytesGet(pFormat);
    if (pixelBytes == 0 || pWidth < 1 || pHeight < 1 || pWidth > sSideMax || pHeight > sSideMax ||
        static_cast<s64>(pWidth) * pHeight > sPixelsMax)
        return false;
    const s32 pitch = pWidth * pixelBytes;
    mPixels.reset(new (std::nothrow) u8[static_cast<std::size_t>(pitch) * static_cast<std::size_t>(pHeight)]);
    if (mPixels == nullptr)
        return false;
    mFormat = pFormat;
    mWidth = pWidth;
    mHeight = pHeight;
    mPitch = pitch;
    return true;
}

void znCImage::free()
{
    *this = znCImage();
}

void znCImage::defaultMake()
{
    if (!create(ZN_IMAGE_RGB_888, sDefaultSide, sDefaultSide))
        return;
    for (s32 i = 0; i < sDefaultSide * sDefaultSide; ++i)
    {
        const bool black = ((i % sDefaultSide / sDefaultSquare) + (i / sDefaultSide / sDefaultSquare)) % 2 != 0;
        u8* pixel = mPixels.get() + 3 * i;
        pixel[0] = black ? 0 : 255;
        pixel[1] = 0;
        pixel[2] = black ? 0 : 255;
    }
}

bool znCImage::load(const znCResourceName& pName)
{
    s32 size = 0;
    const char* reason = nullptr;
    const std::unique_ptr<u8[]> bytes = fileRead(pName, &size, &reason);
    if (bytes != nullptr)
        return decode(bytes.get(), static_cast<std::size_t>(size), pName.nameGet().c_str());
    failureReport(pName.nameGet().c_str(), reason);
    return false;
}

bool znCImage::decode(const u8* pBytes, std::size_t pSize, const char* pName)
{
    std::string reason = "neither PNG nor JPEG";
    if (znNPngDecoder::isPng(pBytes, pSize) && znNPngDecoder::decode(pBytes, pSize, this, &reason))
        return true;
    if (znNJpegDecoder::isJpeg(pBytes, pSize) && znNJpegDecoder::decode(pBytes, pSize, this, &reason))
        return true;
    failureReport(pName, reason.c_str());
    return false;
}

void znCImage::failureReport(const char* pName, const char* pReason)
{
    ZN_LOG("Image %s could not be read (%s).\n", pName, pReason);
    defaultMake();
}

void znCImage::alphaPremultiply()
{
    if (!hasAlpha())
        return;
    for (s32 y = 0; y < mHeight; ++y)
        rowPremultiply(mPixels.get() + static_cast<std::size_t>(y) * static_cast<std::size_t>(mPitch), mWidth);
}

bool znCImage::scaleDown(s32 pSideMax)
{
    const s32 longest = std::max(mWidth, mHeight);
    if (pSideMax < 1 || longest <= pSideMax)
        return false;
    const s32 step = pixelBytesGet(mFormat);
    const s32 width = std::max(1, static_cast<s32>(static_cast<s64>(mWidth) * pSideMax / longest));
    const s32 height = std::max(1, static_cast<s32>(static_cast<s64>(mHeight) * pSideMax / longest));
    const auto pitch = static_cast<std::size_t>(mPitch);
    // A written pixel never lies behind the next one to be read, so the same memory serves both.
    u8* target = mPixels.get();
    for (s32 y = 0; y < height; ++y)
    {
        const s32 top = static_cast<s32>(static_cast<s64>(y) * mHeight / height);
        const s32 bottom = static_cast<s32>(static_cast<s64>(y + 1) * mHeight / height);
        for (s32 x = 0; x < width; ++x)
        {
            const s32 left = static_cast<s32>(static_cast<s64>(x) * mWidth / width);
            const s32 right = static_cast<s32>(static_cast<s64>(x + 1) * mWidth / width);
            const u8* source =
                mPixels.get() + pitch * static_cast<std::size_t>(top) + static_cast<std::size_t>(left * step);
            for (s32 channel = 0; channel < step; ++channel)
                *target++ = channelAverage(source + channel, right - left, bottom - top, step, pitch);
        }
    }
    mWidth = width;
    mHeight = height;
    mPitch = width * step;
    return true;
}
