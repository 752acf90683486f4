#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNCMESSAGEBOXGUI_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNCMESSAGEBOXGUI_H

// A message with one way out: the buttons in its file close it by their actions.

#include "znappcore/components/gui/znIGuiComponent.h"

#include <string>

class znCMessageBoxGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCMessageBoxGui"};
    static constexpr const char* FILE_NAME = "gui/messageBox/messageBox.txt";
    static constexpr const char* TEXT_ENTITY = "MessageBoxMessageText";

    using znIGuiComponent::znIGuiComponent;
    ~znCMessageBoxGui() override = default;

    // The new box, in front of pParent's other children; see znNTextDialog. pText as it is shown.
    static znCEntity* messageBoxCreate(znINode* pParent, const std::string& pText);
};

#endif
