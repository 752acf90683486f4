// Decoding of a 2048 x 2048 picture, against the bare library calls on the same bytes; multiplying it by alpha, against
// a plain copy of its pixels.

#include <cstdio>
#include <cstring>
#include <memory>

#include <benchmark/benchmark.h>
#include <jpeglib.h>
#include <spng.h>

#include "media/znCImage.h"
#include "tests/support/znNTestImages.h"

namespace
{
using znNTestImages::Bytes;
constexpr s32 sSide = 2048;

// Something between a flat colour and noise, as painted pictures are.
Bytes pixelsMake(s32 pPixelBytes)
{
    Bytes pixels(static_cast<std::size_t>(sSide) * sSide * static_cast<std::size_t>(pPixelBytes));
    u32 noise = 1;
    for (std::size_t i = 0; i < pixels.size(); ++i)
    {
        noise = noise * 1664525u + 1013904223u;
        pixels[i] = static_cast<u8>((i >> 6) + (i >> 13) + (noise >> 30));
    }
    return pixels;
}

const Bytes& pngGet()
{
    static const Bytes sFile = znNTestImages::pngMake(sSide, sSide, pixelsMake(4));
    return sFile;
}

const Bytes& jpegGet()
{
    static const Bytes sFile = znNTestImages::jpegMake(sSide, sSide, pixelsMake(3));
    return sFile;
}

void decodeMeasure(benchmark::State& pState, const Bytes& pFile)
{
    for (auto _ : pState)
    {
        znCImage image;
        if (!image.decode(pFile.data(), pFile.size(), "bench"))
            pState.SkipWithError("not decoded");
        benchmark::DoNotOptimize(image.pixelsGet());
    }
}

void PngDecode_ours(benchmark::State& pState)
{
    decodeMeasure(pState, pngGet());
}
BENCHMARK(PngDecode_ours)->Unit(benchmark::kMillisecond);

void PngDecode_reference(benchmark::State& pState)
{
    const Bytes& file = pngGet();
    for (auto _ : pState)
    {
        spng_ctx* context = spng_ctx_new(0);
        spng_set_png_buffer(context, file.data(), file.size());
        std::size_t size = 0;
        spng_decoded_image_size(context, SPNG_FMT_RGBA8, &size);
        const std::unique_ptr<u8[]> pixels(new u8[size]);
        if (spng_decode_image(context, pixels.get(), size, SPNG_FMT_RGBA8, SPNG_DECODE_TRNS) != 0)
            pState.SkipWithError("not decoded");
        spng_ctx_free(context);
        benchmark::DoNotOptimize(pixels.get());
    }
}
BENCHMARK(PngDecode_reference)->Unit(benchmark::kMillisecond);

void JpegDecode_ours(benchmark::State& pState)
{
    decodeMeasure(pState, jpegGet());
}
BENCHMARK(JpegDecode_ours)->Unit(benchmark::kMillisecond);

void JpegDecode_reference(benchmark::State& pState)
{
    const Bytes& file = jpegGet();
    for (auto _ : pState)
    {
        jpeg_decompress_struct decoder;
        jpeg_error_mgr errors;
        decoder.err = jpeg_std_error(&errors);
        jpeg_create_decompress(&decoder);
        jpeg_mem_src(&decoder, file.data(), file.size());
        jpeg_read_header(&decoder, TRUE);
        jpeg_start_decompress(&decoder);
        const std::size_t pitch = std::size_t{decoder.output_width} * 3;
        const std::unique_ptr<u8[]> pixels(new u8[pitch * decoder.output_height]);
        while (decoder.output_scanline < decoder.output_height)
        {
            JSAMPROW row = pixels.get() + pitch * decoder.output_scanline;
            jpeg_read_scanlines(&decoder, &row, 1);
        }
        jpeg_finish_decompress(&decoder);
        jpeg_destroy_decompress(&decoder);
        benchmark::DoNotOptimize(pixels.get());
    }
}
BENCHMARK(JpegDecode_reference)->Unit(benchmark::kMillisecond);

void Premultiply_ours(benchmark::State& pState)
{
    znCImage image;
    image.create(ZN_IMAGE_ABGR_8888, sSide, sSide);
    const Bytes pixels = pixelsMake(4);
    std::memcpy(image.pixelsGet(), pixels.data(), pixels.size());
    for (auto _ : pState)
    {
        image.alphaPremultiply();
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Premultiply_ours)->Unit(benchmark::kMillisecond);

void Premultiply_reference(benchmark::State& pState)
{
    const Bytes pixels = pixelsMake(4);
    Bytes copy = pixels;
    for (auto _ : pState)
    {
        std::memcpy(copy.data(), pixels.data(), pixels.size());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Premultiply_reference)->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
