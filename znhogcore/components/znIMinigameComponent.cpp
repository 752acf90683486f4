#include "znhogcore/components/znIMinigameComponent.h"

#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>
#include <cstdlib>

namespace
{
constexpr znCUniqueId MESSAGES[] = {
    znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE,
    znCHogMessageDispatcher::RESET_LEVEL,
    znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING,
    znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING_CONGRATS,
};
constexpr bool TAPS = true;
constexpr bool DRAGS = false;
constexpr bool TWO_POINTER_GESTURES = false;
} // namespace

znIMinigameComponent::znIMinigameComponent(znCEntity* pEntity)
    : znIGestureHandlingComponent(pEntity, TAPS, DRAGS, TWO_POINTER_GESTURES)
{
    requirementSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_ADD);
}

void znIMinigameComponent::messagesRegister()
{
    znIGestureHandlingComponent::messagesRegister();
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(message, this);
}

void znIMinigameComponent::messagesDeregister()
{
    znIGestureHandlingComponent::messagesDeregister();
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(message, this);
}

bool znIMinigameComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE)
        return effectReportProcess(*static_cast<std::string*>(pData));
    if (pType == znCHogMessageDispatcher::RESET_LEVEL)
    {
        minigameReset();
        requirementSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_CLEAR);
        mLevelEnding = false;
        return false;
    }
    if (pType == znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING ||
        pType == znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING_CONGRATS)
    {
        mLevelEnding = true;
        return false;
    }
    return znIGestureHandlingComponent::messageProcess(pType, pData);
}

bool znIMinigameComponent::effectReportProcess(const std::string& pNodeName)
{
    if (pNodeName != mEntity->nameGet())
        return false;
    ZN_ASSERT(mCompleteState == eCollecting, "Unexpected state.\n");
    done();
    return true;
}

void znIMinigameComponent::minigameReset() {}

void znIMinigameComponent::minigameInitialise(const znCVariableTable& pLevelTable)
{
    mCompleteState = eIncomplete;
    minigameInitialiseDo(pLevelTable);
}

s32 znIMinigameComponent::indexCalculate() const
{
    const znCNameComponent* name = znCNameComponent::get(mEntity);
    std::string digits = name != nullptr ? name->keyGet() : std::string();
    std::erase_if(digits, [](char pChar) { return pChar < '0' || pChar > '9'; });
    ZN_ASSERT(!digits.empty(), "Minigame entity has no numbers in its name:%s\n", mEntity->nameGet().c_str());
    return znNCoreUtils::s32Saturate(std::strtoll(digits.c_str(), nullptr, 10));
}

void znIMinigameComponent::completeStateSet(bool pComplete, bool pWithEffect)
{
    if (!pComplete && mCompleteState == eComplete)
        notDone();
    if (!pComplete || mCompleteState != eIncomplete)
        return;
    if (!pWithEffect)
        done();
    else
    {
        mCompleteState = eCollecting;
        znCCollectionEffectFactory::instanceGet()->effectsCreate(mEntity);
    }
}

// The state comes before the report: whoever hears it may ask.
void znIMinigameComponent::done()
{
    mCompleteState = eComplete;
    requirementSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_MET);
}

void znIMinigameComponent::notDone()
{
    mCompleteState = eIncomplete;
    requirementSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_CLEAR);
}

void znIMinigameComponent::requirementSend(const znCUniqueId& pType) const
{
    std::string name = mEntity->nameGet();
    znCHogMessageDispatcher::instanceGet()->messageSend(pType, &name);
}
