#include "znhogcore/src/znCHogLevel.h"

#include "znappcore/znCEmptyMessageData.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/components/znCHotComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
constexpr znCUniqueId MESSAGES[] = {
    znCHogMessageDispatcher::LEVEL_COMPLETE,
    znCHogMessageDispatcher::CONTINUE_GAME,
    znCHogMessageDispatcher::REPLAY_LEVEL,
    znCHogMessageDispatcher::CONVERSATION_COMPLETE,
};
constexpr char CONVERSATION_AFTER[] = "-post";
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
        mContinuePending = true;
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
    if (pType == FADE_OUT_COMPLETE && mContinuePending)
    {
        levelReset();
        mContinuePending = false;
    }
    return znIHogLevel::messageProcess(pType, pData);
}

void znCHogLevel::levelInitialise()
{
    nonPickListCollectableEntitiesActivate();
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

void znCHogLevel::levelEndProcess()
{
    levelNext();
}

void znCHogLevel::levelNext()
{
    znCHogCoreMain::instanceGet()->nextScreenSet(nextLevelGet());
}

// Everybody clears on the first message; on the second all others are clear already.
void znCHogLevel::levelReset()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->messageSend(znCHogMessageDispatcher::RESET_LEVEL, znCEmptyMessageData::sharedGet());
    game->messageSend(znCHogMessageDispatcher::POST_RESET_LEVEL, znCEmptyMessageData::sharedGet());
    nonPickListCollectableEntitiesActivate();
}
