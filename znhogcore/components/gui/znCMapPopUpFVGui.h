#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCMAPPOPUPFVGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCMAPPOPUPFVGUI_H

// What the map shows of the scene on offer before the first visit. Widgets: "GUIMapSceneNameText",
// "GUIMapSceneDescriptionText", "GUIMapSceneThumbnail", and "GUIMapContinueButton", which goes there.

#include "znappcore/components/gui/znIGuiComponent.h"

class znCMapPopUpFVGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCMapPopUpFVGui"};
    static constexpr const char* FILE_NAME = "gui/mapHUD/firstVisitScenePopup/firstVisitScenePopup.txt";

    using znIGuiComponent::znIGuiComponent;

    bool onButtonClicked(znCButtonComponent* pButton) override;
    void populate(const std::string& pLevel);

private:
    bool mLeaving = false; // a second press behind the first finds the offer gone
};

#endif
