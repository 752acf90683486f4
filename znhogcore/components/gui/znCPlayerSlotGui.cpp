#include "znhogcore/components/gui/znCPlayerSlotGui.h"

#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCProfileManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znStr.h"

#include <algorithm>

namespace
{
constexpr char NAME_TEXT[] = "PlayerSlotNameText";
} // namespace

void znCPlayerSlotGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    const std::string& name = entityGet()->nameGet();
    mIndex = znStr::toS32(std::string_view(name).substr(std::min(name.size(), std::char_traits<char>::length(NAME))));
    slotUpdate();
}

void znCPlayerSlotGui::slotUpdate()
{
    const znCGlobalSavedData* global = znCGlobalSavedData::instanceGet();
    const bool taken = mIndex < global->profileCountGet();
    entityGet()->activeSet(taken);
    if (!taken)
        return;
    znNGuiChildren::textSet(*this, NAME_TEXT, global->profileNameGet(mIndex));
}

bool znCPlayerSlotGui::onButtonClicked(znCButtonComponent*)
{
    s32 index = mIndex;
    znCGuiMessageDispatcher::instanceGet()->messageSend(znCGuiMessageDispatcher::PLAYER_SLOT_SELECTED, &index);
    return true;
}

void znCPlayerSlotGui::messagesRegister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCProfileManager::PROFILE_SLOTS_HAVE_CHANGED, this);
}

void znCPlayerSlotGui::messagesDeregister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCProfileManager::PROFILE_SLOTS_HAVE_CHANGED, this);
}

bool znCPlayerSlotGui::messageProcess(const znCUniqueId& pType, void*)
{
    const bool expected = pType == znCProfileManager::PROFILE_SLOTS_HAVE_CHANGED;
    ZN_ASSERT(expected, "Unexpected message type.\n");
    if (expected)
        slotUpdate();
    return false;
}
