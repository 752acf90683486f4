#include "znhogcore/components/gui/znCMapPopUpFVGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCScreenFade.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/components/gui/znCMapGui.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogMapLevel.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr char THUMBNAIL[] = "GUIMapSceneThumbnail";
constexpr char NAME_TEXT[] = "GUIMapSceneNameText";
constexpr char DESCRIPTION_TEXT[] = "GUIMapSceneDescriptionText";
constexpr char CONTINUE[] = "GUIMapContinueButton";
constexpr char DESCRIPTION[] = "Desc"; // behind the scene's name: key of its text
} // namespace

void znCMapPopUpFVGui::populate(const std::string& pLevel)
{
    znNGuiChildren::textSet(*this, NAME_TEXT, znCLocalisedStrings::localisedStringGet(pLevel));
    znNGuiChildren::textSet(*this, DESCRIPTION_TEXT, znCLocalisedStrings::localisedStringGet(pLevel + DESCRIPTION));
    const znCResourceName picture(znCMapGui::THUMBNAIL_FOLDER + pLevel + znCMapGui::THUMBNAIL_EXTENSION,
                                  znCResourceName::GAME_DATA);
    if (auto* thumbnail = znNGuiChildren::componentFind<znCSpriteComponent>(*this, THUMBNAIL))
        thumbnail->brushSet(znCBrushManager::instanceGet()->brushGet(picture, false));
}

bool znCMapPopUpFVGui::onButtonClicked(znCButtonComponent* pButton)
{
    if (pButton->entityGet()->nameGet() != CONTINUE)
        return false;
    const auto* map = dynamic_cast<const znCHogMapLevel*>(znIHogLevel::levelGet());
    if (mLeaving || map == nullptr)
        return true;
    mLeaving = true;
    znCScreenFade::instanceGet()->fadeOut(znCHogCoreMain::SCREEN_FADE_MS);
    const std::string next = map->nextLevelResolve();
    if (!next.empty())
    {
        znCHogCoreMain::instanceGet()->nextScreenSet(next);
        znCHogUserSavedData::instanceGet()->strSet(znCHogUserSavedData::MAP_LEVEL, "");
    }
    return true;
}
