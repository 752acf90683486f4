#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCMAPGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCMAPGUI_H

// The map's panel: what the map offers next. Widgets, all optional: the panel "GUIMapSceneInfoBg" with
// "GUIMapSceneThumbnail", "GUIMapSceneNameText", "GUIMapSceneDescriptionText", "GUIMapContinueButton" and
// "GUIMapClosePanelButton", and "GUIMapOptionsButton", which opens the pause menu.
//
// Without an offer the panel is hidden. A scene without a picture "gui/mapHUD/mapThumbs/" + scene + ".png" leaves the
// panel's picture and texts as the file has them.

#include "znappcore/components/gui/znIGuiComponent.h"

class znCMapGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCMapGui"};
    static constexpr const char* THUMBNAIL_FOLDER = "gui/mapHUD/mapThumbs/";
    static constexpr const char* THUMBNAIL_EXTENSION = ".png";
    static constexpr const char* NO_MORE_NEW_LEVELS = "thereAreNoMoreNewLevels"; // as the offer: there is none

    using znIGuiComponent::znIGuiComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool onButtonClicked(znCButtonComponent* pButton) override;

private:
    void offerShow(const std::string& pOffer);
};

#endif
