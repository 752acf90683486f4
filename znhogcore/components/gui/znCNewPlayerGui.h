#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCNEWPLAYERGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCNEWPLAYERGUI_H

// The window in which a new player signs a name and chooses how to play. Its entity must be named "NewPlayerWindow".
//
// Widgets: the text entry "NewPlayerTextEntry"; the check boxes "NewPlayerCasual" and, optional, "NewPlayerMale" and
// "NewPlayerFemale" with the picture "NewPlayerCharacterPanel"; the buttons "NewPlayerOKButton" and
// "NewPlayerCancelButton", which does nothing as long as there is no player at all.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

#include <string>

class znCNewPlayerGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCNewPlayerGui"};
    static constexpr const char* NAME = "NewPlayerWindow";
    static constexpr const char* FILE_NAME = "gui/newPlayer/newPlayer.txt";

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool onButtonClicked(znCButtonComponent* pButton) override;
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

private:
    void portraitUpdate();
    void okButtonClickedHandle();
    void messageBoxShow(const char* pKey, const std::string& pName);
    void choicesStore();
    bool checkedGet(const char* pName) const;

    bool mSigned = false; // the player is made: while the screen fades, the window takes no further press
};

#endif
