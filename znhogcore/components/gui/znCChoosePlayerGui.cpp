#include "znhogcore/components/gui/znCChoosePlayerGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znCConfirmBoxGui.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCProfileManager.h"
#include "znappcore/znCEmptyMessageData.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znStr.h"
#include "znhogcore/components/gui/znCMainMenuGui.h"
#include "znhogcore/components/gui/znCPlayerSlotGui.h"

#include <algorithm>

namespace
{
constexpr char HIGHLIGHT[] = "ChoosePlayerHighlight";
constexpr char NEW[] = "ChoosePlayerNewButton";
constexpr char DELETE[] = "ChoosePlayerDeleteButton";
constexpr char OK[] = "ChoosePlayerOKButton";
constexpr char DELETE_WARNING[] = "deleteprofilewarning";
constexpr char NAME_MARK[] = "%NAME";
constexpr znCUniqueId MESSAGES[] = {znCGuiMessageDispatcher::PLAYER_SLOT_SELECTED,
                                    znCProfileManager::PROFILE_SLOTS_HAVE_CHANGED, znCConfirmBoxGui::YES_RESPONSE};

s32 playersCount()
{
    return znCGlobalSavedData::instanceGet()->profileCountGet();
}

s32 currentGet()
{
    return znCGlobalSavedData::instanceGet()->currentProfileGet();
}

// Whoever is current already is not read again: that would undo what the command line asked of the screen.
void playerTake(s32 pIndex)
{
    if (pIndex != currentGet())
        znCProfileManager::instanceGet()->profileSelect(pIndex);
}
} // namespace

znCEntity* znCChoosePlayerGui::slotFind(s32 pIndex) const
{
    return znNGuiChildren::entityFind(*this, znCPlayerSlotGui::NAME + std::to_string(pIndex));
}

void znCChoosePlayerGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    while (slotFind(mSlotCount) != nullptr)
        ++mSlotCount;
    mHighlight = znNGuiChildren::entityFind(*this, HIGHLIGHT);
    currentProfileSet(currentGet());
    buttonsUpdate();
}

void znCChoosePlayerGui::buttonsUpdate()
{
    znNGuiChildren::activeSet(*this, DELETE, playersCount() > 0);
    znNGuiChildren::activeSet(*this, OK, playersCount() > 0);
    znNGuiChildren::activeSet(*this, NEW, playersCount() < mSlotCount);
}

void znCChoosePlayerGui::currentProfileSet(s32 pIndex)
{
    ZN_ASSERT(pIndex < mSlotCount, "Current profile number is higher than the number of profile slots.\n");
    const bool listed = pIndex >= 0 && pIndex < mSlotCount;
    mSelected = listed ? pIndex : znCGlobalSavedData::PROFILE_NONE;
    if (mHighlight != nullptr)
        mHighlight->activeSet(listed);
    if (!listed)
        return;
    highlightMove(pIndex);
    playerTake(pIndex);
}

void znCChoosePlayerGui::highlightMove(s32 pIndex)
{
    if (mHighlight != nullptr)
        mHighlight->posSet(znPoint(mHighlight->posGet().mX, slotFind(pIndex)->posGet().mY));
}

// Of a current player whose place has changed the index is right already; otherwise the nearest one is chosen.
void znCChoosePlayerGui::slotsRecount()
{
    const s32 current = currentGet();
    mSelected = current != znCGlobalSavedData::PROFILE_NONE ? current : std::min(mSelected, playersCount() - 1);
    buttonsUpdate();
    currentProfileSet(mSelected);
}

bool znCChoosePlayerGui::onButtonClicked(znCButtonComponent* pButton)
{
    const std::string& name = pButton->entityGet()->nameGet();
    if (name == DELETE)
        deletionAsk();
    else if (name == OK)
        choiceConfirm();
    else
        return false;
    return true;
}

void znCChoosePlayerGui::deletionAsk()
{
    if (mSelected == znCGlobalSavedData::PROFILE_NONE)
        return;
    const std::string player = znCGlobalSavedData::instanceGet()->profileNameGet(mSelected);
    znStr text = znCLocalisedStrings::localisedStringGet(DELETE_WARNING);
    if (player.find(NAME_MARK) == std::string::npos)
        text.replaceAll(NAME_MARK, player);
    znCConfirmBoxGui::confirmBoxCreate(entityGet(), text);
}

void znCChoosePlayerGui::choiceConfirm()
{
    if (mSelected != znCGlobalSavedData::PROFILE_NONE)
        playerTake(mSelected);
    znCGuiMessageDispatcher::instanceGet()->messageSend(znCMainMenuGui::PROFILE_CHANGED,
                                                        znCEmptyMessageData::sharedGet());
    entityGet()->destroy();
}

void znCChoosePlayerGui::messagesRegister()
{
    for (const znCUniqueId& message : MESSAGES)
        znCGuiMessageDispatcher::instanceGet()->listenerRegister(message, this);
}

void znCChoosePlayerGui::messagesDeregister()
{
    for (const znCUniqueId& message : MESSAGES)
        znCGuiMessageDispatcher::instanceGet()->listenerDeregister(message, this);
}

bool znCChoosePlayerGui::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCGuiMessageDispatcher::PLAYER_SLOT_SELECTED)
        currentProfileSet(*static_cast<const s32*>(pData));
    else if (pType == znCConfirmBoxGui::YES_RESPONSE)
        znCProfileManager::instanceGet()->profileDelete(mSelected);
    else
    {
        if (pType == znCProfileManager::PROFILE_SLOTS_HAVE_CHANGED)
            slotsRecount();
        return false;
    }
    return true;
}
