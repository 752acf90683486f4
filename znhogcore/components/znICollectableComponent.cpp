#include "znhogcore/components/znICollectableComponent.h"

#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusListComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/components/znCHotComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>

namespace
{
constexpr char POST_PARTICLE_PREFIX[] = "particles/PAR-"; // and the key
constexpr char POST_PARTICLE_SUFFIX[] = "-post.txt";
constexpr char MARKER_SUFFIX[] = "PostMarker"; // behind the key
} // namespace

void znICollectableComponent::messagesRegister()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerRegister(znCHogMessageDispatcher::LEVEL_COMPLETE, this);
    game->listenerRegister(znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE, this);
    game->listenerRegister(znCHogMessageDispatcher::RESET_LEVEL, this);
    game->listenerRegister(znCHogMessageDispatcher::LEVEL_LOAD_COMP, this);
}

void znICollectableComponent::messagesDeregister()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerDeregister(znCHogMessageDispatcher::LEVEL_COMPLETE, this);
    game->listenerDeregister(znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE, this);
    game->listenerDeregister(znCHogMessageDispatcher::RESET_LEVEL, this);
    game->listenerDeregister(znCHogMessageDispatcher::LEVEL_LOAD_COMP, this);
}

bool znICollectableComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE)
        return effectReportProcess(*static_cast<std::string*>(pData));
    if (pType == znCHogMessageDispatcher::RESET_LEVEL && !exemptFromResetGet())
        reset();
    else if (pType == znCHogMessageDispatcher::LEVEL_LOAD_COMP && mState == STATE_COLLECTING)
    {
        // A save has cut the effects off.
        mState = STATE_ACTIVE;
        collectionProcessTrigger();
    }
    else if (pType == znCHogMessageDispatcher::LEVEL_COMPLETE && mState == STATE_COLLECTING)
    {
        collectionComplete();
        markerStart();
        mState = STATE_COLLECTED;
        mFinishedEarly = true;
    }
    return false;
}

bool znICollectableComponent::effectReportProcess(const std::string& pNodeName)
{
    if (mFinishedEarly || pNodeName != mEntity->nameGet())
        return false;
    ZN_ASSERT(mState == STATE_COLLECTING && mEffectsPending >= 1,
              "Not expecting a collection effect complete message (%s).\n", pNodeName.c_str());
    --mEffectsPending;
    if (mEffectsPending == 0)
        collectedSet();
    return true;
}

void znICollectableComponent::collectionProcessTrigger()
{
    ZN_ASSERT(mState != STATE_INACTIVE, "This entity has not been activated for collection.\n");
    ZN_ASSERT(mState == STATE_ACTIVE, "Collection process already triggered on this entity (%s).\n",
              mEntity->nameGet().c_str());
    mEntity->activeSet(mPostCollectionVisible);
    mEffectsPending = znCCollectionEffectFactory::instanceGet()->effectsCreate(mEntity);
    if (mEffectsPending == 0)
        collectedSet();
    else
        mState = STATE_COLLECTING;
}

void znICollectableComponent::collectedSet()
{
    mState = STATE_COLLECTED;
    collectionComplete();
    markerStart();
}

void znICollectableComponent::collectionComplete()
{
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED, mEntity);
    postParticleStart();
}

std::string znICollectableComponent::postParticleFileGet() const
{
    return POST_PARTICLE_PREFIX + keyGet() + POST_PARTICLE_SUFFIX;
}

std::string znICollectableComponent::markerNameGet() const
{
    return keyGet() + MARKER_SUFFIX;
}

std::string znICollectableComponent::keyGet() const
{
    const znCNameComponent* name = znCNameComponent::get(mEntity);
    return name != nullptr ? name->keyGet() : std::string();
}

void znICollectableComponent::postParticleStart()
{
    const std::string file = postParticleFileGet();
    const znCResourceName resource(file, znCResourceName::GAME_DATA);
    if (!znIFile::existsGet(resource))
        return;
    if (znCEntity* entity = siblingCreate(file))
        entity->componentAdd<znCParticleEmitterComponent>()->initialise(resource);
}

void znICollectableComponent::markerStart()
{
    if (!mPostCollectionVisible || mMarkerFile.empty())
        return;
    if (znCEntity* entity = siblingCreate(markerNameGet()))
        entity->componentAdd<znCAnimatingSpriteComponent>()->xmlLoad(
            znCResourceName(mMarkerFile, znCResourceName::GAME_DATA), false);
}

// A new entity at the entity's place, owned by the tree; null without a parent.
znCEntity* znICollectableComponent::siblingCreate(const std::string& pName)
{
    if (mEntity->parentGet() == nullptr)
        return nullptr;
    auto* entity = new znCEntity(pName);
    entity->posSet(mEntity->posGet());
    mEntity->parentGet()->childAdd(entity);
    return entity;
}

// Taken out of the tree at once, so that a new one of that name can come.
void znICollectableComponent::siblingDestroy(const std::string& pName)
{
    znINode* parent = mEntity->parentGet();
    znINode* sibling = parent != nullptr ? parent->childFind(pName) : nullptr;
    if (sibling == nullptr)
        return;
    if (sibling->parentGet() != nullptr)
        sibling->parentGet()->childRemove(sibling);
    sibling->destroy();
}

void znICollectableComponent::activate()
{
    ZN_ASSERT(mState == STATE_INACTIVE, "Already activated.\n");
    mState = STATE_ACTIVE;
    activateDo();
}

void znICollectableComponent::activateDo() {}

void znICollectableComponent::reset()
{
    mEntity->activeSet(true);
    siblingDestroy(postParticleFileGet());
    siblingDestroy(markerNameGet());
    mState = STATE_INACTIVE;
    mEffectsPending = 0;
    mFinishedEarly = false;
    resetDo();
}

void znICollectableComponent::resetDo() {}

bool znICollectableComponent::exemptFromResetGet() const
{
    return mState == STATE_COLLECTED && (mEntity->componentGet(znCBonusComponent::TYPE) != nullptr ||
                                         mEntity->componentGet(znCBonusListComponent::TYPE) != nullptr ||
                                         mEntity->componentGet(znCBonusSilhouetteComponent::TYPE) != nullptr);
}

void znICollectableComponent::postCollectionVisibleSet(const std::string& pMarkerFile)
{
    if (mEntity->componentGet(znCHotComponent::TYPE) != nullptr)
        return;
    mPostCollectionVisible = true;
    mMarkerFile = pMarkerFile;
}

void znICollectableComponent::mySave(std::string& pOut)
{
    znINode::s32Save(pOut, mState);
}

void znICollectableComponent::myLoad(std::string& pIn)
{
    mState = std::clamp<s32>(znINode::s32Load(pIn), STATE_INACTIVE, STATE_COLLECTED);
    if (mState != STATE_COLLECTED)
        return;
    postParticleStart();
    markerStart();
}
