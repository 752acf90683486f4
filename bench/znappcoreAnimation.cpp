// One frame of 200 running animations of eight frames each, on entities that stand still: update and drawing. The
// reference counts the same times down in a bare loop and copies the same quads.

#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znIRenderer.h"
#include "zncore/znCResourceName.h"

#include <benchmark/benchmark.h>
#include <cstring>

namespace
{
constexpr s32 ANIMATIONS = 200;
constexpr s32 FRAMES = 8;
constexpr s32 FRAME_MS = 50;
constexpr s32 STEP_MS = 16;

std::string fileText()
{
    std::string frames;
    std::string keys;
    for (s32 i = 0; i < FRAMES; ++i)
    {
        frames += "<f x=\"" + std::to_string(i * 8) + "\" w=\"8\" h=\"8\" regx=\"4\" regy=\"4\"/>";
        keys += "<key frame=\"" + std::to_string(i + 1) + "\"/>";
    }
    return "<sequence name=\"sheet\"><framelist>" + frames + "</framelist><timeline name=\"main\" frametime=\"" +
           std::to_string(FRAME_MS) + "\">" + keys + "<key jumpto=\"0\"/></timeline></sequence>";
}

void Animations_ours(benchmark::State& pState)
{
    znCTestCore core;
    const znNTestImages::Bytes png = znNTestImages::pngMake(64, 8, znNTestImages::Bytes(64 * 8 * 4, 200));
    core.mPlatform.mFiles.fileSet("sheet.png", std::string(png.begin(), png.end()));
    core.mPlatform.mFiles.fileSet("a.xml", fileText());
    core.mPlatform.mDraw.mRecording = false;
    znNGraphics::initialise();
    znINode::staticVectorsCreate();
    znIRenderer::create(1024, 1024);
    znCBrushManager::create();
    znCComponentFactory::create();
    {
        znINode root("root");
        for (s32 i = 0; i < ANIMATIONS; ++i)
        {
            auto* entity = new znCEntity("animation"); // owned by the root
            entity->componentAdd<znCAnimatingSpriteComponent>()->xmlLoad(znCResourceName("a.xml", 0), false);
            entity->posSet(i * 5, i);
            root.childAdd(entity);
        }
        for (auto _ : pState)
        {
            root.treeUpdate(STEP_MS);
            znIRenderer::instanceGet()->frameBegin();
            root.treeRender();
            znIRenderer::instanceGet()->frameEnd();
        }
    }
    znCComponentFactory::destroy();
    znCBrushManager::destroy();
    znIRenderer::destroy();
    znINode::staticVectorsDestroy();
    znNGraphics::terminate();
}
BENCHMARK(Animations_ours)->Unit(benchmark::kMicrosecond);

void Animations_reference(benchmark::State& pState)
{
    struct Quad
    {
        float mPositions[8];
        float mUvs[8];
        u32 mColours[4];
    };
    struct Bare
    {
        s32 mElapsedMs = 0;
        s32 mFrame = 0;
        Quad mQuads[FRAMES];
    };
    std::vector<Bare> animations(ANIMATIONS);
    std::vector<Quad> drawn(ANIMATIONS);
    for (auto _ : pState)
    {
        for (std::size_t i = 0; i < ANIMATIONS; ++i)
        {
            Bare& bare = animations[i];
            bare.mElapsedMs += STEP_MS;
            if (bare.mElapsedMs >= FRAME_MS)
            {
                bare.mElapsedMs -= FRAME_MS;
                bare.mFrame = (bare.mFrame + 1) % FRAMES;
            }
            std::memcpy(&drawn[i], &bare.mQuads[bare.mFrame], sizeof(Quad));
        }
        benchmark::DoNotOptimize(drawn.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Animations_reference)->Unit(benchmark::kMicrosecond);
} // namespace

BENCHMARK_MAIN();
