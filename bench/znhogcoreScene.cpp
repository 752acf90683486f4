// What a scene costs: opening one of 300 objects on a texture page beside the mere decoding of that page and the
// reading of its alpha; opening one of ever more objects on a page that costs nothing; a press that hits none of them
// beside the bare arithmetic of such tests; a frame in which nothing happens.

#include "bench/znNBenchMain.h"
#include "media/znCImage.h"
#include "tests/support/allocationCount.h"
#include "tests/support/znNTestImages.h"
#include "tests/znhogcore/znCHogTestProgram.h"
#include "znappcore/impl/platform/znNHitBits.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/znCResourceName.h"

#include <benchmark/benchmark.h>
#include <map>
#include <memory>
#include <vector>

namespace
{
constexpr s32 OBJECTS = 300;
constexpr s32 SIDE = 40;
constexpr s32 COLUMNS = 50;
constexpr s32 PAGE_SIDE = 2048;
constexpr s32 SMALL_PAGE_SIDE = 64;
constexpr char SCENE[] = "bench";
constexpr char PAGE[] = "scenes/bench/texturepage0.txt";

// A page as painted objects make one: neighbours are alike, and the gaps between the objects clear.
const std::string& pageGet(s32 pSide)
{
    static std::map<s32, std::string> sPages;
    std::string& page = sPages[pSide];
    if (!page.empty())
        return page;
    znNTestImages::Bytes pixels;
    u32 noise = 1;
    for (s32 i = 0; i < pSide * pSide; ++i)
    {
        noise = noise * 1664525u + 1013904223u;
        const s32 x = i % pSide;
        const s32 y = i / pSide;
        const u8 alpha = x % SIDE > 5 && y % SIDE > 5 ? 255 : 0;
        const u32 grain = noise >> 28;
        for (const s32 shade : {x + y, x, y})
            pixels.push_back(alpha == 0 ? u8{0} : static_cast<u8>(static_cast<u32>(shade / 9) + grain));
        pixels.push_back(alpha);
    }
    const auto png = znNTestImages::pngMake(pSide, pSide, pixels);
    return page = std::string(png.begin(), png.end());
}

// The program with the scene's folder in memory and a drawing table that keeps nothing.
class Stage : public znCHogTestProgram
{
public:
    explicit Stage(s64 pObjects = OBJECTS, s32 pPageSide = SMALL_PAGE_SIDE)
    {
        mPlatform.mDraw.mRecording = false;
        folderFill(static_cast<s32>(pObjects), pPageSide);
        start();
    }

    void open()
    {
        znCHogCoreMain::instanceGet()->nextScreenSet(SCENE);
        frame();
    }
    void leave()
    {
        screenLeave();
        savedStateForget(SCENE);
    }

private:
    void folderFill(s32 pObjects, s32 pPageSide)
    {
        std::string coords = "Background.png,0,0\n";
        std::string page = "scenes/bench/page.png\r\nscenes/bench/background.png,0,0,40,40\r\n";
        const s32 room = pPageSide - SIDE + 1;
        for (s32 i = 0; i < pObjects; ++i)
        {
            const std::string name = "HOT-thing" + std::to_string(i) + ".png";
            const s32 x = i % COLUMNS * SIDE;
            const s32 y = i / COLUMNS * SIDE;
            coords += name + "," + std::to_string(x) + "," + std::to_string(y) + "\n";
            page += "scenes/bench/hot-thing" + std::to_string(i) + ".png," + std::to_string(x % room) + "," +
                    std::to_string(y % room) + ",40,40\r\n";
        }
        mPlatform.mFiles.fileSet("scenes/bench/coords.txt", coords);
        mPlatform.mFiles.fileSet(PAGE, page);
        mPlatform.mFiles.fileSet("scenes/bench/page.png", pageGet(pPageSide));
    }
};

void openAndLeave(benchmark::State& pState, Stage& pStage)
{
    for (auto _ : pState)
    {
        pStage.open();
        pStage.leave();
    }
}

void SceneOpen_ours(benchmark::State& pState)
{
    Stage stage(OBJECTS, PAGE_SIDE);
    openAndLeave(pState, stage);
}

void SceneObjects(benchmark::State& pState)
{
    Stage stage(pState.range(0));
    openAndLeave(pState, stage);
}
void objectsMeasure(benchmark::internal::Benchmark* pBenchmark)
{
    pBenchmark->Arg(100)->Arg(500)->Arg(1000)->Arg(2000)->Unit(benchmark::kMicrosecond);
    znNBenchMain::bestTake(pBenchmark, 9);
}
BENCHMARK(SceneObjects)->Apply(objectsMeasure);

// The bare work on the page: decoded, then its alpha read, either alone if the other is not asked for.
void pageWork(benchmark::State& pState, bool pDecode, bool pHitMap)
{
    const std::string& png = pageGet(PAGE_SIDE);
    const auto decode = [&png](znCImage& pImage)
    {
        pImage.decode(reinterpret_cast<const u8*>(png.data()), png.size(), "page");
    };
    znCImage decoded;
    decode(decoded);
    const auto pixelCount = static_cast<std::size_t>(PAGE_SIDE * PAGE_SIDE);
    for (auto _ : pState)
    {
        znCImage image;
        if (pDecode)
            decode(image);
        std::vector<u8> bits(pHitMap ? pixelCount / 8 : 0);
        if (pHitMap)
            znNHitBits::alphaBitsSet(bits.data(), 0, (pDecode ? image : decoded).pixelsGet(), pixelCount);
        benchmark::DoNotOptimize(bits.data());
    }
}

void SceneOpen_reference(benchmark::State& pState)
{
    pageWork(pState, true, true);
}
void SceneDecode(benchmark::State& pState)
{
    pageWork(pState, true, false);
}
void SceneHitMap(benchmark::State& pState)
{
    pageWork(pState, false, true);
}

void pageMeasure(benchmark::internal::Benchmark* pBenchmark)
{
    pBenchmark->Unit(benchmark::kMillisecond);
    znNBenchMain::bestTake(pBenchmark, 9);
}
BENCHMARK(SceneOpen_ours)->Apply(pageMeasure);
BENCHMARK(SceneOpen_reference)->Apply(pageMeasure);
BENCHMARK(SceneDecode)->Apply(pageMeasure);
BENCHMARK(SceneHitMap)->Apply(pageMeasure);

void SceneStillFrame(benchmark::State& pState)
{
    constexpr s32 STILL_OBJECTS = 500;
    constexpr s32 FADE_FRAMES = 60;
    Stage stage(STILL_OBJECTS);
    stage.open();
    for (s32 i = 0; i < FADE_FRAMES; ++i)
        Stage::frame();
    const std::size_t before = allocationCountGet();
    for (auto _ : pState)
        Stage::frame();
    const std::size_t allocations = allocationCountGet() - before;
    if (allocations >
        static_cast<std::size_t>(pState.iterations()) / 10 + 1) // the benchmark's own last look at the clock
        pState.SkipWithError("A still scene allocates.");
}
BENCHMARK(SceneStillFrame)->Unit(benchmark::kMicrosecond);

void ScenePress_ours(benchmark::State& pState)
{
    Stage stage;
    stage.open();
    Stage::frame();
    for (auto _ : pState)
    {
        znCPointerMessage message(znPoint(1, 1), 0, true);
        benchmark::DoNotOptimize(znIInputManager::instanceGet()->messageSend(znIInputManager::POINTER_DOWN, &message));
    }
}
BENCHMARK(ScenePress_ours)->Unit(benchmark::kMicrosecond);

// With a second class below it: the compiler must not guess whom a call reaches.
struct BareObject
{
    virtual ~BareObject() = default;
    [[gnu::noinline]] virtual bool hitTest(const znPoint& pPoint) const
    {
        const float in[2] = {static_cast<float>(pPoint.mX), static_cast<float>(pPoint.mY)};
        float out[2];
        return mMatrix.inverseTransform(in, out) && std::abs(out[0]) < SIDE / 2 && std::abs(out[1]) < SIDE / 2;
    }
    znAffineMtx2d mMatrix;
};

struct BareOther : BareObject
{
    [[gnu::noinline]] bool hitTest(const znPoint&) const override { return false; }
};

void ScenePress_reference(benchmark::State& pState)
{
    std::vector<std::unique_ptr<BareObject>> objects;
    for (s32 i = 0; i < OBJECTS; ++i)
    {
        objects.push_back(std::make_unique<BareObject>());
        objects.back()->mMatrix.fromPosScaleRotation(znPoint(100 + i, 200), 1.0f, 1.0f, 0.0f);
    }
    objects.push_back(std::make_unique<BareOther>());
    const znPoint point(1, 1);
    for (auto _ : pState)
        for (const auto& object : objects)
            benchmark::DoNotOptimize(object->hitTest(point));
}
BENCHMARK(ScenePress_reference)->Unit(benchmark::kMicrosecond);
} // namespace

int main(int pCount, char** pArguments)
{
    return znNBenchMain::run(pCount, pArguments);
}
