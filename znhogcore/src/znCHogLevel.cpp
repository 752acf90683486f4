#include "znhogcore/src/znCHogLevel.h"

#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znCEmptyMessageData.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/components/gui/znCRoundCongratulationsGui.h"
#include "znhogcore/components/gui/znCRoundScoreGui.h"
#include "znhogcore/components/znCBonusEntityCountComponent.h"
#include "znhogcore/components/znCHotComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znIMinigameComponent.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr znCUniqueId MESSAGES[] = {
    znCHogMessageDispatcher::LEVEL_COMPLETE,
    znCHogMessageDispatcher::CONTINUE_GAME,
    znCHogMessageDispatcher::REPLAY_LEVEL,
    znCHogMessageDispatcher::CONVERSATION_COMPLETE,
};
constexpr char CONVERSATION_AFTER[] = "-post";
constexpr char REWARD_LAYOUT_KEY[] = "rewardLayoutFile"; // of the level's table and of the application's settings
} // namespace

void znCHogLevel::messagesRegister()
{
    znIHogLevel::messagesRegister();
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(message, this);
}

void znCHogLevel::messagesDeregister()
{
    znIHogLevel::messagesDeregister();
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(message, this);
}

bool znCHogLevel::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::LEVEL_COMPLETE)
    {
        levelEndProcess();
        return false;
    }
    if (pType == znCHogMessageDispatcher::CONTINUE_GAME)
    {
        levelEndProcess();
        mContinuePending = true; // also while a conversation holds the end up
        return true;
    }
    if (pType == znCHogMessageDispatcher::REPLAY_LEVEL)
    {
        levelReset();
        return true;
    }
    if (pType == znCHogMessageDispatcher::CONVERSATION_COMPLETE)
    {
        if (static_cast<std::string*>(pData)->find(CONVERSATION_AFTER) != std::string::npos)
            levelNext();
        return false;
    }
    if (pType == znCScreenFade::FADE_OUT_COMPLETE)
        wonStateClear();
    return znIHogLevel::messageProcess(pType, pData);
}

// A level that has been paid for is never stored as one that can still be won for it, however the player left. Play
// goes on behind it even if the program ends before the next level stands.
void znCHogLevel::wonStateClear()
{
    if (!mContinuePending && !roundScoreStands())
        return;
    levelReset();
    mContinuePending = false;
    const std::string next = nextLevelGet();
    if (!next.empty() && !znCHogCoreMain::guiFileNameGet(next))
        znCHogUserSavedData::instanceGet()->currentLevelSet(next);
}

void znCHogLevel::levelInitialise()
{
    nonPickListCollectableEntitiesActivate();
    minigameEntitiesInitialise();
    componentAdd<znCBonusEntityCountComponent>();
    componentAdd<znCRoundCongratulationsGui>();
}

void znCHogLevel::nonPickListCollectableEntitiesActivate()
{
    for (znCEntity* entity : entitiesWithComponentsGet({&typeid(znCHotComponent), &typeid(znCLockComponent)}))
    {
        auto* collectable = entity->componentFind<znICollectableComponent>();
        ZN_ASSERT(collectable != nullptr, "Expecting %s to have a collectable component.\n", entity->nameGet().c_str());
        if (collectable != nullptr)
            collectable->activate();
    }
}

void znCHogLevel::minigameEntitiesInitialise()
{
    for (const znCEntity* entity : entitiesWithKindGet<znIMinigameComponent>())
        entity->componentFind<znIMinigameComponent>()->minigameInitialise(mVariables);
}

void znCHogLevel::skipDo()
{
    for (const znCEntity* entity : entitiesWithKindGet<znIMinigameComponent>())
        entity->componentFind<znIMinigameComponent>()->minigameSkip();
}

void znCHogLevel::levelEndProcess()
{
    if (!roundScoreOpen())
        levelNext();
}

// False if it has been shown already or there is none.
bool znCHogLevel::roundScoreOpen()
{
    std::string file = mVariables.strGet(REWARD_LAYOUT_KEY);
    if (file.empty())
        file = znCAppSettings::instanceGet()->strGet(REWARD_LAYOUT_KEY);
    if (file.empty() || roundScoreStands())
        return false;
    znCEntity* roundScore =
        znIGuiComponent::guiCreateFromFile(znCResourceName(file, znCResourceName::GAME_DATA), nullptr, true);
    if (roundScore == nullptr)
        return false; // a level must not end in a file that is missing
    if (roundScore->childFind(znCRoundScoreGui::NAME) == nullptr)
    {
        // It couldn't be found again, and would be opened and paid for each time the player goes on.
        ZN_LOG("The round score in %s must be named %s.\n", file.c_str(), znCRoundScoreGui::NAME);
        roundScore->nameSet(znCRoundScoreGui::NAME);
    }
    parentGet()->childAdd(roundScore);
    return true;
}

bool znCHogLevel::roundScoreStands() const
{
    return parentGet()->childFind(znCRoundScoreGui::NAME) != nullptr;
}

void znCHogLevel::shutDownStateFix()
{
    if (!roundScoreStands())
        return;
    // As if the player had left by its continue button.
    levelReset();
    const std::string next = nextLevelGet();
    if (!next.empty())
        znCHogCoreMain::instanceGet()->nextScreenAndCurrLevSet(next);
}

void znCHogLevel::levelNext()
{
    mContinuePending = true;
    const std::string next = nextLevelGet();
    if (next.empty())
        ZN_LOG("No screen follows: the table %s.txt names none as %s.\n", (mLevelFolder + mLevelName).c_str(),
               NEXT_LEVEL_KEY);
    znCHogCoreMain::instanceGet()->nextScreenSet(next);
    znCScreenFade::instanceGet()->fadeOut(znCHogCoreMain::SCREEN_FADE_MS);
}

// Everybody clears on the first message; on the second all others are clear already.
void znCHogLevel::levelReset()
{
    znCCollectionEffectFactory::instanceGet()->effectsCancel();
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->messageSend(znCHogMessageDispatcher::RESET_LEVEL, znCEmptyMessageData::sharedGet());
    game->messageSend(znCHogMessageDispatcher::POST_RESET_LEVEL, znCEmptyMessageData::sharedGet());
    nonPickListCollectableEntitiesActivate();
    minigameEntitiesInitialise();
}
