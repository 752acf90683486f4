#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCPAUSEMENUGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCPAUSEMENUGUI_H

// The menu over a level. "PauseQuitButton" leaves the level for the main menu; its other buttons work by their actions.

#include "znappcore/components/gui/znIGuiComponent.h"

class znCPauseMenuGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCPauseMenuGui"};
    static constexpr const char* FILE_NAME = "gui/pauseMenu/pauseMenu.txt";

    using znIGuiComponent::znIGuiComponent;

    bool onButtonClicked(znCButtonComponent* pButton) override;
};

#endif
