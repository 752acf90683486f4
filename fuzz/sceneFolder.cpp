// A whole scene folder of any bytes: level table, placements, pages, animations, the GUI with its lists, and the state
// that a player has stored. The scene is opened, pressed everywhere, left, opened from what it stored, pressed again,
// skipped and left.
//
// The input is the folder's files with a byte 255 between two of them; the first line of each is its name below the
// scene's folder, or "/" and a name below the data folder. The name "stored" stands for the stored state.

#include "tests/support/znNTestImages.h"
#include "tests/znhogcore/znCHogTestProgram.h"

#include <cstddef>

namespace
{
constexpr std::size_t SIZE_MAX_BYTES = 1 << 14;
constexpr s32 PRESSES_ACROSS = 6;
constexpr s32 PRESSES_DOWN = 5;
constexpr s32 EFFECT_FRAMES = 40; // long enough for what a press starts to get going
constexpr char LEVEL[] = "s";
constexpr char STORED[] = "stored";
constexpr char FILE_END = '\xff';

class Program : public znCHogTestProgram
{
public:
    explicit Program(const std::string& pFolder)
    {
        picturesSet();
        for (std::size_t begin = 0; begin < pFolder.size();)
        {
            const std::size_t end = std::min(pFolder.find(FILE_END, begin), pFolder.size());
            fileSet(pFolder.substr(begin, end - begin));
            begin = end + 1;
        }
        start();
    }

    void play()
    {
        savedStateForget(LEVEL);
        if (!mStored.empty())
            znCHogUserSavedData::instanceGet()->levelStateSet(LEVEL, mStored);
        open();
        pressEverywhere();
        if (znIHogLevel* level = znIHogLevel::levelGet())
            level->progressStore();
        screenLeave();
        open();
        pressEverywhere();
        if (znIHogLevel* level = znIHogLevel::levelGet())
            level->levelSkip();
        framesRun(EFFECT_FRAMES);
        screenLeave();
    }

private:
    // What most names of a small scene find.
    void picturesSet()
    {
        const auto png = znNTestImages::pngMake(16, 16, znNTestImages::Bytes(16 * 16 * 4, 200));
        for (const char* name : {"scenes/s/page.png", "scenes/s/background.png", "scenes/s/pck-a.png", "common/key.png",
                                 "a.png", "inventoryicons/a.png"})
            mPlatform.mFiles.fileSet(name, std::string(png.begin(), png.end()));
    }

    void fileSet(const std::string& pFile)
    {
        const std::size_t end = std::min(pFile.find('\n'), pFile.size());
        const std::string name = pFile.substr(0, end);
        const std::string content = pFile.substr(std::min(end + 1, pFile.size()));
        if (name == STORED)
            mStored = content;
        else if (!name.empty())
            mPlatform.mFiles.fileSet(name[0] == '/' ? name.substr(1) : znIHogLevel::folderOfGet(LEVEL) + name, content);
    }

    static void framesRun(s32 pCount)
    {
        for (s32 i = 0; i < pCount; ++i)
            frame();
    }

    static void open()
    {
        znCHogCoreMain::instanceGet()->nextScreenSet(LEVEL);
        framesRun(2);
    }

    void pressEverywhere()
    {
        for (s32 i = 0; i < PRESSES_ACROSS * PRESSES_DOWN; ++i)
            for (const bool down : {true, false})
            {
                mPlatform.mInput.buttonQueue(0, down,
                                             (2 * (i % PRESSES_ACROSS) + 1) * CANVAS_WIDTH / PRESSES_ACROSS / 2,
                                             (2 * (i / PRESSES_ACROSS) + 1) * CANVAS_HEIGHT / PRESSES_DOWN / 2);
                frame();
            }
        framesRun(EFFECT_FRAMES);
    }

    std::string mStored;
};
} // namespace

// The program stands anew for each input, so that one alone repeats what it found.
extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    if (pSize <= SIZE_MAX_BYTES)
        Program(std::string(reinterpret_cast<const char*>(pData), pSize)).play();
    return 0;
}
