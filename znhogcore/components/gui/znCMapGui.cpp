#include "znhogcore/components/gui/znCMapGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "znhogcore/components/gui/znCPauseMenuGui.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr char PANEL[] = "GUIMapSceneInfoBg";
constexpr char THUMBNAIL[] = "GUIMapSceneThumbnail";
constexpr char NAME_TEXT[] = "GUIMapSceneNameText";
constexpr char DESCRIPTION_TEXT[] = "GUIMapSceneDescriptionText";
constexpr char CONTINUE[] = "GUIMapContinueButton";
constexpr char OPTIONS[] = "GUIMapOptionsButton";
constexpr char CLOSE_PANEL[] = "GUIMapClosePanelButton";
constexpr char DESCRIPTION[] = "-desc"; // behind the scene's name: key of its text
} // namespace

void znCMapGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIGuiComponent::initialiseFromVariableTableDo(pTable);
    const std::string offer = znCHogUserSavedData::instanceGet()->strGet(znCHogUserSavedData::MAP_LEVEL);
    const bool offering = !offer.empty() && offer != NO_MORE_NEW_LEVELS;
    znNGuiChildren::activeSet(*this, CONTINUE, offering);
    znNGuiChildren::activeSet(*this, PANEL, offering);
    offerShow(offer);
}

void znCMapGui::offerShow(const std::string& pOffer)
{
    const znCResourceName picture(THUMBNAIL_FOLDER + pOffer + THUMBNAIL_EXTENSION, znCResourceName::GAME_DATA);
    if (!znIFile::existsGet(picture))
        return;
    if (auto* thumbnail = znNGuiChildren::componentFind<znCSpriteComponent>(*this, THUMBNAIL))
        thumbnail->brushSet(znCBrushManager::instanceGet()->brushGet(picture, false));
    znNGuiChildren::textSet(*this, NAME_TEXT, znCLocalisedStrings::localisedStringGet(pOffer));
    znNGuiChildren::textSet(*this, DESCRIPTION_TEXT, znCLocalisedStrings::localisedStringGet(pOffer + DESCRIPTION));
}

bool znCMapGui::onButtonClicked(znCButtonComponent* pButton)
{
    const std::string& name = pButton->entityGet()->nameGet();
    if (name == OPTIONS)
        guiCreateFromFile(znCResourceName(znCPauseMenuGui::FILE_NAME, znCResourceName::GAME_DATA), entityGet(), true);
    else if (name == CLOSE_PANEL)
        znNGuiChildren::activeSet(*this, PANEL, false);
    else
        return name == CONTINUE;
    return true;
}
