#include "znhogcore/components/znICollectableComponent.h"

#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusListComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/components/znCHotComponent.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>

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
}

void znICollectableComponent::collectionComplete()
{
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED, mEntity);
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
}
