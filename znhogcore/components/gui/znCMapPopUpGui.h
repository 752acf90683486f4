#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCMAPPOPUPGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCMAPPOPUPGUI_H

// What the map shows of a visited scene: its results, and the way back into it. Widgets, all optional:
// "ScenePopupDestintationText", "ScenePopupRoundScore", "ScenePopupTrashText", "ScenePopupLostFoundText",
// "ScenePopupPerfectText", and "ScenePopupGoButton", which plays the scene from where it was left.

#include "znappcore/components/gui/znIGuiComponent.h"

class znCMapPopUpGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCMapPopUpGui"};
    static constexpr const char* FILE_NAME = "gui/mapHUD/scenePopup/scenePopup.txt";

    using znIGuiComponent::znIGuiComponent;

    bool onButtonClicked(znCButtonComponent* pButton) override;
    void populate(const std::string& pLevel);

    // How many bonus items of both kinds a level has and how many of them are found, out of its saved text without
    // opening it. A level without saved text leaves the four as they are.
    static void levelStatsGet(const std::string& pLevel, s32& pBonusCollected, s32& pBonusTotal,
                              s32& pSilhouetteCollected, s32& pSilhouetteTotal);

private:
    std::string mLevel;
    s32 mBonusCollected = 0;
    s32 mBonusTotal = 0;
    s32 mSilhouetteCollected = 0;
    s32 mSilhouetteTotal = 0;
};

#endif
