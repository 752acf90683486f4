#include "znhogcore/components/znCLevelCompleteCheckerComponent.h"

#include "znappcore/znCEmptyMessageData.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>

namespace
{
// What says that all is met, by whether the player and the congratulations have a say in the end.
const znCUniqueId& announcementGet(bool pWaitForPlayer, bool pCongratulate)
{
    if (pWaitForPlayer)
        return pCongratulate ? znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING_CONGRATS
                             : znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING;
    return pCongratulate ? znCHogMessageDispatcher::LEVEL_COMPLETE_CONGRATS : znCHogMessageDispatcher::LEVEL_COMPLETE;
}
} // namespace

void znCLevelCompleteCheckerComponent::messagesRegister()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerRegister(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_ADD, this);
    game->listenerRegister(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_MET, this);
    game->listenerRegister(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_CLEAR, this);
}

void znCLevelCompleteCheckerComponent::messagesDeregister()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerDeregister(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_ADD, this);
    game->listenerDeregister(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_MET, this);
    game->listenerDeregister(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_CLEAR, this);
}

bool znCLevelCompleteCheckerComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    const std::string& name = *static_cast<std::string*>(pData);
    if (pType == znCHogMessageDispatcher::COMPLETION_REQUIREMENT_CLEAR)
    {
        requirementClear(name);
        return false;
    }
    if (pType == znCHogMessageDispatcher::COMPLETION_REQUIREMENT_ADD)
        requirementRegister(name);
    else
        requirementStatusProcess(name);
    return true;
}

void znCLevelCompleteCheckerComponent::requirementRegister(const std::string& pName)
{
    const bool added = mRequirements.emplace(pName, false).second;
    ZN_ASSERT(added, "Requirement %s already registered.\n", pName.c_str());
}

void znCLevelCompleteCheckerComponent::requirementStatusProcess(const std::string& pName)
{
    if (metSet(pName, true))
        completeCheck();
}

void znCLevelCompleteCheckerComponent::requirementClear(const std::string& pName)
{
    metSet(pName, false);
}

// False for a name that nobody added.
bool znCLevelCompleteCheckerComponent::metSet(const std::string& pName, bool pMet)
{
    const auto requirement = mRequirements.find(pName);
    ZN_ASSERT(requirement != mRequirements.end(), "Requirement %s not registered.\n", pName.c_str());
    if (requirement == mRequirements.end())
        return false;
    ZN_ASSERT(requirement->second != pMet, "Requirement %s already flagged as %scomplete.\n", pName.c_str(),
              pMet ? "" : "not ");
    requirement->second = pMet;
    return true;
}

// Announces the end if all are met.
bool znCLevelCompleteCheckerComponent::completeCheck()
{
    if (!std::all_of(mRequirements.begin(), mRequirements.end(), [](const auto& pEntry) { return pEntry.second; }))
        return false;
    znCHogMessageDispatcher::instanceGet()->messageSend(announcementGet(mWaitForPlayer, mCongratulate),
                                                        znCEmptyMessageData::sharedGet());
    return true;
}

bool znCLevelCompleteCheckerComponent::continueRequest()
{
    if (!mWaitForPlayer || !completeCheck())
        return false;
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::LEVEL_COMPLETE,
                                                        znCEmptyMessageData::sharedGet());
    return true;
}
