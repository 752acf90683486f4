// A scene folder whose list of placements is rubbish: the whole road from opening the level to leaving it, with a press
// in between. The program stands once for all inputs.

#include "tests/znhogcore/znCHogTestProgram.h"

#include <cstddef>
#include <cstdlib>

namespace
{
constexpr std::size_t SIZE_MAX_BYTES = 1 << 14; // longer lists only repeat shorter ones

class Program : public znCHogTestProgram
{
public:
    Program() { start(); }

    void play(const std::string& pCoords)
    {
        mPlatform.mFiles.fileSet("scenes/s/coords.txt", pCoords);
        savedStateForget("s");
        znCHogCoreMain::instanceGet()->nextScreenSet("s");
        frame();
        if (znIHogLevel::levelGet() == nullptr)
            std::abort();
        pointerSend(true);
        pointerSend(false);
        screenLeave();
        if (znIHogLevel::levelGet() != nullptr)
            std::abort();
    }

private:
    void pointerSend(bool pDown)
    {
        mPlatform.mInput.buttonQueue(0, pDown, CANVAS_WIDTH / 2, CANVAS_HEIGHT / 2);
        frame();
    }
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    static Program sProgram;
    if (pSize <= SIZE_MAX_BYTES)
        sProgram.play(std::string(reinterpret_cast<const char*>(pData), pSize));
    return 0;
}
