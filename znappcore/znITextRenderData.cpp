#include "znappcore/znITextRenderData.h"

#include "znappcore/znIDisplay.h"
#include "zncore/debug/znIDebug.h"

namespace
{
constexpr s32 BOX_WIDTH = 1024; // where there is no canvas to take the size of
constexpr s32 BOX_HEIGHT = 768;
} // namespace

znITextRenderData::znITextRenderData() : mFormattingRectSize(BOX_WIDTH, BOX_HEIGHT)
{
    if (znIDisplay::existsGet())
        mFormattingRectSize =
            znPoint(znIDisplay::instanceGet()->canvasWidthGet(), znIDisplay::instanceGet()->canvasHeightGet());
}

void znITextRenderData::initialise(const std::string& pText, znIFont* pFont)
{
    mText = pText;
    mFont = pFont;
    layoutUpdate();
}

void znITextRenderData::textSet(const std::string& pText)
{
    mText = pText;
    layoutUpdate();
}

void znITextRenderData::formattingRectSizeSet(s32 pWidth, s32 pHeight)
{
    ZN_ASSERT(mFont != nullptr, "Not initialised.\n");
    mFormattingRectSize = znPoint(pWidth, pHeight);
    layoutUpdate();
}

void znITextRenderData::alignmentSet(s32 pH, s32 pV)
{
    ZN_ASSERT(mFont != nullptr, "Not initialised.\n");
    alignmentSetDo(pH, pV);
    layoutUpdate();
}
