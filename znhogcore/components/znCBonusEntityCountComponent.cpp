#include "znhogcore/components/znCBonusEntityCountComponent.h"

#include "znappcore/src/znCEntity.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>

namespace
{
constexpr znCUniqueId MESSAGES[] = {
    znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED,
    znCHogMessageDispatcher::CONTINUE_GAME, // found things outlast both, so there is nothing to do
    znCHogMessageDispatcher::REPLAY_LEVEL,
};
constexpr s32 THINGS_MAX = 1000000; // of a save; a damaged one may say anything
} // namespace

znCBonusEntityCountComponent::znCBonusEntityCountComponent(znCEntity* pEntity)
    : znIMessageListenerComponent(pEntity),
      mSilhouetteTotal(
          static_cast<s32>(pEntity->entitiesWithComponentsGet({&typeid(znCBonusSilhouetteComponent)}).size())),
      mBonusTotal(static_cast<s32>(pEntity->entitiesWithComponentsGet({&typeid(znCBonusComponent)}).size()))
{
}

void znCBonusEntityCountComponent::messagesRegister()
{
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(message, this);
}

void znCBonusEntityCountComponent::messagesDeregister()
{
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(message, this);
}

bool znCBonusEntityCountComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType != znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED)
        return false;
    const auto* collected = static_cast<znCEntity*>(pData);
    if (collected->componentGet(znCBonusComponent::TYPE) != nullptr)
        ++mBonusCollected;
    else if (collected->componentGet(znCBonusSilhouetteComponent::TYPE) != nullptr)
        ++mSilhouetteCollected;
    return false;
}

std::string znCBonusEntityCountComponent::markerGet()
{
    return std::to_string(TYPE.idGet());
}

void znCBonusEntityCountComponent::mySave(std::string& pOut)
{
    znINode::strSave(pOut, markerGet());
    for (const s32 value : {mBonusCollected, mBonusTotal, mSilhouetteCollected, mSilhouetteTotal})
        znINode::s32Save(pOut, value);
}

void znCBonusEntityCountComponent::myLoad(std::string& pIn)
{
    znINode::strLoad(pIn);
    for (s32* value : {&mBonusCollected, &mBonusTotal, &mSilhouetteCollected, &mSilhouetteTotal})
        *value = std::clamp(znINode::s32Load(pIn), 0, THINGS_MAX);
}
