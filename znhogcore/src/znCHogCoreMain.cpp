#include "znhogcore/src/znCHogCoreMain.h"

#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/components/gui/znCMessageBoxGui.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "znhogcore/components/gui/znCMainMenuGui.h"
#include "znhogcore/components/znCHogLevelLoaderComponent.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/src/znCHogComponentFactory.h"
#include "znhogcore/src/znCHogEntityFactory.h"
#include "znhogcore/src/znCHogGlobalSavedData.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"
#include "znhogcore/znIHogLevel.h"

#include <utility>

namespace
{
constexpr char GUI_FILE_MARK[] = ".txt";
constexpr std::size_t LEVEL_NAME_SHORT = 3; // no file's name is as short
constexpr char MISSING_SCREEN_TEXT[] = "missingscreen";

// The file without which nothing of the screen can be shown.
std::string screenFileGet(const std::string& pScreen)
{
    return znCHogCoreMain::guiFileNameGet(pScreen)
               ? pScreen
               : znIHogLevel::folderOfGet(pScreen) + znCHogLevelLoaderComponent::COORDS_FILE;
}

bool screenExistsGet(const std::string& pScreen)
{
    return znIFile::existsGet(znCResourceName(screenFileGet(pScreen), znCResourceName::GAME_DATA));
}
} // namespace

znCHogCoreMain* znCHogCoreMain::instanceGet()
{
    return dynamic_cast<znCHogCoreMain*>(znCAppCoreMain::instanceGet());
}

void znCHogCoreMain::savedDataCreate()
{
    znCHogGlobalSavedData::create();
    znCHogUserSavedData::create();
}

bool znCHogCoreMain::guiFileNameGet(const std::string& pScreen)
{
    return pScreen.size() > LEVEL_NAME_SHORT && pScreen.find(GUI_FILE_MARK) != std::string::npos;
}

void znCHogCoreMain::messageDispatchersDestroy()
{
    znCHogMessageDispatcher::destroy();
    znCAppCoreMain::messageDispatchersDestroy();
}

void znCHogCoreMain::messageDispatchersCreate()
{
    znCHogMessageDispatcher::create();
    mProgressSaver.messagesRegister();
}

void znCHogCoreMain::suspendPrepare()
{
    mProgressSaver.save();
}

void znCHogCoreMain::shutDownPrepare()
{
    mProgressSaver.messagesDeregister();
    if (znIHogLevel* level = znIHogLevel::levelGet())
        level->levelStateStore();
}

void znCHogCoreMain::factoriesDestroy()
{
    znCCollectionEffectFactory::destroy();
}

void znCHogCoreMain::factoriesCreate()
{
    znCHogComponentFactory::create();
    znCHogEntityFactory::create();
    znCCollectionEffectFactory::create();
    gameComponentsRegister();
}

void znCHogCoreMain::gameComponentsRegister() {}

void znCHogCoreMain::nextScreenSet(const std::string& pScreen)
{
    mNextScreen = pScreen;
    mapRuleApply();
}

void znCHogCoreMain::nextScreenAndCurrLevSet(const std::string& pScreen)
{
    nextScreenSet(pScreen);
    znCHogUserSavedData::instanceGet()->currentLevelSet(mNextScreen);
}

void znCHogCoreMain::firstSceneSet()
{
    znCHogUserSavedData::instanceGet()->progressClear();
    mNextScreen = znCAppSettings::instanceGet()->strGet(FIRST_SCENE_KEY);
}

void znCHogCoreMain::mapRuleApply()
{
    znCHogUserSavedData* user = znCHogUserSavedData::instanceGet();
    const std::string offered = user->mapLevelGet();
    const std::size_t target = mNextScreen.find(MAP_TO);
    if (target != std::string::npos)
    {
        if (offered.empty())
            user->mapLevelSet(mNextScreen.substr(target + std::char_traits<char>::length(MAP_TO)));
        mNextScreen = MAP;
    }
    else if (mNextScreen == offered)
        user->mapLevelSet("");
}

void znCHogCoreMain::appUpdate(s32 pDeltaMs)
{
    mProgressSaver.update(pDeltaMs);
    if (mNextScreen.empty() || appDisplayChildFind(znCMainMenuGui::NAME) != nullptr ||
        appDisplayChildFind(znIHogLevel::NAME) != nullptr)
        return;
    levelStart();
}

void znCHogCoreMain::levelStart()
{
    mProgressSaver.levelLeft();
    znCBrushManager::instanceGet()->brushesClear();
    znCParticleDataManager::instanceGet()->levelDataClear();
    znCAnimationDataManager::instanceGet()->levelDataClear();
    znIAudioManager::instanceGet()->effectsClear();
    const std::string screen = std::exchange(mNextScreen, std::string());
    if (!screenOpen(screen))
        missingScreenShow(screen);
    // One that is over as it opens has asked for the next one, and for the fade at whose end it goes.
    if (mNextScreen.empty())
        znCScreenFade::instanceGet()->fadeIn(SCREEN_FADE_MS);
}

bool znCHogCoreMain::screenOpen(const std::string& pScreen)
{
    if (!screenExistsGet(pScreen))
        return false;
    return guiFileNameGet(pScreen) ? guiScreenOpen(pScreen) : levelOpen(pScreen);
}

bool znCHogCoreMain::guiScreenOpen(const std::string& pFile)
{
    const znCResourceName file(pFile, znCResourceName::GAME_DATA);
    znCEntity* gui = znIGuiComponent::guiCreateFromFile(file, nullptr, true);
    if (gui != nullptr)
        appDisplayChildAdd(gui);
    return gui != nullptr;
}

bool znCHogCoreMain::levelOpen(const std::string& pName)
{
    znIHogLevel::create(pName);
    znIHogLevel* level = znIHogLevel::levelGet();
    if (level->sceneStandsGet())
        return true;
    level->destroy();
    return false;
}

// A player whose game is to go on there gets another choice than to try again for ever.
void znCHogCoreMain::missingScreenShow(const std::string& pScreen)
{
    ZN_LOG("The screen %s can't be opened: %s is missing or makes no scene.\n", pScreen.c_str(),
           screenFileGet(pScreen).c_str());
    znCHogUserSavedData* user = znCHogUserSavedData::instanceGet();
    if (user->currentLevelGet() == pScreen)
        user->currentLevelSet("");
    guiScreenOpen(MAIN_MENU_FILE);
    if (znINode* menu = appDisplayChildFind(znCMainMenuGui::NAME))
        znCMessageBoxGui::messageBoxCreate(menu, znCLocalisedStrings::localisedStringGet(MISSING_SCREEN_TEXT));
}

void znCHogCoreMain::nextScreenEnsure()
{
    if (!mNextScreen.empty())
        return;
    ZN_LOG("No screen was asked for: the main menu opens.\n");
    nextScreenSet(MAIN_MENU_FILE);
}
