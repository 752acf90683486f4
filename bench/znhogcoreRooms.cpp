// What moving the pointer over a room full of captions costs beside the bare arithmetic of such tests, and a frame of
// ghost mode beside the same sprites in one list.

#include "media/znNGraphics.h"
#include "tests/support/allocationCount.h"
#include "tests/support/znNTestImages.h"
#include "tests/znhogcore/znCHogTestProgram.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCSprite.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIInputManager.h"
#include "zncore/znCGraph.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace
{
constexpr s32 LISTENERS = 500;
constexpr s32 MASKS = 60;
constexpr s32 SIDE = 40;
constexpr s32 COLUMNS = 25;
constexpr s32 PAGE_SIDE = 1024;
constexpr s32 SETTLE_MS = 30000; // longer than the saves that the opening of a scene sets going
constexpr char SCENE[] = "bench";
constexpr char OBJECT[] = "scenes/bench/hot-thing0.png";

// A scene of that many objects, each with a caption, on one texture page.
class Stage : public znCHogTestProgram
{
public:
    explicit Stage(s32 pObjects)
    {
        mPlatform.mDraw.mRecording = false;
        mPlatform.mFiles.fileSet("gui/hoggui/hoggui.txt", "znCRollOverSubSceneGui {\n modal = false\n}\n");
        folderFill(pObjects);
        start();
    }
    void open()
    {
        znCHogCoreMain::instanceGet()->nextScreenSet(SCENE);
        for (s32 i = 0; i < 3; ++i)
            frame();
    }
    static void send(const znCUniqueId& pType)
    {
        znCHogMessageDispatcher::instanceGet()->messageSend(pType, znCEmptyMessageData::sharedGet());
    }

private:
    void folderFill(s32 pObjects)
    {
        std::string coords = "Background.png,0,0\n";
        std::string strings;
        std::string page = "scenes/bench/page.png\r\nscenes/bench/background.png,0,0,40,40\r\n";
        for (s32 i = 0; i < pObjects; ++i)
        {
            const std::string number = std::to_string(i);
            const std::string x = std::to_string(i % COLUMNS * SIDE);
            const std::string y = std::to_string(i / COLUMNS * SIDE);
            coords += "HOT-thing" + number + ".png," + x + "," + y + "\n";
            strings += "HOT-thing" + number + "RO = \"Thing " + number + "\",\r\n";
            page += "scenes/bench/hot-thing" + number + ".png," + x + "," + y + ",40,40\r\n";
        }
        const auto png = znNTestImages::pngMake(
            PAGE_SIDE, PAGE_SIDE, znNTestImages::Bytes(static_cast<std::size_t>(PAGE_SIDE * PAGE_SIDE * 4), 200));
        mPlatform.mFiles.fileSet("strings.txt", strings);
        mPlatform.mFiles.fileSet("scenes/bench/coords.txt", coords);
        mPlatform.mFiles.fileSet("scenes/bench/texturepage0.txt", page);
        mPlatform.mFiles.fileSet("scenes/bench/page.png", std::string(png.begin(), png.end()));
    }
};

// Runs pStep as often as the benchmark wants; it must allocate nothing. Its own last look at the clock may count as
// one.
template <class Step>
void measure(benchmark::State& pState, const Step& pStep)
{
    pStep();
    const std::size_t before = allocationCountGet();
    for (auto _ : pState)
        pStep();
    if (allocationCountGet() - before > 1)
        pState.SkipWithError("It allocates.");
}

// Over none of them, so that all are asked.
void CaptionMove_ours(benchmark::State& pState)
{
    Stage stage(LISTENERS);
    stage.open();
    measure(pState,
            []
            {
                znCPointerMessage message(znPoint(1, 1), 0, false);
                benchmark::DoNotOptimize(
                    znIInputManager::instanceGet()->messageSend(znIInputManager::POINTER_MOVE, &message));
            });
}
BENCHMARK(CaptionMove_ours)->Unit(benchmark::kMicrosecond);

// With a second class below it: the compiler must not guess whom a call reaches.
struct BareObject
{
    virtual ~BareObject() = default;
    [[gnu::noinline]] virtual bool moveHear() const { return false; }
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
    [[gnu::noinline]] bool moveHear() const override { return mMatrix.m00 > 2.0f; }
    [[gnu::noinline]] bool hitTest(const znPoint&) const override { return false; }
};

void CaptionMove_reference(benchmark::State& pState)
{
    std::vector<std::unique_ptr<BareObject>> objects;
    for (s32 i = 0; i < LISTENERS; ++i)
    {
        objects.push_back(std::make_unique<BareObject>());
        objects.back()->mMatrix.fromPosScaleRotation(znPoint(100 + i, 200), 1.0f, 1.0f, 0.0f);
    }
    objects.push_back(std::make_unique<BareOther>());
    const znPoint point(1, 1);
    measure(pState,
            [&]
            {
                for (const auto& object : objects)
                    benchmark::DoNotOptimize(object->moveHear());
                for (const auto& object : objects)
                    benchmark::DoNotOptimize(object->hitTest(point));
            });
}
BENCHMARK(CaptionMove_reference)->Unit(benchmark::kMicrosecond);

void GhostFrame_ours(benchmark::State& pState)
{
    Stage stage(MASKS);
    stage.open();
    Stage::send(znCHogMessageDispatcher::GHOST_HINT_BUTTON_PRESSED);
    for (s32 ms = 0; ms < SETTLE_MS; ms += Stage::FRAME_MS)
        Stage::frame();
    const s32 vertices = stage.mPlatform.mDraw.mVertexCount;
    Stage::frame();
    if (stage.mPlatform.mDraw.mVertexCount - vertices < 4 * 2 * MASKS)
        pState.SkipWithError("Not every object shows its mask.");
    measure(pState, [] { Stage::frame(); });
}
BENCHMARK(GhostFrame_ours)->Unit(benchmark::kMicrosecond);

// The objects and their masks as plain sprites, in the frame of a program that does the same besides.
class Sprites : public znINode
{
public:
    Sprites() : znINode("sprites"), mSprites(2 * MASKS)
    {
        const znCBrushPtr brush =
            znCBrushManager::instanceGet()->brushGet(znCResourceName(OBJECT, znCResourceName::GAME_DATA), true);
        for (std::size_t i = 0; i < mSprites.size(); ++i)
            mSprites[i].brushSet(i % 2 == 0 ? brush : znCBrushManager::instanceGet()->alpha8BrushCreate(brush));
        mPulse.dataAdd(0, znCColour("00b00080"));
        mPulse.dataAdd(500, znCColour("00600080"));
        mPulse.dataAdd(500, znCColour("00b00080"));
    }
    void update(s32 pDeltaMs) override
    {
        mElapsedMs = (mElapsedMs + pDeltaMs) % mPulse.lastTimeGet();
        for (std::size_t i = 1; i < mSprites.size(); i += 2)
            mSprites[i].colourSet(mPulse.valueGet(mElapsedMs));
    }
    void render() override
    {
        for (znCSprite& sprite : mSprites)
            sprite.render();
    }

private:
    std::vector<znCSprite> mSprites;
    znCGraph<znCColour> mPulse;
    s32 mElapsedMs = 0;
};

void GhostFrame_reference(benchmark::State& pState)
{
    Stage stage(MASKS);
    znCBrushManager::instanceGet()->texturePageLoad(
        znCResourceName("scenes/bench/texturepage0.txt", znCResourceName::GAME_DATA), true);
    znIDisplay::instanceGet()->childAdd(new Sprites); // deleted by the display
    for (s32 i = 0; i < 3; ++i)
        Stage::frame();
    measure(pState, [] { Stage::frame(); });
}
BENCHMARK(GhostFrame_reference)->Unit(benchmark::kMicrosecond);
} // namespace

BENCHMARK_MAIN();
