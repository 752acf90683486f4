#include "znappcore/components/znCTextSpriteComponent.h"

#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCFontManager.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/znIRenderer.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"

namespace
{
// The place of a word in a list of three; -1 if it isn't there.
s32 wordFind(const std::string& pWord, const char* const (&pWords)[3])
{
    for (s32 i = 0; i < 3; ++i)
        if (pWord == pWords[i])
            return i;
    return -1;
}
} // namespace

void znCTextSpriteComponent::render()
{
    mRenderData.glyphsRefresh();
    if (mRenderData.glyphCountGet() == 0)
        return;
    if (znIRenderer* renderer = znIRenderer::instanceGet())
        renderer->textAddToBatch(&mRenderData);
}

void znCTextSpriteComponent::matrixApply()
{
    mRenderData.matrixApply(mEntity->worldMatrixGet());
}

void znCTextSpriteComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIComponent::initialiseFromVariableTableDo(pTable);
    const std::string font = pTable.strGet("font", "");
    const s32 size = pTable.s32Get("fontSize", 0);
    ZN_ASSERT(!font.empty(), "No font set for text sprite %s.\n", mEntity->nameGet().c_str());
    ZN_ASSERT(size > 0, "Invalid font size for text sprite %s (%d).\n", mEntity->nameGet().c_str(), size);
    znCFontManager* fonts = font.empty() || size <= 0 ? nullptr : znCFontManager::instanceGet();
    if (fonts == nullptr)
        return;
    const std::string key = pTable.strGet("textKey", "");
    mRenderData.initialise(key.empty() ? "" : znCLocalisedStrings::localisedStringGet(key),
                           fonts->fontGet(znCResourceName(font, znCResourceName::GAME_DATA), size));
    boxFromTable(pTable);
    alignmentFromTable(pTable);
    const std::string colour = pTable.strGet("colourRGBA", "");
    if (!colour.empty())
        mRenderData.colourSet(znCColour(colour));
}

void znCTextSpriteComponent::boxFromTable(const znCVariableTable& pTable)
{
    const s32 width = pTable.s32Get("width", 0);
    const s32 height = pTable.s32Get("height", 0);
    const znPoint size = mRenderData.formattingRectSizeGet();
    if (width > 0 || height > 0)
        mRenderData.formattingRectSizeSet(width > 0 ? width : size.mX, height > 0 ? height : size.mY);
}

void znCTextSpriteComponent::alignmentFromTable(const znCVariableTable& pTable)
{
    const std::string horizontal = pTable.strGet("alignmentH", "centre");
    const std::string vertical = pTable.strGet("alignmentV", "middle");
    const s32 h = wordFind(horizontal, {"left", "centre", "right"});
    const s32 v = wordFind(vertical, {"top", "middle", "bottom"});
    ZN_ASSERT(h >= 0, "Unknown alignmentH for TextSprite %s (%s). Use 'left', 'centre' or 'right'.\n",
              mEntity->nameGet().c_str(), horizontal.c_str());
    ZN_ASSERT(v >= 0, "Unknown alignmentV for TextSprite %s (%s). Use 'top', 'middle' or 'bottom'.\n",
              mEntity->nameGet().c_str(), vertical.c_str());
    mRenderData.alignmentSet(h >= 0 ? h : znCTextRenderData::ALIGN_CENTRE,
                             v >= 0 ? v : znCTextRenderData::ALIGN_MIDDLE);
}

void znCTextSpriteComponent::textSet(const std::string& pText)
{
    if (pText != mRenderData.textGet())
        mRenderData.textSet(pText);
}

std::string znCTextSpriteComponent::textGet() const
{
    return mRenderData.textGet();
}

void znCTextSpriteComponent::textSet(znCEntity* pEntity, const std::string& pText)
{
    auto* component = pEntity != nullptr ? pEntity->componentFind<znCTextSpriteComponent>() : nullptr;
    ZN_ASSERT(component != nullptr, "Entity %s does not have a TextSpriteComponent.\n",
              pEntity != nullptr ? pEntity->nameGet().c_str() : "");
    if (component != nullptr)
        component->textSet(pText);
}
