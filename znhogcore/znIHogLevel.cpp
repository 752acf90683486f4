#include "znhogcore/znIHogLevel.h"

#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/components/znCHookedLineTrailComponent.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znNSavedTree.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/gui/znCPickListGui.h"
#include "znhogcore/components/znCHogLevelLoaderComponent.h"
#include "znhogcore/components/znCLevelCompleteCheckerComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogLevel.h"
#include "znhogcore/src/znCHogMapLevel.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"

#include <algorithm>

namespace
{
constexpr char SCENES_FOLDER[] = "scenes/";
constexpr char TABLE_EXTENSION[] = ".txt";
// Keys of the level's table.
constexpr char MUSIC_KEY[] = "music";
constexpr char AMBIENT_KEY[] = "ambient";
constexpr char GUI_KEY[] = "GUI";
constexpr char HELP_TEXT_KEY[] = "helpText";
constexpr char GUI_FILE[] = "gui/hogGui/hogGui.txt"; // of a level that names none
constexpr char NUMBER_OF_ITEMS_KEY[] = "numHogItems";
constexpr char PICK_LIST_NAME[] = "hogPickList";         // of the main list in the level's GUI
constexpr char HELP_TEXT_NAME[] = "GUIMinigameHelpText"; // of a text in the level's GUI
constexpr s32 PLACING_STEP_MS = 1;
constexpr char HINT_EFFECT_NAME[] = "HintEffect";
constexpr char HINT_PARTICLES[] = "particles/pHint.txt";
constexpr s32 HINT_MS = 4000;

// A place of the level in the space of the sub-scene, which a player on a touch device may have moved and enlarged, the
// latter in both directions alike.
znPoint insideGet(const znCEntity& pSubScene, const znPoint& pPos)
{
    const znPoint& origin = pSubScene.posGet();
    const float scale = pSubScene.scaleYGet() > 0.0f ? pSubScene.scaleYGet() : 1.0f;
    const auto local = [scale](s32 pTo, s32 pFrom)
    {
        return znNCoreUtils::s32Saturate(static_cast<s64>(static_cast<float>(s64(pTo) - pFrom) / scale));
    };
    return znPoint(local(pPos.mX, origin.mX), local(pPos.mY, origin.mY));
}

template <class T>
znIHogLevel* levelAdd()
{
    auto* level = new T; // owned by the tree
    znCHogCoreMain::instanceGet()->appDisplayChildAdd(level);
    return level;
}
} // namespace

znIHogLevel::znIHogLevel() : znIMessageListenerEntity(NAME) {}

void znIHogLevel::create(const std::string& pName)
{
    const bool standing = levelGet() != nullptr;
    ZN_ASSERT(!standing, "Already created.\n");
    if (standing)
        return;
    znIHogLevel* level = pName == znCHogCoreMain::MAP ? levelAdd<znCHogMapLevel>() : levelAdd<znCHogLevel>();
    if (pName != znCHogCoreMain::MAP)
        level->componentAdd<znCLevelCompleteCheckerComponent>();
    level->messagesRegister();
    level->levelLoad(pName);
    level->soundStart();
}

znIHogLevel* znIHogLevel::levelGet()
{
    return dynamic_cast<znIHogLevel*>(znCHogCoreMain::instanceGet()->appDisplayChildFind(NAME));
}

std::string znIHogLevel::folderOfGet(const std::string& pName)
{
    return SCENES_FOLDER + pName + "/";
}

void znIHogLevel::messagesRegister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCScreenFade::FADE_OUT_COMPLETE, this);
}

void znIHogLevel::messagesDeregister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCScreenFade::FADE_OUT_COMPLETE, this);
}

bool znIHogLevel::messageProcess(const znCUniqueId& pType, void*)
{
    if (pType == znCScreenFade::FADE_OUT_COMPLETE)
    {
        stateSave();
        znCHogCoreMain::instanceGet()->nextScreenEnsure();
        destroy();
    }
    return false;
}

void znIHogLevel::update(s32 pDeltaMs)
{
    znIMessageListenerEntity::update(pDeltaMs);
    mTimePlayedMs += pDeltaMs;
}

void znIHogLevel::shutDownStateFix() {}

void znIHogLevel::skipDo() {}

void znIHogLevel::levelInitialise() {}

void znIHogLevel::postLoadDo() {}

void znIHogLevel::levelLoad(const std::string& pName)
{
    mLevelName = pName;
    mLevelFolder = folderOfGet(pName);
    const znCResourceName table(mLevelFolder + mLevelName + TABLE_EXTENSION, znCResourceName::GAME_DATA);
    mVariables.fileLoad(table);
    sceneLoad();
    subScenesStore();
    levelInitialise();
    guiCreate();
    savedStateLoad();
    guiInit();
    miniGameHelpSet();
    znCHogUserSavedData::instanceGet()->currentLevelSet(mLevelName);
    // Everything is placed before anyone hears that the level stands.
    parentGet()->treeUpdate(PLACING_STEP_MS);
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::LEVEL_LOAD_COMP,
                                                        znCEmptyMessageData::sharedGet());
}

void znIHogLevel::sceneLoad()
{
    componentAdd<znCHogLevelLoaderComponent>()->load(mLevelName, mLevelFolder);
    componentRemove(znCHogLevelLoaderComponent::TYPE);
}

void znIHogLevel::soundStart()
{
    const std::string music = mVariables.strGet(MUSIC_KEY);
    const std::string ambient = mVariables.strGet(AMBIENT_KEY);
    znIAudioManager::instanceGet()->musicPlay(znCResourceName(music, znCResourceName::GAME_DATA));
    znIAudioManager::instanceGet()->effectPlay(znCResourceName(ambient, znCResourceName::GAME_DATA), true);
}

void znIHogLevel::subScenesStore()
{
    for (znCEntity* entity : entitiesWithComponentsGet({&typeid(znCSubSceneComponent)}))
    {
        const auto* subScene = entity->componentGet<znCSubSceneComponent>();
        ZN_ASSERT(subScene != nullptr, "Expected a SubSceneComponent.\n");
        ZN_ASSERT(subScene == nullptr || static_cast<std::size_t>(subScene->indexGet()) == mSubScenes.size(),
                  "Code elsewhere assumes subscenes will be in order in this vector.\n");
        mSubScenes.push_back(entity);
    }
    ZN_ASSERT(!mSubScenes.empty(), "There is no scene in the folder %s.\n", mLevelFolder.c_str());
}

void znIHogLevel::guiCreate()
{
    const std::string fileName = mVariables.strGet(GUI_KEY, GUI_FILE);
    const znCResourceName file(fileName, znCResourceName::GAME_DATA);
    if (!znIFile::existsGet(file))
    {
        ZN_LOG("The level %s goes without a GUI: there is no file %s.\n", mLevelName.c_str(), fileName.c_str());
        return;
    }
    if (znCEntity* gui = znIGuiComponent::guiCreateFromFile(file, nullptr, false))
        childAdd(gui);
}

void znIHogLevel::savedStateLoad()
{
    const std::string saved = znCHogUserSavedData::instanceGet()->levelStateGet(mLevelName);
    if (!saved.empty())
        stateRestore(saved);
    postLoadDo();
}

void znIHogLevel::guiInit()
{
    const auto* entity = dynamic_cast<znCEntity*>(childFind(PICK_LIST_NAME));
    const s32 items = mVariables.s32Get(NUMBER_OF_ITEMS_KEY);
    if (entity == nullptr || items <= 0)
        return;
    auto* list = entity->componentGet<znCPickListGui>();
    ZN_ASSERT(list != nullptr, "Expecting a PickListGui component.\n");
    if (list != nullptr)
        list->totalSet(items);
}

// The scene may have changed since it was stored.
void znIHogLevel::stateRestore(const std::string& pSaved)
{
    std::string fresh;
    treeSave(fresh);
    znNSavedTree::Fitted state = znNSavedTree::fit(fresh, pSaved);
    if (state.mDamaged)
        ZN_LOG("The stored state of the level %s is damaged; what is lost of it starts afresh.\n", mLevelName.c_str());
    if (state.mNewCount > 0)
        ZN_LOG("The stored state of the level %s knows nothing of %d of its things; they start afresh.\n",
               mLevelName.c_str(), state.mNewCount);
    treeLoad(state.mText);
}

void znIHogLevel::miniGameHelpSet()
{
    const std::string key = mVariables.strGet(HELP_TEXT_KEY);
    if (key.empty())
        return;
    const auto* entity = dynamic_cast<znCEntity*>(childFind(HELP_TEXT_NAME));
    auto* text = entity != nullptr ? entity->componentFind<znCTextSpriteComponent>() : nullptr;
    ZN_ASSERT(text != nullptr, "Expected GUIMinigameHelpText entity to have a text sprite component.\n");
    if (text != nullptr)
        text->textSet(znCLocalisedStrings::localisedStringGet(key));
}

void znIHogLevel::stateSave()
{
    std::string state;
    treeSave(state);
    stateKeep(state);
}

void znIHogLevel::progressStore()
{
    mProgress.clear();
    treeSave(mProgress);
    if (mProgress != znCHogUserSavedData::instanceGet()->levelStateGet(mLevelName))
        stateKeep(mProgress);
}

void znIHogLevel::stateKeep(const std::string& pState)
{
    znCHogUserSavedData* user = znCHogUserSavedData::instanceGet();
    user->levelStateSet(mLevelName, pState);
    user->playTimeAdd(mTimePlayedMs - mTimeStoredMs);
    mTimeStoredMs = mTimePlayedMs;
}

void znIHogLevel::levelStateStore()
{
    shutDownStateFix();
    stateSave();
}

void znIHogLevel::levelSkip()
{
    mSkipped = true;
    skipDo();
}

void znIHogLevel::levelQuit()
{
    znCScreenFade::instanceGet()->fadeOut(znCHogCoreMain::SCREEN_FADE_MS);
    znCHogCoreMain::instanceGet()->nextScreenSet(znCHogCoreMain::MAIN_MENU_FILE);
}

void znIHogLevel::hintShow(znCEntity* pEntity)
{
    const znCSubSceneComponent* subScene = currentSubSceneGet();
    if (subScene == nullptr)
        return;
    const znINode* button = parentGet()->childFind(HINT_BUTTON_NAME);
    auto* effect = new znCEntity(HINT_EFFECT_NAME); // owned by the tree
    subScene->entityGet()->childAdd(effect);
    effect->componentAdd<znCParticleEmitterComponent>()->initialise(
        znCResourceName(HINT_PARTICLES, znCResourceName::GAME_DATA));
    // A GUI without the button has another way to ask for a hint: it comes from the middle of the screen then.
    const znPoint start = button != nullptr ? button->posRelativeToAncestorGet(parentGet()) : znPoint(0, 0);
    const znCEntity& scene = *subScene->entityGet();
    // The object may lie in another sub-scene than the one on top.
    const bool inside = pEntity->parentGet() == &scene;
    const znPoint end = inside ? pEntity->posGet() : insideGet(scene, pEntity->posRelativeToAncestorGet(this));
    effect->componentAdd<znCHookedLineTrailComponent>()->trailInitialise(insideGet(scene, start), end, HINT_MS, true);
    znCHogUserSavedData::instanceGet()->s32Set(znCHogUserSavedData::HINT_FREE_STREAK, znCHogUserSavedData::HINT_USED);
}

znCSubSceneComponent* znIHogLevel::currentSubSceneGet() const
{
    const auto open = std::find_if(mSubScenes.rbegin(), mSubScenes.rend(),
                                   [](const znCEntity* pEntity) { return pEntity->activeInTreeGet(); });
    ZN_ASSERT(open != mSubScenes.rend(), "Expected to find an active subscene.\n");
    return open != mSubScenes.rend() ? (*open)->componentGet<znCSubSceneComponent>() : nullptr;
}

std::string znIHogLevel::nextLevelGet() const
{
    return mVariables.strGet(NEXT_LEVEL_KEY);
}
