#include "znappcore/components/gui/znCRollOverGui.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znNCoreUtils.h"

namespace
{
constexpr s32 RAISE = 10 - 80; // from what a caption belongs to, canvas units

// Null if there is none below the GUI.
znCTextSpriteComponent* textFind(znCEntity& pGui)
{
    const znCEntity* entity = pGui.entityWithComponentFind(typeid(znCTextSpriteComponent));
    return entity != nullptr ? entity->componentGet<znCTextSpriteComponent>() : nullptr;
}
} // namespace

void znCRollOverGui::messagesRegister()
{
    znIInputManager::instanceGet()->listenerRegister(znIInputManager::POINTER_MOVE, this);
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(CLOSE_ROLL_OVER, this);
}

void znCRollOverGui::messagesDeregister()
{
    znIInputManager::instanceGet()->listenerDeregister(znIInputManager::POINTER_MOVE, this);
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(CLOSE_ROLL_OVER, this);
}

bool znCRollOverGui::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znIInputManager::POINTER_MOVE)
        pointerMoveHandle(static_cast<const znCPointerMessage*>(pData)->mPos);
    else if (pType == CLOSE_ROLL_OVER)
        captionShow(nullptr, znPoint(0, 0));
    return false;
}

void znCRollOverGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    if (znCTextSpriteComponent* text = textFind(*mEntity))
    {
        text->textSet(pTable.strGet("maxStr"));
        mMaxTextWidth = text->textWidthGet();
    }
    mEntity->activeSet(false);
}

void znCRollOverGui::rollOverEntriesSet(const std::vector<Entry>& pEntries)
{
    captionShow(nullptr, znPoint(0, 0));
    mRollOverEntries = pEntries;
    mSprites.clear();
    for (const Entry& entry : mRollOverEntries)
        mSprites.push_back(entry.mEntity->componentGet<znCSpriteComponent>());
}

bool znCRollOverGui::hitGet(znCSpriteComponent* pSprite, const znPoint& pPoint)
{
    return pSprite != nullptr && pSprite->hitTest(pPoint, true);
}

void znCRollOverGui::pointerMoveHandle(const znPoint& pPoint)
{
    const Entry* entry = entryFind(pPoint, [](const Entry&) { return true; });
    captionShow(entry, entry != nullptr ? entry->mEntity->posGet() : znPoint(0, 0));
}

void znCRollOverGui::captionShow(const Entry* pEntry, const znPoint& pPos)
{
    if (pEntry != nullptr && (pEntry != mShown || !mEntity->activeGet()))
    {
        mEntity->activeSet(true);
        mEntity->posSet(znPoint(pPos.mX, znNCoreUtils::s32Saturate(s64(pPos.mY) + RAISE)));
        textShow(pEntry->mText);
    }
    else if (pEntry == nullptr && mEntity->activeGet())
        mEntity->activeSet(false);
    mShown = pEntry;
}

void znCRollOverGui::textShow(const std::string& pText)
{
    znCTextSpriteComponent* text = textFind(*mEntity);
    if (text == nullptr)
        return;
    text->textSet(pText);
    znCEntity* back = mEntity->entityWithComponentFind(typeid(znCSpriteComponent));
    if (back != nullptr && mMaxTextWidth > 0)
        back->scaleSet(static_cast<float>(text->textWidthGet()) / static_cast<float>(mMaxTextWidth), back->scaleYGet());
}

void znCRollOverGui::update(s32)
{
    if (mShown != nullptr && !mShown->mEntity->activeInTreeGet())
        captionShow(nullptr, znPoint(0, 0));
}

void znCRollOverGui::myPostLoad()
{
    captionShow(nullptr, znPoint(0, 0));
}
