#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCMAINMENUGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCMAINMENUGUI_H

// The title screen. Its entity must be named "MainMenuGui": the next screen waits for it to be gone. Without a player
// it asks for one at once.
//
// Widgets: the text "MainMenuWelcomeMessage"; the buttons "MainMenuContinueButton" (a game is under way),
// "MainMenuNewGameButton" (none is) and "MainMenuQuitButton". All are optional.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

class znCMainMenuGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCMainMenuGui"};
    static constexpr const char* NAME = "MainMenuGui";
    // Through znCGuiMessageDispatcher, empty data: another player is playing.
    static constexpr znCUniqueId PROFILE_CHANGED{"ProfileChanged"};

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void update(s32 pDeltaMs) override;
    bool onButtonClicked(znCButtonComponent* pButton) override;
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

private:
    void statesUpdate();
    void welcomeUpdate(bool pProfile);

    bool mNewPlayerFailed = false; // its file is no use; asking again would only fill the screen

    bool mWindowFaulty = false; // what asks for a player didn't come; asking anew each frame would only repeat that
};

#endif
