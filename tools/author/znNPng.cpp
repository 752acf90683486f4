#include "tools/author/znNPng.h"

#include <spng.h>

#include <cstdio>
#include <memory>

znSPicture::znSPicture(s32 pWidth, s32 pHeight)
    : mWidth(pWidth), mHeight(pHeight),
      mPixels(static_cast<std::size_t>(pWidth) * static_cast<std::size_t>(pHeight) * 4)
{
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
    return spng_encode_image(png.get(), pPicture.mPixels.data(), pPicture.mPixels.size(), SPNG_FMT_PNG,
                             SPNG_ENCODE_FINALIZE) == 0;
}
