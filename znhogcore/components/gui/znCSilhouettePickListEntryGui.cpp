#include "znhogcore/components/gui/znCSilhouettePickListEntryGui.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>

namespace
{
constexpr char WIDTH_KEY[] = "width";
constexpr char HEIGHT_KEY[] = "height";
constexpr char COLOUR_HIDDEN[] = "00000000";
constexpr char COLOUR_SHAPE[] = "000000ff";
constexpr char COLOUR_OBJECT[] = "ffffffff";
constexpr char COLOUR_GONE[] = "ffffff00";
constexpr s32 FADE_MS = 250;
constexpr s32 HOLD_MS = 2000;
} // namespace

znCSilhouettePickListEntryGui::znCSilhouettePickListEntryGui(znCEntity* pEntity) : znIPickListEntryGui(pEntity)
{
    mOnGraph.dataAdd(0, znCColour(COLOUR_HIDDEN));
    mOnGraph.dataAdd(FADE_MS, znCColour(COLOUR_SHAPE));
    mOffGraph.dataAdd(0, znCColour(COLOUR_SHAPE));
    mOffGraph.dataAdd(FADE_MS, znCColour(COLOUR_OBJECT));
    mOffGraph.dataAdd(HOLD_MS, znCColour(COLOUR_OBJECT));
    mOffGraph.dataAdd(FADE_MS, znCColour(COLOUR_GONE));
}

void znCSilhouettePickListEntryGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIPickListEntryGui::initialiseFromVariableTableDo(pTable);
    mSlotWidth = pTable.f32Get(WIDTH_KEY);
    mSlotHeight = pTable.f32Get(HEIGHT_KEY);
    mEntity->componentAdd<znCSpriteComponent>();
}

void znCSilhouettePickListEntryGui::activateDo(const std::vector<znCEntity*>& pEntities)
{
    ZN_ASSERT(pEntities.size() == 1, "Not expecting grouped entities for a znCSilhouettePickListEntry.\n");
    mEntityName = pEntities.front()->nameGet();
    spriteBrushSet(0);
    mElapsedMs = 0;
}

void znCSilhouettePickListEntryGui::spriteBrushSet(s32 pTimeMs)
{
    znIHogLevel* level = znIHogLevel::levelGet();
    const auto* object = level != nullptr ? dynamic_cast<znCEntity*>(level->childFind(mEntityName)) : nullptr;
    const auto* objectSprite = object != nullptr ? object->componentGet<znCSpriteComponent>() : nullptr;
    ZN_ASSERT(objectSprite != nullptr, "Expected entities added to the silhouette list to have sprite components.\n");
    auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    ZN_ASSERT(sprite != nullptr, "Expected a znCSilhouettePickListEntry to have created a sprite component.\n");
    if (objectSprite == nullptr || sprite == nullptr)
        return;
    sprite->brushSet(objectSprite->brushGet());
    sprite->colourSet(mOnGraph.valueGet(pTimeMs));
    scaleToSlot(*sprite);
}

void znCSilhouettePickListEntryGui::scaleToSlot(const znCSpriteComponent& pSprite)
{
    const bool sized = mSlotWidth > 0.0f && mSlotHeight > 0.0f;
    ZN_ASSERT(sized, "Slot dimensions not set.");
    const znCBrush* brush = pSprite.brushGet().get();
    if (!sized || brush == nullptr || brush->widthGet() <= 0 || brush->heightGet() <= 0)
        return;
    mEntity->scaleSet(std::min(mSlotWidth / static_cast<float>(brush->widthGet()),
                               mSlotHeight / static_cast<float>(brush->heightGet())));
}

bool znCSilhouettePickListEntryGui::transitionOnUpdate(s32 pDeltaMs)
{
    return colourStep(mOnGraph, pDeltaMs);
}

bool znCSilhouettePickListEntryGui::transitionOffUpdate(s32 pDeltaMs)
{
    return colourStep(mOffGraph, pDeltaMs);
}

bool znCSilhouettePickListEntryGui::colourStep(const znCGraph<znCColour>& pGraph, s32 pDeltaMs)
{
    mElapsedMs += pDeltaMs;
    if (auto* sprite = mEntity->componentGet<znCSpriteComponent>())
        sprite->colourSet(pGraph.valueGet(mElapsedMs));
    return mElapsedMs >= pGraph.lastTimeGet();
}

bool znCSilhouettePickListEntryGui::entityCollected()
{
    mElapsedMs = 0;
    return true;
}

// A shape that stood here must not stay behind.
void znCSilhouettePickListEntryGui::resetDo()
{
    mEntityName.clear();
    mElapsedMs = 0;
    if (auto* sprite = mEntity->componentGet<znCSpriteComponent>())
        sprite->colourSet(mOnGraph.valueGet(0));
}

void znCSilhouettePickListEntryGui::mySave(std::string& pOut)
{
    znIPickListEntryGui::mySave(pOut);
    znINode::strSave(pOut, mEntityName);
}

// The name outlasts the item. A slot that is empty by now stays so.
void znCSilhouettePickListEntryGui::myLoad(std::string& pIn)
{
    znIPickListEntryGui::myLoad(pIn);
    mEntityName = znINode::strLoad(pIn);
    const bool shows = mEntryState != STATE_FREE && mEntryState != STATE_FINISHED;
    if (shows && !mEntityName.empty())
        spriteBrushSet(mEntryState == STATE_TRANSITION_ON ? 0 : mOnGraph.lastTimeGet());
}
