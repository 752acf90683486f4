#include "znhogcore/components/znCSubSceneComponent.h"

#include "znappcore/components/gui/znCModalGuiComponent.h"
#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNVectorShuffle.h"
#include "znhogcore/components/znCNavigateComponent.h"
#include "znhogcore/components/znCSubSceneExitComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"
#include "znhogcore/components/znICollectableComponent.h"
#include "znhogcore/components/znNSpotTheDiff.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>

namespace
{
constexpr char TOUCH_HIT_MASK[] = "cursors/software/touchHitMask.png";
constexpr char TOUCH_HIT_SUFFIX[] = "TouchHitSpr";
constexpr char MISSED_NAME[] = "MissedSTDClick";
constexpr char MISSED_ANIMATION[] = "diffNotFoundMarker"; // of the application's settings, as the next
constexpr char MISSED_SOUND[] = "sfxDiffMissedClick";
constexpr char MISSED_SOUND_DEFAULT[] = "audio/sfx/find.wav";

constexpr znCUniqueId GAME_MESSAGES[] = {
    znCHogMessageDispatcher::OPEN_SUB_SCENE,      znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE,
    znCHogMessageDispatcher::HINT_BUTTON_PRESSED, znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED,
    znCHogMessageDispatcher::ADDED_ENTRY,         znCHogMessageDispatcher::RESET_LEVEL,
};
constexpr znCUniqueId POINTER_MESSAGES[] = {znIInputManager::POINTER_DOWN, znIInputManager::POINTER_MOVE,
                                            znIInputManager::POINTER_UP};

void send(const znCUniqueId& pType)
{
    znCHogMessageDispatcher::instanceGet()->messageSend(pType, znCEmptyMessageData::sharedGet());
}

// What stands in a close-up must lead further in: only that can't run in a circle.
bool leadsOn(const znCEntity& pEntity, s32 pIndex)
{
    const auto* door = pEntity.componentGet<znCSubSceneNavigateComponent>();
    return door != nullptr && pEntity.activeGet() && door->targetIndexGet() > pIndex;
}

bool isWork(const znCEntity& pEntity, s32 pIndex)
{
    const auto* collectable = pEntity.componentFind<znICollectableComponent>();
    if (collectable != nullptr && !collectable->inactiveGet() &&
        (!collectable->collectionStartedGet() || collectable->collectingGet()))
        return true;
    const auto* way = pEntity.componentGet<znCNavigateComponent>();
    return (way != nullptr && way->navigateActiveGet()) || leadsOn(pEntity, pIndex);
}

bool hasWork(const znINode& pNode, s32 pIndex)
{
    return std::any_of(pNode.childrenGet().begin(), pNode.childrenGet().end(),
                       [pIndex](const znINode* pChild)
                       {
                           const auto* entity = dynamic_cast<const znCEntity*>(pChild);
                           return (entity != nullptr && isWork(*entity, pIndex)) || hasWork(*pChild, pIndex);
                       });
}

// Whether a press on the door would open something. pSubScenes: all of the level by index.
bool doorUsableGet(const znCEntity& pDoor, s32 pIndex, const std::vector<znCEntity*>& pSubScenes)
{
    const auto target = static_cast<std::size_t>(pDoor.componentGet<znCSubSceneNavigateComponent>()->targetIndexGet());
    if (!leadsOn(pDoor, pIndex) || !pDoor.activeInTreeGet() || target >= pSubScenes.size() ||
        pSubScenes[target]->activeInTreeGet())
        return false;
    const auto covers = [&pDoor](const znCEntity* pSubScene)
    {
        auto* sprite = pSubScene->componentGet<znCSpriteComponent>();
        return sprite != nullptr && sprite->hitTest(pDoor.worldPosGet(), false);
    };
    return std::none_of(pSubScenes.begin() + pIndex + 1, pSubScenes.end(), covers);
}
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
    for (const znCUniqueId& message : GAME_MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(message, this);
    for (const znCUniqueId& message : POINTER_MESSAGES)
        znIInputManager::instanceGet()->listenerRegister(message, this);
}

void znCSubSceneComponent::messagesDeregister()
{
    for (const znCUniqueId& message : GAME_MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(message, this);
    for (const znCUniqueId& message : POINTER_MESSAGES)
        znIInputManager::instanceGet()->listenerDeregister(message, this);
}

void znCSubSceneComponent::initialise(s32 pIndex)
{
    mIndex = pIndex;
    const auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    ZN_ASSERT(sprite != nullptr, "Expected to have a sprite component on a sub scene.\n");
    const znIDisplay* display = znIDisplay::instanceGet();
    mFullScreen = sprite != nullptr && sprite->widthGet() >= display->visibleCanvasWidthGet() &&
                  sprite->heightGet() >= display->visibleCanvasHeightGet();
    if (mFullScreen && mEntity->componentGet<znCSubSceneExitComponent>() != nullptr)
        mEntity->componentRemove(znCSubSceneExitComponent::TYPE);
}

bool znCSubSceneComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::OPEN_SUB_SCENE)
    {
        const bool mine = *static_cast<s32*>(pData) == mIndex;
        if (mine)
            open();
        return mine;
    }
    if (pType == znCHogMessageDispatcher::ADDED_ENTRY || pType == znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED)
    {
        if (pType == znCHogMessageDispatcher::ADDED_ENTRY && hasWork(*mEntity, mIndex))
            znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::ACTIVATE_SUB_SCENE, &mIndex);
        else
            outOfWorkCheck();
        return false;
    }
    if (!mEntity->activeInTreeGet())
        return false;
    if (pType == znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE)
        return closeIfClosable();
    if (pType == znCHogMessageDispatcher::RESET_LEVEL)
    {
        closeIfClosable();
        return false;
    }
    if (pType == znCHogMessageDispatcher::HINT_BUTTON_PRESSED)
        return hintGive();
    if (pType == znIInputManager::POINTER_UP)
        pointerUpProcess(*static_cast<znCPointerMessage*>(pData));
    return true;
}

void znCSubSceneComponent::open()
{
    const bool isOpen = mEntity->activeInTreeGet();
    ZN_ASSERT(!isOpen, "SubScene already open.\n");
    if (isOpen)
        return;
    mEntity->activeSet(true);
    if (mFullScreen)
        send(znCHogMessageDispatcher::SUB_EXIT_BUTTON_SHOW);
}

void znCSubSceneComponent::close()
{
    mEntity->activeSet(false);
    if (mFullScreen)
        send(znCHogMessageDispatcher::SUB_EXIT_BUTTON_HIDE);
}

// Behind the room there is nothing.
bool znCSubSceneComponent::closeIfClosable()
{
    if (mIndex == 0)
        return false;
    close();
    return true;
}

// A find may end after its close-up was closed, so a closed one looks too.
void znCSubSceneComponent::outOfWorkCheck()
{
    if (mIndex == 0 || hasWork(*mEntity, mIndex))
        return;
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::DEACTIVATE_SUB_SCENE, &mIndex);
    if (!mEntity->activeInTreeGet())
        return;
    const znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr || level->currentSubSceneGet() == this)
        send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE);
    else
        close(); // the one that lies over it has its own work
}

// Points at a door that the player can press and that leads to a close-up with work.
bool znCSubSceneComponent::hintGive()
{
    znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr)
        return false;
    const std::vector<znCEntity*> subScenes = level->entitiesWithComponentsGet({&typeid(znCSubSceneComponent)});
    std::vector<znCEntity*> doors = mEntity->entitiesWithComponentsGet({&typeid(znCSubSceneNavigateComponent)});
    std::erase_if(doors, [&](const znCEntity* pDoor) { return !doorUsableGet(*pDoor, mIndex, subScenes); });
    if (doors.empty())
        return false;
    znNCoreUtils::vectorShuffle(doors);
    level->hintShow(doors.front());
    return true;
}

void znCSubSceneComponent::pointerUpProcess(const znCPointerMessage& pMessage)
{
    if (pMessage.mId != 0 && znCUserSavedData::instanceGet()->boolGet(znCUserSavedData::CHEAT))
    {
        if (pMessage.mId == 1)
            send(znCHogMessageDispatcher::DUAL_TOUCH);
        else if (pMessage.mId == 2)
            send(znCHogMessageDispatcher::TRIPLE_TOUCH);
    }
    if (pMessage.mId == 0)
        missedTapHandle(pMessage.mPos);
}

void znCSubSceneComponent::missedTapHandle(const znPoint& pPoint)
{
    if (znNSpotTheDiff::pieceCount(*mEntity) == 0)
        return;
    ZN_ASSERT(mMissAnim == nullptr,
              "Not expecting a missed click during an existing missed click animation. Memory leak!\n");
    znPoint place(0, 0);
    if (mMissAnim != nullptr || !mEntity->worldToLocalGet(pPoint, place))
        return;
    const znCAppSettings* settings = znCAppSettings::instanceGet();
    auto* entity = new znCEntity(MISSED_NAME); // owned by the tree
    entity->componentAdd<znCModalGuiComponent>();
    mMissAnim = entity->componentAdd<znCAnimatingSpriteComponent>();
    mMissAnim->xmlLoad(znCResourceName(settings->strGet(MISSED_ANIMATION), znCResourceName::GAME_DATA), false);
    entity->posSet(place);
    mEntity->childAdd(entity);
    znIAudioManager::instanceGet()->effectPlay(
        znCResourceName(settings->strGet(MISSED_SOUND, MISSED_SOUND_DEFAULT), znCResourceName::GAME_DATA), false);
}

void znCSubSceneComponent::update(s32)
{
    if (mMissAnim == nullptr || (mMissAnim->spriteGet() != nullptr && mMissAnim->spriteGet()->isRunning()))
        return;
    mMissAnim->entityGet()->destroy();
    mMissAnim = nullptr;
}
