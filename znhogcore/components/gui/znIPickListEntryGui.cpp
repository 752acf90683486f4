#include "znhogcore/components/gui/znIPickListEntryGui.h"

#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCEmptyMessageData.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/components/znCHiddenPickableComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCRequiredPickableComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCTaskComponent.h"
#include "znhogcore/components/znICollectableComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>

namespace
{
struct TextColour
{
    const char* mKey; // of the application's settings
    const char* mDefault;
};

constexpr TextColour COLOURS[] = {
    {"listColRandom", "ffffffff"},
    {"listColHidden", "ff00ffff"},
    {"listColRequired", "00ffffff"},
    {"listColTask", "ffff00ff"},
};
constexpr TextColour COLOUR_COLLECTED = {"listColCollected", "000000ff"};

s32 entityTypeGet(const znCEntity& pEntity)
{
    if (pEntity.componentGet(znCHiddenPickableComponent::TYPE) != nullptr)
        return znIPickListEntryGui::ENTITY_HIDDEN;
    if (pEntity.componentGet(znCRequiredPickableComponent::TYPE) != nullptr)
        return znIPickListEntryGui::ENTITY_REQUIRED;
    if (pEntity.componentGet(znCTaskComponent::TYPE) != nullptr)
        return znIPickListEntryGui::ENTITY_TASK;
    return znIPickListEntryGui::ENTITY_RANDOM;
}

bool inSubSceneGet(const znCEntity& pEntity, s32 pSubSceneIndex)
{
    const auto* parent = dynamic_cast<const znCEntity*>(pEntity.parentGet());
    ZN_ASSERT(parent != nullptr, "Expected collectable entity to be linked to another entity.\n");
    if (parent == nullptr)
        return false;
    const auto* subScene = parent->componentGet<znCSubSceneComponent>();
    ZN_ASSERT(subScene != nullptr, "Expected collectable entity parent to have a subscene component.\n");
    return subScene != nullptr && subScene->indexGet() == pSubSceneIndex;
}
} // namespace

void znIPickListEntryGui::messagesRegister()
{
    znCHogMessageDispatcher::instanceGet()->listenerRegister(znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED,
                                                             this);
}

void znIPickListEntryGui::messagesDeregister()
{
    znCHogMessageDispatcher::instanceGet()->listenerDeregister(znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED,
                                                               this);
}

// An item that leaves has had all its finds: another of its text is somebody else's.
bool znIPickListEntryGui::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType != znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED || !waitingGet())
        return false;
    const znCNameComponent* name = znCNameComponent::get(static_cast<const znCEntity*>(pData));
    if (name != nullptr && name->displayTextGet() == mText && entityCollected())
        mEntryState = STATE_TRANSITION_OFF;
    return false;
}

void znIPickListEntryGui::update(s32 pDeltaMs)
{
    if (mEntryState == STATE_TRANSITION_ON && transitionOnUpdate(pDeltaMs))
        mEntryState = STATE_SHOWN;
    else if (mEntryState == STATE_TRANSITION_OFF && transitionOffUpdate(pDeltaMs))
        mEntryState = STATE_FINISHED;
}

void znIPickListEntryGui::activate(const std::vector<znCEntity*>& pEntities)
{
    ZN_ASSERT(mEntryState == STATE_FREE, "Already active.\n");
    ZN_ASSERT(!pEntities.empty(), "Expected at least one entity in the vector.\n");
    if (pEntities.empty())
        return;
    mEntities = pEntities;
    const znCNameComponent* name = znCNameComponent::get(mEntities.front());
    mText = name != nullptr ? name->displayTextGet() : std::string();
    mEntityType = entityTypeGet(*mEntities.front());
    entitiesMakeCollectable(mEntities);
    activateDo(mEntities);
    mEntryState = STATE_TRANSITION_ON;
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::ADDED_ENTRY,
                                                        znCEmptyMessageData::sharedGet());
}

void znIPickListEntryGui::entitiesMakeCollectable(const std::vector<znCEntity*>& pEntities)
{
    for (const znCEntity* entity : pEntities)
    {
        auto* collectable = entity->componentFind<znICollectableComponent>();
        ZN_ASSERT(collectable != nullptr, "Expected entity %s to have a collectable component.\n",
                  entity->nameGet().c_str());
        if (collectable != nullptr)
            collectable->activate();
    }
}

void znIPickListEntryGui::reset()
{
    mEntryState = STATE_FREE;
    mEntityType = ENTITY_RANDOM;
    mText.clear();
    mEntities.clear();
    resetDo();
}

bool znIPickListEntryGui::finishedConsume()
{
    if (mEntryState != STATE_FINISHED)
        return false;
    mEntryState = STATE_FREE;
    mText.clear();
    return true;
}

void znIPickListEntryGui::countLimit(s32) {}

void znIPickListEntryGui::uncollectedEntitiesInSubSceneAddToVec(std::vector<znCEntity*>& pOut, s32 pSubSceneIndex) const
{
    for (znCEntity* entity : mEntities)
    {
        const auto* collectable = entity->componentFind<znICollectableComponent>();
        if (collectable != nullptr && !collectable->collectionStartedGet() && inSubSceneGet(*entity, pSubSceneIndex))
            pOut.push_back(entity);
    }
}

void znIPickListEntryGui::textColourSet(znCTextSpriteComponent* pTextSprite, bool pCollected) const
{
    const TextColour& colour = pCollected ? COLOUR_COLLECTED : COLOURS[mEntityType];
    pTextSprite->colourSet(znCColour(znCAppSettings::instanceGet()->strGet(colour.mKey, colour.mDefault)));
}

znCTextSpriteComponent* znIPickListEntryGui::textChildFind(const char* pName) const
{
    const znCEntity* entity = znNGuiChildren::entityFind(*this, pName);
    return entity != nullptr ? entity->componentFind<znCTextSpriteComponent>() : nullptr;
}

void znIPickListEntryGui::mySave(std::string& pOut)
{
    znINode::strSave(pOut, mText);
    znINode::s32Save(pOut, mEntryState);
    znINode::s32Save(pOut, mEntityType);
}

void znIPickListEntryGui::myLoad(std::string& pIn)
{
    mText = znINode::strLoad(pIn);
    mEntryState = std::clamp<s32>(znINode::s32Load(pIn), STATE_FREE, STATE_FINISHED);
    mEntityType = std::clamp<s32>(znINode::s32Load(pIn), ENTITY_RANDOM, ENTITY_TASK);
}
