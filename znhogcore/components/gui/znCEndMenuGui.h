#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCENDMENUGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCENDMENUGUI_H

// The screen behind the last level. "endScreenGUIContinueButton" leaves it for the main menu, and from then on the
// player's game goes on at the map with no new level to offer. Once that is so, the press is left to the button's
// action.

#include "znappcore/components/gui/znIGuiComponent.h"

class znCEndMenuGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCEndMenuGui"};
    static constexpr const char* NO_MORE_LEVELS = "map->noMoreLevels";

    using znIGuiComponent::znIGuiComponent;

    bool onButtonClicked(znCButtonComponent* pButton) override;
};

#endif
