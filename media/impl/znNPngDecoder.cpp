#include "media/impl/znNPngDecoder.h"

#include <cstring>
#include <memory>

#include <spng.h>

#include "media/znCImage.h"

namespace
{
// Texts, colour profiles and the like are read past, not kept: a file may hold a little of them and no flood.
constexpr std::size_t sChunkBytesMax = 16 * 1024 * 1024;
constexpr std::size_t sChunksBytesMax = 32 * 1024 * 1024;

struct ContextFree
{
    void operator()(spng_ctx* pContext) const { spng_ctx_free(pContext); }
};
using Context = std::unique_ptr<spng_ctx, ContextFree>;

int limitsSet(spng_ctx* pContext)
{
    int error = spng_set_image_limits(pContext, znCImage::sSideMax, znCImage::sSideMax);
    if (error == 0)
        error = spng_set_chunk_limits(pContext, sChunkBytesMax, sChunksBytesMax);
    // A picture whose own data has a wrong check sum is not shown; what merely accompanies it is left out.
    if (error == 0)
        error = spng_set_crc_action(pContext, SPNG_CRC_ERROR, SPNG_CRC_DISCARD);
    return error;
}

int transparencyFind(spng_ctx* pContext, u8 pColourType, bool* pFound)
{
    *pFound = (pColourType & 4) != 0;
    if (*pFound)
        return 0;
    spng_trns transparency;
    const int error = spng_get_trns(pContext, &transparency);
    *pFound = error == 0;
    return error == SPNG_ECHUNKAVAIL ? 0 : error;
}

int imageDecode(spng_ctx* pContext, znCImage* pImage)
{
    spng_ihdr header;
    if (const int error = spng_get_ihdr(pContext, &header))
        return error;
    bool transparency = false;
    if (const int error = transparencyFind(pContext, header.color_type, &transparency))
        return error;
    const znEImageFormat format = transparency ? ZN_IMAGE_ABGR_8888 : ZN_IMAGE_RGB_888;
    if (!pImage->create(format, static_cast<s32>(header.width), static_cast<s32>(header.height)))
        return SPNG_EMEM;
    const std::size_t bytes = static_cast<std::size_t>(pImage->pitchGet()) * header.height;
    return spng_decode_image(pContext, pImage->pixelsGet(), bytes, transparency ? SPNG_FMT_RGBA8 : SPNG_FMT_RGB8,
                             transparency ? SPNG_DECODE_TRNS : 0);
}
} // namespace

bool znNPngDecoder::isPng(const u8* pBytes, std::size_t pSize)
{
    static constexpr u8 sSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    return pSize >= sizeof sSignature && std::memcmp(pBytes, sSignature, sizeof sSignature) == 0;
}

bool znNPngDecoder::decode(const u8* pBytes, std::size_t pSize, znCImage* pImage, std::string* pReason)
{
    const Context context(spng_ctx_new(0));
    int error = SPNG_EMEM;
    if (context != nullptr)
        error = limitsSet(context.get());
    if (error == 0)
        error = spng_set_png_buffer(context.get(), pBytes, pSize);
    if (error == 0)
        error = imageDecode(context.get(), pImage);
    if (error != 0)
        *pReason = std::string("PNG: ") + spng_strerror(error);
    return error == 0;
}
