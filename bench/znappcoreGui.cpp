// What a screen costs to load beside reading and tokenising its file, and what it costs a frame when nothing moves.

#include "media/znNGraphics.h"
#include "tests/support/allocationCount.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "znappcore/znIInputManager.h"
#include "znappcore/znIRenderer.h"
#include "zncore/znCResourceName.h"
#include "zncore/znNCoreUtils.h"
#include "zncore/znStr.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

namespace
{
constexpr s32 SPRITES_MAX = 1024;
constexpr s32 ELEMENTS = 200;

// The singletons that a screen needs, and all files of the game's data.
class World
{
public:
    World()
    {
        dataCopy();
        znNGraphics::initialise();
        znIHardware::create();
        znCAppSettings::create();
        znCLocalisedStrings::create();
        znINode::staticVectorsCreate();
        znIAudioManager::create();
        znCUserSavedData::create();
        znCGuiMessageDispatcher::create();
        znIDisplay::create();
        znIRenderer::create(SPRITES_MAX, SPRITES_MAX);
        znCBrushManager::create();
        znIInputManager::create();
        znCComponentFactory::create();
        mCore.mPlatform.mDraw.mRecording = false;
    }
    ~World()
    {
        znCBrushManager::destroy();
        znIRenderer::destroy();
        znCComponentFactory::destroy();
        znIDisplay::destroy();
        znCUserSavedData::destroy();
        znIAudioManager::destroy();
        znINode::staticVectorsDestroy();
        znIInputManager::destroy();
        znCLocalisedStrings::destroy();
        znIHardware::destroy();
        znCAppSettings::destroy();
        znCGuiMessageDispatcher::destroy();
        znNGraphics::terminate();
    }

    // The longest GUI file of the game.
    const std::string& largestGet() const { return mLargest; }

    znCTestCore mCore;

private:
    void dataCopy()
    {
        const std::filesystem::path data = PETREL_ROOT "/data";
        std::uintmax_t largest = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(data))
        {
            const std::string name = std::filesystem::relative(entry.path(), data).generic_string();
            if (!entry.is_regular_file() || name.starts_with("audio/"))
                continue;
            std::ifstream file(entry.path(), std::ios::binary);
            mCore.mPlatform.mFiles.fileSet(name, {std::istreambuf_iterator<char>(file), {}});
            const bool isGui = name.starts_with("gui/") && name.ends_with(".txt") && !name.ends_with("styles.txt");
            if (isGui && entry.file_size() > largest)
            {
                largest = entry.file_size();
                mLargest = name;
            }
        }
    }

    std::string mLargest;
};

std::size_t tokensCount(const std::string& pText)
{
    std::size_t count = 0;
    for (std::string_view text = pText; !text.empty(); ++count)
        if (znStr::chunk(text).empty() && text.starts_with('='))
            text.remove_prefix(1);
    return count;
}

// Pictures and fonts are in memory already, as they are when a screen is opened again.
void ScreenLoad_ours(benchmark::State& pState)
{
    World world;
    const znCResourceName name(world.largestGet(), znCResourceName::GAME_DATA);
    const std::unique_ptr<znCEntity> first(znIGuiComponent::guiCreateFromFile(name, nullptr, false));
    for (auto _ : pState)
        delete znIGuiComponent::guiCreateFromFile(name, nullptr, false);
    pState.SetLabel(world.largestGet());
}
BENCHMARK(ScreenLoad_ours);

// The same file and the styles that it includes.
void ScreenLoad_reference(benchmark::State& pState)
{
    World world;
    const znCResourceName name(world.largestGet(), znCResourceName::GAME_DATA);
    const znCResourceName styles("gui/common/styles.txt", znCResourceName::GAME_DATA);
    for (auto _ : pState)
        benchmark::DoNotOptimize(tokensCount(znNCoreUtils::strGetFromFile(name)) +
                                 tokensCount(znNCoreUtils::strGetFromFile(styles)));
}
BENCHMARK(ScreenLoad_reference);

void StillScreenFrame_ours(benchmark::State& pState)
{
    World world;
    std::string text = "include gui/common/styles.txt\nznCMessageBoxGui {\n";
    for (s32 i = 0; i < ELEMENTS / 2; ++i)
        text += "MediumButton {\nposX = " + std::to_string(i) + "\n}\nSliderTrack\n";
    world.mCore.mPlatform.mFiles.fileSet("gui/still.txt", text + "}");
    znIGuiComponent::guiCreateFromFile(znCResourceName("gui/still.txt", znCResourceName::GAME_DATA),
                                       znIDisplay::instanceGet(), true);
    const auto frame = []
    {
        znIDisplay::instanceGet()->treeUpdate(16);
        znIRenderer::instanceGet()->frameClear();
        znIRenderer::instanceGet()->frameBegin();
        znIDisplay::instanceGet()->treeRender();
        znIRenderer::instanceGet()->frameEnd();
    };
    for (s32 i = 0; i < 3; ++i)
        frame();
    const std::size_t before = allocationCountGet();
    for (auto _ : pState)
        frame();
    const std::size_t allocations = allocationCountGet() - before;
    // The benchmark's own last look at the clock may count as one.
    if (allocations > static_cast<std::size_t>(pState.iterations()) / 10 + 1)
        pState.SkipWithError("A still screen allocates.");
    pState.counters["allocations"] = static_cast<double>(allocations);
}
BENCHMARK(StillScreenFrame_ours);
} // namespace

BENCHMARK_MAIN();
