// A scene folder whose list of placements is rubbish: the whole road from opening the level to leaving it, with a press
// in between. The program stands once for all inputs.

#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/znIHogLevel.h"

#include <cstddef>
#include <cstdlib>

namespace
{
constexpr s32 FRAME_MS = 16;
constexpr std::size_t SIZE_MAX_BYTES = 1 << 14; // longer lists only repeat shorter ones

class FuzzMain : public znCHogCoreMain
{
public:
    static void create()
    {
        auto* instance = new FuzzMain; // deleted by znCAppCoreMain::destroy()
        instanceSet(instance);
        instance->startUp();
    }
};

class Program
{
public:
    Program()
    {
        mPlatform.mFiles.fileSet("appsettings.txt", "appCanvasW = \"800\",\r\nappCanvasH = \"600\",\r\n");
        mPlatform.mFiles.fileSet("strings.txt", "find = \"find\",\r\n");
        mPlatform.configSet("s3e", "FullScreen", "0");
        znNGraphics::initialise();
        FuzzMain::create();
    }
    ~Program()
    {
        znCAppCoreMain::destroy();
        znNGraphics::terminate();
    }

    void play(const std::string& pCoords)
    {
        mPlatform.mFiles.fileSet("scenes/s/coords.txt", pCoords);
        znCUserSavedData::instanceGet()->strSet("LevDat:s", "");
        znCHogCoreMain::instanceGet()->nextScreenSet("s");
        frame();
        if (znIHogLevel::levelGet() == nullptr)
            std::abort();
        pointerQueue(true);
        pointerQueue(false);
        znCGuiMessageDispatcher::instanceGet()->messageSend(znIHogLevel::FADE_OUT_COMPLETE,
                                                            znCEmptyMessageData::sharedGet());
        frame();
        if (znIHogLevel::levelGet() != nullptr)
            std::abort();
    }

private:
    void pointerQueue(bool pDown)
    {
        mPlatform.mInput.buttonQueue(0, pDown, 400, 300);
        frame();
    }
    void frame()
    {
        s3ePointerUpdate();
        znCAppCoreMain::instanceGet()->frameUpdate(FRAME_MS);
    }

    znCTestPlatform mPlatform;
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    static Program sProgram;
    if (pSize <= SIZE_MAX_BYTES)
        sProgram.play(std::string(reinterpret_cast<const char*>(pData), pSize));
    return 0;
}
