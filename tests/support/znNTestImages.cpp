#include "tests/support/znNTestImages.h"

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>
#include <zlib.h>

namespace
{
using znNTestImages::Bytes;

void numberAdd(Bytes* pFile, u32 pNumber)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        pFile->push_back(static_cast<u8>(pNumber >> shift));
}

void chunkAdd(Bytes* pFile, const std::string& pType, const Bytes& pData)
{
    numberAdd(pFile, static_cast<u32>(pData.size()));
    const std::size_t start = pFile->size();
    pFile->insert(pFile->end(), pType.begin(), pType.end());
    pFile->insert(pFile->end(), pData.begin(), pData.end());
    numberAdd(pFile, static_cast<u32>(crc32(0, pFile->data() + start, static_cast<uInt>(pFile->size() - start))));
}
} // namespace

Bytes znNTestImages::deflate(const Bytes& pBytes)
{
    uLongf size = compressBound(pBytes.size());
    Bytes result(size);
    compress(result.data(), &size, pBytes.data(), pBytes.size());
    result.resize(size);
    return result;
}

Bytes znNTestImages::pngMake(const PngParts& pParts)
{
    Bytes file = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    Bytes header;
    numberAdd(&header, pParts.mWidth);
    numberAdd(&header, pParts.mHeight);
    header.insert(header.end(), {pParts.mDepth, pParts.mColourType, 0, 0, pParts.mInterlace});
    chunkAdd(&file, "IHDR", header);
    for (const auto& [type, data] : pParts.mChunks)
        chunkAdd(&file, type, data);
    chunkAdd(&file, "IDAT", deflate(pParts.mRows));
    chunkAdd(&file, "IEND", {});
    return file;
}

Bytes znNTestImages::pngMake(s32 pWidth, s32 pHeight, const Bytes& pPixels)
{
    PngParts parts;
    parts.mWidth = static_cast<u32>(pWidth);
    parts.mHeight = static_cast<u32>(pHeight);
    for (s32 y = 0; y < pHeight; ++y)
    {
        const auto row = pPixels.begin() + static_cast<std::ptrdiff_t>(y) * pWidth * 4;
        parts.mRows.push_back(0);
        parts.mRows.insert(parts.mRows.end(), row, row + pWidth * 4);
    }
    return pngMake(parts);
}

Bytes znNTestImages::jpegMake(s32 pWidth, s32 pHeight, const Bytes& pPixels, bool pProgressive)
{
    jpeg_compress_struct encoder;
    jpeg_error_mgr errors;
    encoder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&encoder);
    unsigned char* buffer = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&encoder, &buffer, &size);
    encoder.image_width = static_cast<JDIMENSION>(pWidth);
    encoder.image_height = static_cast<JDIMENSION>(pHeight);
    encoder.input_components = 3;
    encoder.in_color_space = JCS_RGB;
    jpeg_set_defaults(&encoder);
    jpeg_set_quality(&encoder, 95, TRUE);
    if (pProgressive)
        jpeg_simple_progression(&encoder);
    jpeg_start_compress(&encoder, TRUE);
    while (encoder.next_scanline < encoder.image_height)
    {
        // The library's parameter isn't const, but it only reads.
        auto* row = const_cast<u8*>(pPixels.data() + std::size_t{encoder.next_scanline} * encoder.image_width * 3);
        jpeg_write_scanlines(&encoder, &row, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    Bytes file(buffer, buffer + size);
    std::free(buffer);
    return file;
}
