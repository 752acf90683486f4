#include "znhogcore/components/gui/znCMainMenuGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znStr.h"
#include "znhogcore/components/gui/znCNewPlayerGui.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr char MUSIC[] = "audio/music/mainmenumusic.mp3";
constexpr char WELCOME[] = "MainMenuWelcomeMessage";
constexpr char CONTINUE[] = "MainMenuContinueButton";
constexpr char NEW_GAME[] = "MainMenuNewGameButton";
constexpr char QUIT[] = "MainMenuQuitButton";

s32 profileGet()
{
    return znCGlobalSavedData::instanceGet()->currentProfileGet();
}

void fadeOut()
{
    znCScreenFade::instanceGet()->fadeOut(znCHogCoreMain::SCREEN_FADE_MS);
}
} // namespace

void znCMainMenuGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    statesUpdate();
    znIAudioManager::instanceGet()->musicPlay(znCResourceName(MUSIC, znCResourceName::GAME_DATA));
}

void znCMainMenuGui::statesUpdate()
{
    const bool profile = profileGet() != znCGlobalSavedData::PROFILE_NONE;
    const bool underWay = znCHogUserSavedData::instanceGet()->gameInProgressGet();
    welcomeUpdate(profile);
    znNGuiChildren::activeSet(*this, CONTINUE, underWay);
    znNGuiChildren::activeSet(*this, NEW_GAME, profile && !underWay);
}

void znCMainMenuGui::welcomeUpdate(bool pProfile)
{
    znCEntity* entity = znNGuiChildren::entityFind(*this, WELCOME);
    if (entity == nullptr)
        return;
    entity->activeSet(pProfile);
    if (!pProfile)
        return;
    znStr text = znCLocalisedStrings::localisedStringGet("welcomemsg");
    text.replaceAll("$NAME", znCGlobalSavedData::instanceGet()->profileNameGet(profileGet()));
    znCTextSpriteComponent::textSet(entity, text);
}

void znCMainMenuGui::update(s32)
{
    if (mNewPlayerFailed || profileGet() != znCGlobalSavedData::PROFILE_NONE ||
        entityGet()->childFind(znCNewPlayerGui::NAME) != nullptr)
        return;
    guiCreateFromFile(znCResourceName(znCNewPlayerGui::FILE_NAME, znCResourceName::GAME_DATA), entityGet(), true);
    mNewPlayerFailed = entityGet()->childFind(znCNewPlayerGui::NAME) == nullptr;
    ZN_ASSERT(!mNewPlayerFailed, "Expected %s to hold an entity named %s.\n", znCNewPlayerGui::FILE_NAME,
              znCNewPlayerGui::NAME);
}

bool znCMainMenuGui::onButtonClicked(znCButtonComponent* pButton)
{
    const std::string& name = pButton->entityGet()->nameGet();
    znCHogCoreMain* main = znCHogCoreMain::instanceGet();
    if (name == QUIT)
        main->quitSet(true);
    else if (name == NEW_GAME)
    {
        main->firstSceneSet();
        fadeOut();
    }
    else if (name == CONTINUE)
    {
        main->nextScreenSet(znCHogUserSavedData::instanceGet()->currentLevelGet());
        fadeOut();
    }
    else
        return false;
    return true;
}

void znCMainMenuGui::messagesRegister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(PROFILE_CHANGED, this);
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCScreenFade::FADE_OUT_COMPLETE, this);
}

void znCMainMenuGui::messagesDeregister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(PROFILE_CHANGED, this);
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCScreenFade::FADE_OUT_COMPLETE, this);
}

bool znCMainMenuGui::messageProcess(const znCUniqueId& pType, void*)
{
    if (pType == PROFILE_CHANGED)
        statesUpdate();
    else if (pType == znCScreenFade::FADE_OUT_COMPLETE)
        entityGet()->destroy();
    return false;
}
