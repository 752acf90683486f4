// Any bytes as a text in a box of any size, with fallback fonts and without: laid out, never a fault.

#include <fstream>
#include <iterator>

#include "media/znCGraphicsFont.h"
#include "media/znCGraphicsText.h"
#include "media/znNFonts.h"
#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "zncore/znCResourceName.h"

namespace
{
// The font layer and its fonts, read once.
struct Stage
{
    Stage()
    {
        for (const char* const name : {"clarendon.ttf", "fallback0.ttf", "fallback1.ttf", "fallback2.ttf"})
        {
            std::ifstream file(std::string(PETREL_ROOT "/data/fonts/") + name, std::ios::binary);
            const std::string content(std::istreambuf_iterator<char>(file), {});
            mPlatform.mFiles.fileSet(std::string("fonts/") + name, content);
        }
        znNGraphics::initialise();
        znNFonts::initialise();
        for (const char* const name : {"fonts/fallback0.ttf", "fonts/fallback1.ttf", "fonts/fallback2.ttf"})
            znNFonts::fallbackAdd(znCResourceName(name, znCResourceName::GAME_DATA));
        mFont.load(znCResourceName("fonts/clarendon.ttf", znCResourceName::GAME_DATA), 24);
        mNoFont.load(znCResourceName("fonts/none.ttf", znCResourceName::GAME_DATA), 24);
    }

    znCTestPlatform mPlatform;
    znCGraphicsFont mFont;
    znCGraphicsFont mNoFont;
    znCGraphicsText mText;
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    // Lives to the end of the process, as the game's does; still reachable, so no leak.
    static Stage& sStage = *new Stage();
    if (pSize < 3)
        return 0;
    const std::string text(reinterpret_cast<const char*>(pData) + 3, pSize - 3);
    const znCGraphicsFont& font = pData[2] >= 0xF0 ? sStage.mNoFont : sStage.mFont;
    sStage.mText.prepare(font, text, pData[0] * 4, pData[1] * 4, pData[2] % 3, pData[2] / 3 % 3);
    sStage.mText.uvsGet();
    sStage.mText.refresh();
    znNGraphics::flush();
    return 0;
}
