#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCPLAYERSLOTGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCPLAYERSLOTGUI_H

// One line of the list of players. The number behind "ChoosePlayerProfile" in its entity's name says whose it is; the
// text "PlayerSlotNameText" shows the name. A press on it sends znCGuiMessageDispatcher::PLAYER_SLOT_SELECTED. A line
// without a player is hidden.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

class znCPlayerSlotGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCPlayerSlotGui"};
    static constexpr const char* NAME = "ChoosePlayerProfile"; // and the number, from 0

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool onButtonClicked(znCButtonComponent* pButton) override;
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

private:
    void slotUpdate();

    s32 mIndex = 0;
};

#endif
