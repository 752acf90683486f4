#include "znappcore/components/znCTextEntryComponent.h"

#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"
#include "zncore/znStr.h"

#include <utility>

namespace
{
constexpr s32 BACKSPACE = 8;
constexpr s32 SPACE = 32;
constexpr s32 DELETE = 127;
// Characters that need more than 16 bits come as two halves.
constexpr s32 HALVES_FIRST = 0xD800;
constexpr s32 SECOND_HALVES_FIRST = 0xDC00;
constexpr s32 HALVES_LAST = 0xDFFF;
constexpr s32 HALF_BITS = 10;
constexpr s32 WHOLE_FIRST = 0x10000;
constexpr s32 CODE_MAX = 0x10FFFF;

bool firstHalfGet(s32 pCode)
{
    return pCode >= HALVES_FIRST && pCode < SECOND_HALVES_FIRST;
}

bool secondHalfGet(s32 pCode)
{
    return pCode >= SECOND_HALVES_FIRST && pCode <= HALVES_LAST;
}

bool typeableGet(s32 pCode)
{
    return pCode >= SPACE && pCode != DELETE && pCode <= CODE_MAX && (pCode < HALVES_FIRST || pCode > HALVES_LAST);
}
} // namespace

znCTextEntryComponent::znCTextEntryComponent(znCEntity* pEntity)
    : znCTextSpriteComponent(pEntity), znIMessageListener(LISTENER_PRIORITY)
{
}

void znCTextEntryComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znCTextSpriteComponent::initialiseFromVariableTableDo(pTable);
    mMaxStringLength = pTable.s32Get("maxStringLength", 0);
    ZN_ASSERT(mMaxStringLength > 0, "maxStringLength is expected to be above 0.\n");
    caretCreate();
    caretUpdate();
}

void znCTextEntryComponent::caretCreate()
{
    if (mCaret != nullptr)
        return;
    mCaret = new znCEntity(CARET_NAME); // owned by the parent that it gets here
    if (auto* animation = mCaret->componentAdd<znCAnimatingSpriteComponent>())
        animation->xmlLoad(znCResourceName(CARET_ANIMATION, znCResourceName::GAME_DATA), false);
    mEntity->childAdd(mCaret);
}

void znCTextEntryComponent::caretUpdate()
{
    if (mCaret != nullptr)
        mCaret->posSet(textWidthGet() - boxSizeGet().mX / 2, 0);
}

void znCTextEntryComponent::messagesRegister()
{
    znIInputManager* input = znIInputManager::instanceGet();
    if (input == nullptr)
        return;
    input->listenerRegister(znIInputManager::POINTER_DOWN, this);
    input->listenerRegister(znIInputManager::TYPED_CHAR, this);
}

void znCTextEntryComponent::messagesDeregister()
{
    znIInputManager* input = znIInputManager::instanceGet();
    if (input == nullptr)
        return;
    input->listenerDeregister(znIInputManager::POINTER_DOWN, this);
    input->listenerDeregister(znIInputManager::TYPED_CHAR, this);
}

bool znCTextEntryComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znIInputManager::TYPED_CHAR)
    {
        characterTake(*static_cast<const s32*>(pData));
        return true;
    }
    if (pType == znIInputManager::POINTER_DOWN)
        return dialogOpen(static_cast<const znCPointerMessage*>(pData)->mPos);
    return false;
}

void znCTextEntryComponent::characterTake(s32 pCode)
{
    const s32 firstHalf = std::exchange(mFirstHalf, firstHalfGet(pCode) ? pCode : 0);
    const bool whole = firstHalf != 0 && secondHalfGet(pCode);
    const s32 code =
        whole ? WHOLE_FIRST + ((firstHalf - HALVES_FIRST) << HALF_BITS) + (pCode - SECOND_HALVES_FIRST) : pCode;
    if (entryChange(code))
        entryShow();
}

// Whether the character changed the entry.
bool znCTextEntryComponent::entryChange(s32 pCode)
{
    znStr entry = mEntry;
    const s32 length = entry.lengthGet();
    if (pCode == BACKSPACE)
    {
        if (length > 0)
            entry.truncate(length - 1);
    }
    else if (typeableGet(pCode) && length < mMaxStringLength && (pCode != SPACE || length > 0))
        entry += pCode;
    const bool changed = entry != mEntry;
    mEntry = entry;
    return changed;
}

// On a device without a keyboard; waits until the person closes the dialog.
bool znCTextEntryComponent::dialogOpen(const znPoint& pPoint)
{
    znIInputManager* input = znIInputManager::instanceGet();
    if (input == nullptr || input->hardKeyboardHas())
        return false;
    znINode* parent = mEntity->parentGet();
    auto* grandparent = parent != nullptr ? dynamic_cast<znCEntity*>(parent->parentGet()) : nullptr;
    ZN_ASSERT(grandparent != nullptr, "Expected to find an Entity grandparent.\n");
    auto* sprite = grandparent != nullptr ? grandparent->componentFind<znCSpriteComponent>() : nullptr;
    ZN_ASSERT(grandparent == nullptr || sprite != nullptr, "Expected grandparent to have a sprite.\n");
    if (sprite == nullptr || !sprite->hitTest(pPoint, false))
        return false;
    mEntry = input->stringInputGet(znCLocalisedStrings::localisedStringGet(PROMPT_KEY), mEntry, mMaxStringLength);
    entryShow();
    return true;
}

void znCTextEntryComponent::entryShow()
{
    textSet(mEntry);
    caretUpdate();
}
