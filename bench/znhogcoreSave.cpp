// What it costs to save and to load a level of 500 things, with the player's file, beside the mere writing and reading
// of that file's bytes. Both must fit into a frame, 16 ms.

#include "tests/support/znNTestImages.h"
#include "tests/znhogcore/znCHogTestProgram.h"
#include "znappcore/src/znCProfileManager.h"
#include "znappcore/znNSavedTree.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"

#include <benchmark/benchmark.h>
#include <string>

namespace
{
constexpr s32 OBJECTS = 500;
constexpr s32 SIDE = 40;
constexpr char SCENE[] = "bench";
constexpr char FILE_NAME[] = "user0.txt";

class Stage : public znCHogTestProgram
{
public:
    Stage()
    {
        mPlatform.mDraw.mRecording = false;
        std::string coords = "Background.png,0,0\n";
        for (s32 i = 0; i < OBJECTS; ++i)
            coords += "HOT-CMN-thing" + std::to_string(i) + ".png," + std::to_string(i) + ",10\n";
        const auto png =
            znNTestImages::pngMake(SIDE, SIDE, znNTestImages::Bytes(static_cast<std::size_t>(SIDE * SIDE * 4), 200));
        const std::string image(png.begin(), png.end());
        mPlatform.mFiles.fileSet("scenes/bench/coords.txt", coords);
        mPlatform.mFiles.fileSet("scenes/bench/background.png", image);
        for (s32 i = 0; i < OBJECTS; ++i)
            mPlatform.mFiles.fileSet("common/thing" + std::to_string(i) + ".png", image);
        start();
        manager().profileCreate("Anna");
        znCHogCoreMain::instanceGet()->nextScreenSet(SCENE);
        frame();
        level().progressStore();
        manager().dataSave();
    }

    static znCProfileManager& manager() { return *znCProfileManager::instanceGet(); }
    static znIHogLevel& level() { return *znIHogLevel::levelGet(); }
    std::string fileGet() const { return mPlatform.mFiles.fileGet(std::string("ram://") + FILE_NAME); }
};

void LevelSave_ours(benchmark::State& pState)
{
    Stage stage;
    znINode* thing = Stage::level().childFind("HOT-CMN-thing250.png");
    for (auto _ : pState)
    {
        thing->activeSet(!thing->activeGet()); // something has changed
        Stage::level().progressStore();
        Stage::manager().changesSave();
    }
}
BENCHMARK(LevelSave_ours)->Unit(benchmark::kMicrosecond);

void LevelSave_reference(benchmark::State& pState)
{
    Stage stage;
    const std::string bytes = stage.fileGet();
    const znCResourceName name(FILE_NAME, znCResourceName::USER_DATA);
    for (auto _ : pState)
    {
        const auto file = znIFile::create();
        file->open(name, znIFile::MODE_WRITE);
        file->write(bytes.data(), static_cast<uint32>(bytes.size()));
        file->close();
    }
}
BENCHMARK(LevelSave_reference)->Unit(benchmark::kMicrosecond);

// The player's file, and the level's state out of it.
void LevelRestore_ours(benchmark::State& pState)
{
    Stage stage;
    for (auto _ : pState)
    {
        znCHogUserSavedData& user = *znCHogUserSavedData::instanceGet();
        user.clear();
        user.savedFileLoad(znCResourceName(FILE_NAME, znCResourceName::USER_DATA));
        std::string fresh;
        Stage::level().treeSave(fresh);
        std::string state = znNSavedTree::fit(fresh, user.levelStateGet(SCENE)).mText;
        Stage::level().treeLoad(state);
    }
}
BENCHMARK(LevelRestore_ours)->Unit(benchmark::kMicrosecond);

void LevelRestore_reference(benchmark::State& pState)
{
    Stage stage;
    const znCResourceName name(FILE_NAME, znCResourceName::USER_DATA);
    for (auto _ : pState)
    {
        std::string bytes(static_cast<std::size_t>(znIFile::sizeGet(name)), '\0');
        const auto file = znIFile::create();
        file->open(name, znIFile::MODE_READ);
        file->read(bytes.data(), static_cast<uint32>(bytes.size()));
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(LevelRestore_reference)->Unit(benchmark::kMicrosecond);
} // namespace

BENCHMARK_MAIN();
