// The hit map of a picture of 2048 x 2048 pixels, against one plain read of those pixels.

#include "znappcore/impl/platform/znNHitBits.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

namespace
{
constexpr std::size_t PIXELS = std::size_t{2048} * 2048;

// Runs of opaque, clear and half clear pixels, as cut-out objects on a texture page have them.
const std::vector<u8>& picture()
{
    static const std::vector<u8> sPixels = []
    {
        std::vector<u8> pixels(PIXELS * 4);
        u32 noise = 1;
        for (std::size_t i = 0; i < PIXELS; ++i)
        {
            noise = noise * 1664525u + 1013904223u;
            const u32 run = static_cast<u32>(i / 61 % 3);
            pixels[i * 4 + 3] = static_cast<u8>(run == 0 ? 0 : run == 1 ? 255 : noise >> 24);
        }
        return pixels;
    }();
    return sPixels;
}

void HitMap_ours(benchmark::State& pState)
{
    const std::vector<u8>& pixels = picture();
    std::vector<u8> bits(PIXELS / 8);
    for (auto _ : pState)
    {
        znNHitBits::alphaBitsSet(bits.data(), 0, pixels.data(), PIXELS);
        benchmark::DoNotOptimize(bits.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(HitMap_ours)->Unit(benchmark::kMicrosecond);

void HitMap_reference(benchmark::State& pState)
{
    const std::vector<u8>& pixels = picture();
    for (auto _ : pState)
    {
        u64 sum = 0;
        for (std::size_t i = 0; i < pixels.size(); i += sizeof sum)
        {
            u64 pair;
            std::memcpy(&pair, pixels.data() + i, sizeof pair);
            sum += pair;
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(HitMap_reference)->Unit(benchmark::kMicrosecond);
} // namespace

BENCHMARK_MAIN();
