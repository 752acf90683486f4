#include "tools/author/znNPng.h"

#include "media/znCImage.h"

#include <spng.h>

#include <algorithm>
#include <cstdio>
#include <memory>

znSPicture::znSPicture(s32 pWidth, s32 pHeight)
    : mWidth(pWidth), mHeight(pHeight),
      mPixels(static_cast<std::size_t>(pWidth) * static_cast<std::size_t>(pHeight) * 4)
{
}

bool znNPng::decode(const std::string& pBytes, const std::string& pName, znSPicture& pPicture)
{
    znCImage image;
    if (!image.decode(reinterpret_cast<const u8*>(pBytes.data()), pBytes.size(), pName.c_str()))
        return false;
    pPicture = znSPicture(image.widthGet(), image.heightGet());
    const s32 bytes = znCImage::pixelBytesGet(image.formatGet());
    for (s32 y = 0; y < pPicture.mHeight; ++y)
        for (s32 x = 0; x < pPicture.mWidth; ++x)
        {
            const u8* pixel = image.pixelsGet() + static_cast<std::ptrdiff_t>(y) * image.pitchGet() + bytes * x;
            std::copy(pixel, pixel + 3, pPicture.at(x, y));
            pPicture.at(x, y)[3] = image.hasAlpha() ? pixel[3] : 255;
        }
    return true;
}

znSPicture znNPng::areaGet(const znSPicture& pPicture, s32 pX, s32 pY, s32 pWidth, s32 pHeight)
{
    znSPicture area(pWidth, pHeight);
    for (s32 y = 0; y < pHeight; ++y)
        std::copy_n(pPicture.at(pX, pY + y), 4 * static_cast<std::size_t>(pWidth), area.at(0, y));
    return area;
}

bool znNPng::write(const std::filesystem::path& pFile, const znSPicture& pPicture)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(pFile.c_str(), "wb"), std::fclose);
    const std::unique_ptr<spng_ctx, void (*)(spng_ctx*)> png(spng_ctx_new(SPNG_CTX_ENCODER), spng_ctx_free);
    if (file == nullptr || png == nullptr)
        return false;
    spng_ihdr header{};
    header.width = static_cast<u32>(pPicture.mWidth);
    header.height = static_cast<u32>(pPicture.mHeight);
    header.bit_depth = 8;
    header.color_type = SPNG_COLOR_TYPE_TRUECOLOR_ALPHA;
    spng_set_png_file(png.get(), file.get());
    spng_set_ihdr(png.get(), &header);
    const bool encoded = spng_encode_image(png.get(), pPicture.mPixels.data(), pPicture.mPixels.size(), SPNG_FMT_PNG,
                                           SPNG_ENCODE_FINALIZE) == 0;
    return encoded && std::fflush(file.get()) == 0;
}
