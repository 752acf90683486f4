#include "znhogcore/components/gui/znCSingleItemPickListEntryGui.h"

#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "znhogcore/components/znCNameComponent.h"

#include <algorithm>

namespace
{
constexpr char VISIBLE_KEY[] = "visible";
constexpr char TEXT_NAME[] = "pickListEntryText";
// Keys of localised strings; the suffixes stand behind the item's key.
constexpr char FIND[] = "find";
constexpr char SINGLE_SUFFIX[] = "Single";
constexpr char PLURAL_SUFFIX[] = "Plural";
constexpr char IN_THE_SCENE[] = "inTheScene";
} // namespace

void znCSingleItemPickListEntryGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIPickListEntryGui::initialiseFromVariableTableDo(pTable);
    mVisible = pTable.boolGet(VISIBLE_KEY, true);
}

void znCSingleItemPickListEntryGui::activateDo(const std::vector<znCEntity*>& pEntities)
{
    mCount = static_cast<s32>(pEntities.size());
    const znCNameComponent* name = znCNameComponent::get(pEntities.front());
    mItemKey = name != nullptr ? name->keyGet() : std::string();
    textUpdate();
}

void znCSingleItemPickListEntryGui::resetDo()
{
    mCount = 0;
    mItemKey.clear();
    textUpdate();
}

bool znCSingleItemPickListEntryGui::transitionOnUpdate(s32)
{
    return true;
}

bool znCSingleItemPickListEntryGui::transitionOffUpdate(s32)
{
    return true;
}

bool znCSingleItemPickListEntryGui::entityCollected()
{
    --mCount;
    textUpdate();
    return mCount <= 0;
}

void znCSingleItemPickListEntryGui::countLimit(s32 pCount)
{
    if (mCount <= pCount)
        return;
    mCount = pCount;
    textUpdate();
}

void znCSingleItemPickListEntryGui::textUpdate()
{
    znCTextSpriteComponent* text = textChildFind(TEXT_NAME);
    ZN_ASSERT(text != nullptr, "Expected a text entity in a znCSingleItemPickListEntryGui");
    if (text == nullptr)
        return;
    if (mVisible)
        text->textSet(sentenceGet());
    else
        text->entityGet()->activeSet(false);
}

std::string znCSingleItemPickListEntryGui::sentenceGet() const
{
    if (mCount <= 0)
        return "";
    const char* suffix = mCount == 1 ? SINGLE_SUFFIX : PLURAL_SUFFIX;
    return znCLocalisedStrings::localisedStringGet(FIND) + " " + std::to_string(mCount) + " " +
           znCLocalisedStrings::localisedStringGet(mItemKey + suffix) +
           znCLocalisedStrings::localisedStringGet(IN_THE_SCENE);
}

void znCSingleItemPickListEntryGui::mySave(std::string& pOut)
{
    znIPickListEntryGui::mySave(pOut);
    znINode::strSave(pOut, mItemKey);
    znINode::s32Save(pOut, mCount);
    znINode::boolSave(pOut, mVisible);
}

void znCSingleItemPickListEntryGui::myLoad(std::string& pIn)
{
    znIPickListEntryGui::myLoad(pIn);
    mItemKey = znINode::strLoad(pIn);
    mCount = std::max(znINode::s32Load(pIn), 0);
    mVisible = znINode::boolLoad(pIn);
    textUpdate();
}
