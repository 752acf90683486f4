#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCPLAYERSLOTGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCPLAYERSLOTGUI_H

// One line of the list of players. The number behind "ChoosePlayerProfile" in its entity's name says whose it is; the
// text "PlayerSlotNameText" shows the name. A line without a player is hidden.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

class znCPlayerSlotGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCPlayerSlotGui"};
    static constexpr const char* NAME = "ChoosePlayerProfile"; // and the number, from 0
    // Sent through znCGuiMessageDispatcher by a press on the line; data: pointer to the player's s32 index.
    static constexpr znCUniqueId SELECTED{"PlayerSlotSelected"};

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
