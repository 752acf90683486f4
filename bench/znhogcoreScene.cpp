// What a scene costs: opening one of 300 objects on a texture page beside the mere loading of that page, and a press
// that hits none of them beside the bare arithmetic of such tests.

#include "tests/support/znNTestImages.h"
#include "tests/znhogcore/znCHogTestProgram.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/znCResourceName.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace
{
constexpr s32 OBJECTS = 300;
constexpr s32 SIDE = 40;
constexpr s32 COLUMNS = 25;
constexpr s32 PAGE_SIDE = 1024;
constexpr char SCENE[] = "bench";
constexpr char PAGE[] = "scenes/bench/texturepage0.txt";

// The program with the scene's folder in memory and a drawing table that keeps nothing.
class Stage : public znCHogTestProgram
{
public:
    Stage()
    {
        mPlatform.mDraw.mRecording = false;
        folderFill();
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
    void folderFill()
    {
        std::string coords = "Background.png,0,0\n";
        std::string page = "scenes/bench/page.png\r\nscenes/bench/background.png,0,0,40,40\r\n";
        for (s32 i = 0; i < OBJECTS; ++i)
        {
            const std::string name = "HOT-thing" + std::to_string(i) + ".png";
            const std::string x = std::to_string(i % COLUMNS * SIDE);
            const std::string y = std::to_string(i / COLUMNS * SIDE);
            coords += name + "," + x + "," + y + "\n";
            page += "scenes/bench/hot-thing" + std::to_string(i) + ".png," + x + "," + y + ",40,40\r\n";
        }
        const auto png = znNTestImages::pngMake(
            PAGE_SIDE, PAGE_SIDE, znNTestImages::Bytes(static_cast<std::size_t>(PAGE_SIDE * PAGE_SIDE * 4), 200));
        mPlatform.mFiles.fileSet("scenes/bench/coords.txt", coords);
        mPlatform.mFiles.fileSet(PAGE, page);
        mPlatform.mFiles.fileSet("scenes/bench/page.png", std::string(png.begin(), png.end()));
    }
};

void SceneOpen_ours(benchmark::State& pState)
{
    Stage stage;
    for (auto _ : pState)
    {
        stage.open();
        stage.leave();
    }
}
BENCHMARK(SceneOpen_ours)->Unit(benchmark::kMillisecond);

void SceneOpen_reference(benchmark::State& pState)
{
    Stage stage;
    const znCResourceName page(PAGE, znCResourceName::GAME_DATA);
    for (auto _ : pState)
    {
        znCBrushManager::instanceGet()->brushesClear();
        znCBrushManager::instanceGet()->texturePageLoad(page, true);
        Stage::frame();
        Stage::frame();
    }
}
BENCHMARK(SceneOpen_reference)->Unit(benchmark::kMillisecond);

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

BENCHMARK_MAIN();
