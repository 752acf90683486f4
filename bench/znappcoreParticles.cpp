// One frame of an emitter with 1,000 live particles, update and drawing, against a bare loop over the same arithmetic
// that writes the same quads.

#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/particles/znCParticleEmitter.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCSpriteRenderData.h"
#include "znappcore/znIRenderer.h"
#include "zncore/znCResourceName.h"

#include <benchmark/benchmark.h>
#include <cmath>

namespace
{
constexpr s32 PARTICLES = 1000;
constexpr s32 STEP_MS = 16;
constexpr const char* SETTINGS =
    "imageFileName = spark.png; maxParticles = 1000; emitSpeed = 1000000;"
    "velocityXY = 0,-100 rndRangeXY = 30,10; velocityDeltaXY = 0,20;"
    "scale = 1 rndRange = 0.2; scaleDelta = 0.01; angle = 0 rndRange = 180; angleDelta = 9;"
    "colourGraph = ffffffff, ff7300c8, 300, 00000000, 40000000;";

class Stage
{
public:
    Stage()
    {
        znCTestPlatform& platform = mCore.mPlatform;
        const znNTestImages::Bytes png = znNTestImages::pngMake(16, 16, znNTestImages::Bytes(16 * 16 * 4, 200));
        platform.mFiles.fileSet("spark.png", std::string(png.begin(), png.end()));
        platform.mFiles.fileSet("particles.txt", SETTINGS);
        platform.mDraw.mRecording = false;
        znNGraphics::initialise();
        znIRenderer::create(1024, 1024);
        znCBrushManager::create();
    }

    ~Stage()
    {
        znCBrushManager::destroy();
        znIRenderer::destroy();
        znNGraphics::terminate();
    }

    static znCParticleDataPtr dataGet()
    {
        return znCParticleDataManager::instanceGet()->dataGet(znCResourceName("particles.txt", 0));
    }

private:
    znCTestCore mCore;
};

void Particles_ours(benchmark::State& pState)
{
    const Stage stage;
    znCParticleEmitter emitter(Stage::dataGet());
    emitter.matrixApply(znAffineMtx2d(1, 0, 0, 1, 500, 400));
    emitter.update(STEP_MS);
    if (emitter.liveCountGet() != PARTICLES)
        pState.SkipWithError("not all particles live");
    for (auto _ : pState)
    {
        emitter.update(STEP_MS);
        znIRenderer::instanceGet()->frameBegin();
        emitter.render();
        znIRenderer::instanceGet()->frameEnd();
    }
}
BENCHMARK(Particles_ours)->Unit(benchmark::kMicrosecond);

// What a particle is made of, without the class.
struct Bare
{
    s32 mAgeMs = 0;
    znPointF mPos, mVelocity, mVelocityDelta;
    float mScale, mScaleDelta, mAngle, mAngleDelta;
};

void bareQuadWrite(const Bare& pBare, const znAffineMtx2d& pSpace, znPointF* pVertices)
{
    constexpr float HALF = 8.0f;
    constexpr znPointF CORNERS[4] = {{-HALF, -HALF}, {-HALF, HALF}, {HALF, HALF}, {HALF, -HALF}};
    const float c = pBare.mScale * std::cos(pBare.mAngle);
    const float s = pBare.mScale * std::sin(pBare.mAngle);
    const znAffineMtx2d matrix = pSpace * znAffineMtx2d(c, -s, s, c, pBare.mPos.mX, pBare.mPos.mY);
    for (s32 i = 0; i < 4; ++i)
        pVertices[i] = {matrix.m00 * CORNERS[i].mX + matrix.m01 * CORNERS[i].mY + matrix.m02,
                        matrix.m10 * CORNERS[i].mX + matrix.m11 * CORNERS[i].mY + matrix.m12};
}

void bareUpdate(Bare& pBare, float pSeconds)
{
    pBare.mAgeMs += STEP_MS;
    pBare.mPos.mX += pSeconds * pBare.mVelocity.mX;
    pBare.mPos.mY += pSeconds * pBare.mVelocity.mY;
    pBare.mVelocity.mX += pSeconds * pBare.mVelocityDelta.mX;
    pBare.mVelocity.mY += pSeconds * pBare.mVelocityDelta.mY;
    pBare.mScale = std::fmax(pBare.mScale + pSeconds * pBare.mScaleDelta, 0.0f);
    pBare.mAngle += pSeconds * pBare.mAngleDelta;
}

void Particles_reference(benchmark::State& pState)
{
    const Stage stage;
    const znCParticleDataPtr data = Stage::dataGet();
    const znAffineMtx2d space(1, 0, 0, 1, 500, 400);
    std::vector<Bare> particles(PARTICLES);
    for (Bare& particle : particles)
        particle = {0,
                    data->mEmitPos.drawGet(),
                    data->mVelocity.drawGet(),
                    data->mVelocityDelta.drawGet(),
                    data->mScale.drawGet(),
                    data->mScaleDelta.drawGet(),
                    data->mAngle.drawGet(),
                    data->mAngleDelta.drawGet()};
    std::vector<znPointF> vertices(PARTICLES * 4);
    std::vector<znPointF> uvs(PARTICLES * 4);
    std::vector<u32> colours(PARTICLES * 4);
    constexpr znPointF UVS[4] = {{0, 0}, {0, 1}, {1, 1}, {1, 0}};
    for (auto _ : pState)
    {
        for (std::size_t i = 0; i < PARTICLES; ++i)
        {
            bareUpdate(particles[i], STEP_MS / 1000.0f);
            bareQuadWrite(particles[i], space, &vertices[i * 4]);
            std::copy_n(UVS, 4, &uvs[i * 4]);
            std::fill_n(&colours[i * 4], 4,
                        znCSpriteRenderData::colourPack(data->mColourGraph->valueGet(particles[i].mAgeMs)));
        }
        benchmark::DoNotOptimize(vertices.data());
        benchmark::DoNotOptimize(uvs.data());
        benchmark::DoNotOptimize(colours.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Particles_reference)->Unit(benchmark::kMicrosecond);
} // namespace

BENCHMARK_MAIN();
