#include "znhogcore/components/znCTappableCollectableComponent.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/znCGhostSpriteComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"

znCTappableCollectableComponent::znCTappableCollectableComponent(znCEntity* pEntity)
    : znICollectableComponent(pEntity), mGhost(pEntity->componentAdd<znCGhostSpriteComponent>())
{
}

void znCTappableCollectableComponent::ghostSet(bool pEnabled)
{
    if (mGhost != nullptr)
        mGhost->enabledSet(pEnabled);
}

void znCTappableCollectableComponent::messagesRegister()
{
    znICollectableComponent::messagesRegister();
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerRegister(znIInputManager::POINTER_DOWN, this);
    input->listenerRegister(znIInputManager::POINTER_MOVE, this);
    input->listenerRegister(znIInputManager::POINTER_UP, this);
}

void znCTappableCollectableComponent::messagesDeregister()
{
    znICollectableComponent::messagesDeregister();
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerDeregister(znIInputManager::POINTER_DOWN, this);
    input->listenerDeregister(znIInputManager::POINTER_MOVE, this);
    input->listenerDeregister(znIInputManager::POINTER_UP, this);
}

bool znCTappableCollectableComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    const bool isPointerMessage = pType == znIInputManager::POINTER_DOWN || pType == znIInputManager::POINTER_MOVE ||
                                  pType == znIInputManager::POINTER_UP;
    if (!isPointerMessage)
        return znICollectableComponent::messageProcess(pType, pData);
    if (mState == STATE_ACTIVE)
        return pointerMessageProcess(pType, *static_cast<znCPointerMessage*>(pData));
    // What was pressed has been collected or reset meanwhile on another way.
    if (mPressed)
        pressEnd();
    return false;
}

bool znCTappableCollectableComponent::pointerMessageProcess(const znCUniqueId& pType, znCPointerMessage& pMessage)
{
    if (pType == znIInputManager::POINTER_DOWN)
        return pointerDownProcess(pMessage);
    if (pType == znIInputManager::POINTER_MOVE)
        return mPressed; // keeps moves from what lies behind
    return mPressed && pointerUpProcess(pMessage);
}

bool znCTappableCollectableComponent::pointerDownProcess(znCPointerMessage& pMessage)
{
    const bool hit = hitTest(pMessage.mPos);
    if (pMessage.mId != 0)
    {
        if (!hit && mPressed)
            pMessage.mCaptureHolder = this;
        return hit;
    }
    if (!hit || mPressed)
        return false;
    mPressed = true;
    znIInputManager::instanceGet()->priorityListenerRegister(this);
    return true;
}

bool znCTappableCollectableComponent::pointerUpProcess(const znCPointerMessage& pMessage)
{
    pressEnd();
    if (hitTest(pMessage.mPos))
        collectionProcessTrigger();
    return true;
}

void znCTappableCollectableComponent::pressEnd()
{
    mPressed = false;
    znIInputManager::instanceGet()->priorityListenerDeregister(this);
}

void znCTappableCollectableComponent::pointerCaptureCancel()
{
    pressEnd();
    znCPointerMessage message(znPoint(0, 0), 0, true);
    znIInputManager::instanceGet()->messageSend(znIInputManager::POINTER_DOWN_STEAL, &message);
}

void znCTappableCollectableComponent::myLoad(std::string& pIn)
{
    znICollectableComponent::myLoad(pIn);
    ghostSet(mState == STATE_ACTIVE);
}

// It may stay on view when collected.
void znCTappableCollectableComponent::collectionProcessTrigger()
{
    ghostSet(false);
    znICollectableComponent::collectionProcessTrigger();
}

void znCTappableCollectableComponent::activateDo()
{
    ghostSet(true);
}

void znCTappableCollectableComponent::resetDo()
{
    ghostSet(false);
    if (mPressed)
        pressEnd();
}

void znCTappableCollectableComponent::touchHitSpriteStore()
{
    auto* parent = dynamic_cast<znCEntity*>(mEntity->parentGet());
    ZN_ASSERT(parent != nullptr, "Expected parent to be an entity.\n");
    if (parent == nullptr)
        return;
    auto* subScene = parent->componentGet<znCSubSceneComponent>();
    ZN_ASSERT(subScene != nullptr, "Expected parent to have a SubSceneComponent.\n");
    if (subScene != nullptr)
        mTouchHitSprite = subScene->touchHitSpriteGet();
}

bool znCTappableCollectableComponent::hitTest(const znPoint& pPoint)
{
    auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    ZN_ASSERT(sprite != nullptr, "Expected a sprite component on entities with a TappableCollectableComponent.\n");
    if (sprite == nullptr || !mEntity->activeInTreeGet())
        return false;
    znPoint local;
    if (mTouchHitSprite != nullptr && mEntity->worldToLocalGet(pPoint, local))
        return touchMaskTest(*sprite, local);
    return sprite->hitTest(pPoint, true);
}

// The mask is a sibling of the entity, so the two share one space.
bool znCTappableCollectableComponent::touchMaskTest(znCSpriteComponent& pSprite, const znPoint& pLocal)
{
    const znPoint& pos = mEntity->posGet();
    mTouchHitSprite->entityGet()->posSet(znNCoreUtils::s32Saturate(s64(pLocal.mX) + pos.mX),
                                         znNCoreUtils::s32Saturate(s64(pLocal.mY) + pos.mY));
    return pSprite.hitTest(*mTouchHitSprite, true);
}
