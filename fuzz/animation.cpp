// Any bytes as an animation file, played for a while, jumps and all.

#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/animatingSprite/znCAnimatingSprite.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIRenderer.h"
#include "zncore/znCResourceName.h"

namespace
{
constexpr s32 WIDTH = 16;
constexpr s32 HEIGHT = 4;

const std::string& pictureGet()
{
    static const std::string sPicture = []
    {
        const znNTestImages::Bytes png =
            znNTestImages::pngMake(WIDTH, HEIGHT, znNTestImages::Bytes(WIDTH * HEIGHT * 4, 255));
        return std::string(png.begin(), png.end());
    }();
    return sPicture;
}

void play(const std::string& pName)
{
    znCAnimatingSprite sprite(znCResourceName(pName, 0), true);
    for (s32 i = 0; i < 60; ++i)
    {
        sprite.update(i * 20);
        sprite.matrixApply(znAffineMtx2d());
        znIRenderer::instanceGet()->frameBegin();
        sprite.render();
        znIRenderer::instanceGet()->frameEnd();
        if (!sprite.isRunning())
            sprite.reset();
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    const znCTestCore core; // anew for each run, so that the log stays short
    znCTestPlatform& platform = *znCTestPlatform::instanceGet();
    platform.mFiles.fileSet("anim/fuzz.xml", std::string(reinterpret_cast<const char*>(pData), pSize));
    platform.mFiles.fileSet("anim/sheet.png", pictureGet());
    platform.mDraw.mRecording = false;
    znNGraphics::initialise();
    znIAudioManager::create();
    znIRenderer::create(1024, 1024);
    znCBrushManager::create();
    play("anim/fuzz.xml");
    znCBrushManager::destroy();
    znIRenderer::destroy();
    znIAudioManager::destroy();
    znNGraphics::terminate();
    return 0;
}
