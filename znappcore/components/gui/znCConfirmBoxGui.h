#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNCCONFIRMBOXGUI_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNCCONFIRMBOXGUI_H

// A question with yes and no: one of two messages, and the box goes.

#include "znappcore/components/gui/znIGuiComponent.h"

#include <string>

class znCConfirmBoxGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCConfirmBoxGui"};
    static constexpr const char* FILE_NAME = "gui/confirmBox/confirmBox.txt";
    static constexpr const char* TEXT_ENTITY = "ConfirmBoxMessageText";
    static constexpr const char* YES_BUTTON = "ConfirmBoxYesButton";
    static constexpr const char* NO_BUTTON = "ConfirmBoxNoButton";

    // Sent through znCGuiMessageDispatcher while the box still stands; empty data.
    static constexpr znCUniqueId YES_RESPONSE{"confirmGuiYesResponse"};
    static constexpr znCUniqueId NO_RESPONSE{"confirmGuiNoResponse"};

    using znIGuiComponent::znIGuiComponent;

    bool onButtonClicked(znCButtonComponent* pButton) override;

    // The new box, in front of pParent's other children; see znNTextDialog. pText as it is shown.
    static znCEntity* confirmBoxCreate(znINode* pParent, const std::string& pText);
};

#endif
