// A frame of 1,023 turned sprites in 20 runs: tree, batch and streams up to the drawing table, which draws nothing
// here. The reference writes the same streams in a bare loop and hands them to the same table.

#include "bench/znCBenchScene.h"
#include "media/znCGraphicsTexture.h"
#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCComponentFactory.h"
#include "zncore/znCResourceName.h"

#include <benchmark/benchmark.h>
#include <cmath>

namespace
{
constexpr s32 SIDE = 64;

// What a scene stands on, with a table that counts runs and keeps nothing.
class Stage
{
public:
    Stage()
    {
        mCore.mPlatform.mDraw.mRecording = false;
        znNGraphics::initialise();
        znINode::staticVectorsCreate();
        znIRenderer::create(1024, 1024);
        znCBrushManager::create();
        znCComponentFactory::create();
        const znNTestImages::Bytes png = znNTestImages::pngMake(SIDE, SIDE, znNTestImages::Bytes(SIDE * SIDE * 4, 128));
        for (s32 i = 0; i < znCBenchScene::RUNS; ++i)
        {
            const std::string name = "picture" + std::to_string(i) + ".png";
            mCore.mPlatform.mFiles.fileSet(name, std::string(png.begin(), png.end()));
            mBrushes.push_back(znCBrushManager::instanceGet()->brushGet(znCResourceName(name, 0), false));
        }
    }

    ~Stage()
    {
        mBrushes.clear();
        znCBrushManager::destroy();
        znIRenderer::destroy();
        znCComponentFactory::destroy();
        znINode::staticVectorsDestroy();
        znNGraphics::terminate();
    }

    znCTestCore mCore;
    std::vector<znCBrushPtr> mBrushes;
};

void sceneMeasure(benchmark::State& pState, bool pTurn)
{
    Stage stage;
    znCBenchScene scene(stage.mBrushes);
    scene.frame(pTurn);
    for (auto _ : pState)
        scene.frame(pTurn);
}

// The streams of a frame, reused.
struct Streams
{
    std::vector<znPointF> mPositions;
    std::vector<znPointF> mUvs;
    std::vector<u32> mColours;
};

void quadAdd(Streams& pStreams, s32 pSprite, float pAngle)
{
    constexpr float HALF = SIDE / 2;
    const float x = static_cast<float>(pSprite % znCBenchScene::COLUMNS * znCBenchScene::SPACING);
    const float y = static_cast<float>(pSprite / znCBenchScene::COLUMNS * znCBenchScene::SPACING);
    const float c = std::cos(pAngle) * HALF;
    const float s = std::sin(pAngle) * HALF;
    pStreams.mPositions.insert(
        pStreams.mPositions.end(),
        {{x - c - s, y + s - c}, {x - c + s, y + s + c}, {x + c + s, y - s + c}, {x + c - s, y - s - c}});
    pStreams.mUvs.insert(pStreams.mUvs.end(), {{0, 0}, {0, 1}, {1, 1}, {1, 0}});
    pStreams.mColours.insert(pStreams.mColours.end(), 4, 0xFFFFFFFFu);
}

void bareFrame(Streams& pStreams, const std::vector<znCBrushPtr>& pBrushes, float pTurn)
{
    znNGraphics::clear(0xFF000000u);
    pStreams.mPositions.clear();
    pStreams.mUvs.clear();
    pStreams.mColours.clear();
    std::size_t first = 0;
    for (s32 i = 0; i < znCBenchScene::SPRITES; ++i)
    {
        quadAdd(pStreams, i, znCBenchScene::angleGet(i) + pTurn);
        const s32 run = znCBenchScene::runGet(i);
        if (i + 1 < znCBenchScene::SPRITES && znCBenchScene::runGet(i + 1) == run)
            continue;
        znNGraphics::materialSet(
            {pBrushes[static_cast<std::size_t>(run)]->textureGet()->graphicsTextureGet(), 4, 0xFFFFFFFFu});
        znNGraphics::positionsSet(pStreams.mPositions.data() + first);
        znNGraphics::uvsSet(pStreams.mUvs.data() + first);
        znNGraphics::coloursSet(pStreams.mColours.data() + first);
        znNGraphics::quadsDraw(static_cast<s32>(pStreams.mPositions.size() - first));
        first = pStreams.mPositions.size();
    }
    znNGraphics::flush();
    znNGraphics::present();
}

void TurningScene_ours(benchmark::State& pState)
{
    sceneMeasure(pState, true);
}
BENCHMARK(TurningScene_ours)->Unit(benchmark::kMicrosecond);

void TurningScene_reference(benchmark::State& pState)
{
    Stage stage;
    Streams streams;
    streams.mPositions.reserve(znCBenchScene::SPRITES * 4);
    float turn = 0.0f;
    for (auto _ : pState)
        bareFrame(streams, stage.mBrushes, turn += znCBenchScene::TURN_STEP);
}
BENCHMARK(TurningScene_reference)->Unit(benchmark::kMicrosecond);

void StillScene_ours(benchmark::State& pState)
{
    sceneMeasure(pState, false);
}
BENCHMARK(StillScene_ours)->Unit(benchmark::kMicrosecond);
} // namespace

BENCHMARK_MAIN();
