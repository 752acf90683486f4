#include "znappcore/znITextRenderData.h"

#include "znappcore/znIDisplay.h"
#include "zncore/debug/znIDebug.h"

znITextRenderData::znITextRenderData()
{
    if (znIDisplay::existsGet())
        mFormattingRectSize =
            znPoint(znIDisplay::instanceGet()->canvasWidthGet(), znIDisplay::instanceGet()->canvasHeightGet());
    else
        mFormattingRectSize = znPoint(0, 0);
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
