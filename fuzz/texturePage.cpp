// Any bytes as a texture page list: brushes that lie inside their texture, and at most a handful of log lines.

#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "tests/support/znNTestImages.h"
#include "znappcore/src/znCBrushManager.h"
#include "zncore/znCResourceName.h"

#include <cstdlib>
#include <sstream>

namespace
{
constexpr s32 WIDTH = 64;
constexpr s32 HEIGHT = 32;

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

void brushCheck(znCBrushManager& pManager, const std::string& pName)
{
    const znCBrushPtr brush = pManager.brushGet(znCResourceName(pName, 0), true);
    if (brush->widthGet() < 1 || brush->heightGet() < 1)
        std::abort();
    // Both corners index the hit map.
    brush->hitTest({0, 0});
    brush->hitTest({brush->widthGet() - 1, brush->heightGet() - 1});
    pManager.alpha8BrushCreate(brush);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    const znCTestCore core; // anew for each run, so that the log stays short
    znCTestPlatform& platform = *znCTestPlatform::instanceGet();
    znNGraphics::initialise();
    const std::string text(reinterpret_cast<const char*>(pData), pSize);
    platform.mFiles.fileSet("page.txt", text);
    platform.mFiles.fileSet("page.png", pictureGet());
    znCBrushManager::create();
    znCBrushManager& manager = *znCBrushManager::instanceGet();
    manager.texturePageLoad(znCResourceName("page.txt", 0), true);
    std::istringstream lines(text);
    std::string line;
    std::getline(lines, line);
    for (s32 i = 0; i < 8 && std::getline(lines, line, ','); ++i)
        if (!line.empty())
            brushCheck(manager, line.substr(line.find('\n') + 1));
    if (platform.logCountGet("Attempting to test a hit point") != 0)
        std::abort();
    znCBrushManager::destroy();
    znNGraphics::terminate();
    return 0;
}
