#include "znhogcore/src/znCHogCoreMain.h"

#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/components/gui/znCMainMenuGui.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/src/znCHogComponentFactory.h"
#include "znhogcore/src/znCHogEntityFactory.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr char GUI_FILE_MARK[] = ".txt";
constexpr std::size_t LEVEL_NAME_SHORT = 3; // no file's name is as short
} // namespace

znCHogCoreMain* znCHogCoreMain::instanceGet()
{
    return dynamic_cast<znCHogCoreMain*>(znCAppCoreMain::instanceGet());
}

void znCHogCoreMain::messageDispatchersDestroy()
{
    znCHogMessageDispatcher::destroy();
    znCAppCoreMain::messageDispatchersDestroy();
}

void znCHogCoreMain::messageDispatchersCreate()
{
    znCHogMessageDispatcher::create();
}

void znCHogCoreMain::shutDownPrepare()
{
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
    znCUserSavedData::instanceGet()->strSet(CURRENT_LEVEL_KEY, mNextScreen);
}

void znCHogCoreMain::firstSceneSet()
{
    znCUserSavedData::instanceGet()->progressClear();
    mNextScreen = znCAppSettings::instanceGet()->strGet(FIRST_SCENE_KEY);
}

void znCHogCoreMain::mapRuleApply()
{
    znCUserSavedData* user = znCUserSavedData::instanceGet();
    const std::string offered = user->strGet(MAP_LEVEL_KEY);
    const std::size_t target = mNextScreen.find(MAP_TO);
    if (target != std::string::npos)
    {
        if (offered.empty())
            user->strSet(MAP_LEVEL_KEY, mNextScreen.substr(target + std::char_traits<char>::length(MAP_TO)));
        mNextScreen = MAP;
    }
    else if (mNextScreen == offered)
        user->strSet(MAP_LEVEL_KEY, "");
}

void znCHogCoreMain::appUpdate(s32)
{
    if (mNextScreen.empty() || appDisplayChildFind(znCMainMenuGui::NAME) != nullptr ||
        appDisplayChildFind(znIHogLevel::NAME) != nullptr)
        return;
    levelStart();
}

void znCHogCoreMain::levelStart()
{
    znCBrushManager::instanceGet()->brushesClear();
    znCParticleDataManager::instanceGet()->levelDataClear();
    znCAnimationDataManager::instanceGet()->levelDataClear();
    znIAudioManager::instanceGet()->effectsClear();
    if (mNextScreen.size() > LEVEL_NAME_SHORT && mNextScreen.find(GUI_FILE_MARK) != std::string::npos)
        guiScreenOpen();
    else
        znIHogLevel::create(mNextScreen);
    znCScreenFade::instanceGet()->fadeIn(SCREEN_FADE_MS);
    mNextScreen.clear();
}

void znCHogCoreMain::guiScreenOpen()
{
    const znCResourceName file(mNextScreen, znCResourceName::GAME_DATA);
    if (znCEntity* gui = znIGuiComponent::guiCreateFromFile(file, nullptr, true))
        appDisplayChildAdd(gui);
}
