#include "znhogcore/components/znCSubSceneComponent.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
constexpr char TOUCH_HIT_MASK[] = "cursors/software/touchHitMask.png";
constexpr char TOUCH_HIT_SUFFIX[] = "TouchHitSpr";
} // namespace

znCSubSceneComponent::znCSubSceneComponent(znCEntity* pEntity) : znIMessageListenerComponent(pEntity)
{
    if (znIInputManager::instanceGet()->pointerTypeGet() != znIInputManager::POINTER_TYPE_MOUSE)
        touchHitSpriteCreate();
}

void znCSubSceneComponent::touchHitSpriteCreate()
{
    const znCResourceName mask(TOUCH_HIT_MASK, znCResourceName::GAME_DATA);
    if (!znIFile::existsGet(mask))
        return;
    auto* entity = new znCEntity(mEntity->nameGet() + TOUCH_HIT_SUFFIX); // owned by the tree
    mTouchHitSprite = entity->componentAdd<znCSpriteComponent>();
    mTouchHitSprite->brushSet(znCBrushManager::instanceGet()->brushGet(mask, true));
    entity->activeSet(false);
    mEntity->childAdd(entity);
}

void znCSubSceneComponent::messagesRegister()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerRegister(znCHogMessageDispatcher::OPEN_SUB_SCENE, this);
    game->listenerRegister(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE, this);
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerRegister(znIInputManager::POINTER_DOWN, this);
    input->listenerRegister(znIInputManager::POINTER_MOVE, this);
    input->listenerRegister(znIInputManager::POINTER_UP, this);
}

void znCSubSceneComponent::messagesDeregister()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerDeregister(znCHogMessageDispatcher::OPEN_SUB_SCENE, this);
    game->listenerDeregister(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE, this);
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerDeregister(znIInputManager::POINTER_DOWN, this);
    input->listenerDeregister(znIInputManager::POINTER_MOVE, this);
    input->listenerDeregister(znIInputManager::POINTER_UP, this);
}

void znCSubSceneComponent::initialise(s32 pIndex)
{
    mIndex = pIndex;
    const auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    ZN_ASSERT(sprite != nullptr, "Expected to have a sprite component on a sub scene.\n");
    const znIDisplay* display = znIDisplay::instanceGet();
    mFullScreen = sprite != nullptr && sprite->widthGet() >= display->visibleCanvasWidthGet() &&
                  sprite->heightGet() >= display->visibleCanvasHeightGet();
}

bool znCSubSceneComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::OPEN_SUB_SCENE && *static_cast<s32*>(pData) == mIndex)
    {
        open();
        return true;
    }
    if (!mEntity->activeInTreeGet())
        return false;
    if (pType == znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE)
    {
        mEntity->activeSet(false);
        return true;
    }
    return pType == znIInputManager::POINTER_DOWN || pType == znIInputManager::POINTER_MOVE ||
           pType == znIInputManager::POINTER_UP;
}

void znCSubSceneComponent::open()
{
    ZN_ASSERT(!mEntity->activeInTreeGet(), "SubScene already open.\n");
    mEntity->activeSet(true);
    if (mFullScreen)
        znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::SUB_EXIT_BUTTON_SHOW,
                                                            znCEmptyMessageData::sharedGet());
}
