// Moving a laid-out text of 60 letters, against a bare loop of the matrix over as many points.

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "media/znNFonts.h"
#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "znappcore/src/znCFont.h"
#include "znappcore/src/znCTextRenderData.h"
#include "zncore/znCResourceName.h"

namespace
{
const std::string sText = "Findthelampsevenlettersandthecaptain'sbrasswatchontheoldquay"; // 60 letters that all show

znAffineMtx2d matrixGet(s32 pStep)
{
    znAffineMtx2d matrix;
    matrix.fromPosScaleRotation(znPoint(pStep & 511, 300), 1.0f, 1.0f, 0.001f * static_cast<float>(pStep));
    return matrix;
}

void TextMove_ours(benchmark::State& pState)
{
    znCTestPlatform platform;
    std::ifstream file(PETREL_ROOT "/data/fonts/clarendon.ttf", std::ios::binary);
    platform.mFiles.fileSet("fonts/clarendon.ttf", {std::istreambuf_iterator<char>(file), {}});
    znNGraphics::initialise();
    znNFonts::initialise();
    {
        znCFont font;
        font.load(znCResourceName("fonts/clarendon.ttf", znCResourceName::GAME_DATA), 24);
        znCTextRenderData text;
        text.initialise(sText, &font);
        if (text.glyphCountGet() != 60)
            pState.SkipWithError("not laid out");
        s32 step = 0;
        for (auto _ : pState)
        {
            text.matrixApply(matrixGet(step++));
            benchmark::ClobberMemory();
        }
    }
    znNFonts::terminate();
    znNGraphics::terminate();
}
BENCHMARK(TextMove_ours);

void TextMove_reference(benchmark::State& pState)
{
    std::vector<znPointF> local(60 * 4, {1.0f, 2.0f});
    std::vector<znPointF> world(local.size());
    s32 step = 0;
    for (auto _ : pState)
    {
        const znAffineMtx2d matrix = matrixGet(step++);
        for (std::size_t i = 0; i < local.size(); ++i)
            world[i] = {matrix.m00 * local[i].mX + matrix.m01 * local[i].mY + matrix.m02,
                        matrix.m10 * local[i].mX + matrix.m11 * local[i].mY + matrix.m12};
        benchmark::DoNotOptimize(world.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(TextMove_reference);
} // namespace

BENCHMARK_MAIN();
