#include "znhogcore/components/znCDraggableKeyComponent.h"

#include "znappcore/components/gui/znCRollOverGui.h"
#include "znappcore/components/znCDragDropComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "znhogcore/components/znCGhostSpriteComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr char DRAG_ENTITY_SUFFIX[] = "DragDrop";
constexpr char ICON_FOLDER[] = "inventoryIcons/";
constexpr char ICON_SUFFIX[] = "C.png";
constexpr char ICON_HIT_SUFFIX[] = "C_hit.png";

// Null if there is no such file.
znCBrushPtr brushIfExistsGet(const std::string& pFile)
{
    const znCResourceName name(pFile, znCResourceName::GAME_DATA);
    return znIFile::existsGet(name) ? znCBrushManager::instanceGet()->brushGet(name, true) : znCBrushPtr();
}
} // namespace

znCDraggableKeyComponent::znCDraggableKeyComponent(znCEntity* pEntity) : znIMessageListenerComponent(pEntity)
{
    if (auto* ghost = pEntity->componentAdd<znCGhostSpriteComponent>())
        ghost->enabledSet(true);
}

void znCDraggableKeyComponent::messagesRegister()
{
    znIInputManager::instanceGet()->listenerRegister(znIInputManager::POINTER_DOWN, this);
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCDragDropComponent::DRAG_END, this);
    znCHogMessageDispatcher::instanceGet()->listenerRegister(znCHogMessageDispatcher::RESET_LEVEL, this);
}

void znCDraggableKeyComponent::messagesDeregister()
{
    znIInputManager::instanceGet()->listenerDeregister(znIInputManager::POINTER_DOWN, this);
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCDragDropComponent::DRAG_END, this);
    znCHogMessageDispatcher::instanceGet()->listenerDeregister(znCHogMessageDispatcher::RESET_LEVEL, this);
}

bool znCDraggableKeyComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znIInputManager::POINTER_DOWN)
    {
        const auto& message = *static_cast<znCPointerMessage*>(pData);
        if (message.mId != 0 || !startDragEventIfHit(message))
            return false;
        mDragging = true;
        // From now on the key takes the pointer's moves, and a caption would stay where it is.
        znCGuiMessageDispatcher::instanceGet()->messageSend(znCRollOverGui::CLOSE_ROLL_OVER,
                                                            znCEmptyMessageData::sharedGet());
        return true;
    }
    if (pType == znCDragDropComponent::DRAG_END && mDragging)
    {
        dragEndHandle();
        return true;
    }
    if (pType == znCHogMessageDispatcher::RESET_LEVEL)
        reset();
    return false;
}

bool znCDraggableKeyComponent::startDragEventIfHit(const znCPointerMessage& pMessage)
{
    auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    ZN_ASSERT(sprite != nullptr, "Expected a sprite component on entities with a GestureHandlingComponent.\n");
    znINode* parent = mEntity->parentGet();
    if (sprite == nullptr || parent == nullptr || !sprite->hitTest(pMessage.mPos, true))
        return false;
    znCEntity* dragEntity =
        znCDragDropComponent::entityCreate(mEntity->nameGet() + DRAG_ENTITY_SUFFIX, dragBrushGet(), mEntity->posGet());
    dragEntity->componentGet<znCDragDropComponent>()->dragStart(pMessage.mPos, pMessage.mId);
    parent->childAdd(dragEntity);
    mEntity->activeSet(false);
    return true;
}

znCBrushPtr znCDraggableKeyComponent::dragBrushGet() const
{
    znCBrushPtr brush = inventoryIconGet();
    const znCBrushPtr hitBrush = brushIfExistsGet(ICON_FOLDER + keyGet() + ICON_HIT_SUFFIX);
    if (hitBrush != nullptr && brush != nullptr)
        brush->hitBrushSet(hitBrush);
    return brush;
}

znCBrushPtr znCDraggableKeyComponent::inventoryIconGet() const
{
    const znCBrushPtr icon = brushIfExistsGet(ICON_FOLDER + keyGet() + ICON_SUFFIX);
    return icon != nullptr ? icon : mEntity->componentGet<znCSpriteComponent>()->brushGet();
}

std::string znCDraggableKeyComponent::keyGet() const
{
    const znCNameComponent* name = znCNameComponent::get(mEntity);
    return name != nullptr ? name->keyGet() : std::string();
}

void znCDraggableKeyComponent::dragEndHandle()
{
    mDragging = false;
    znCEntity* dragEntity = dragEntityFind();
    ZN_ASSERT(dragEntity != nullptr, "Expected to find the DragDrop entity we created.\n");
    if (dragEntity == nullptr || !locksTry(*dragEntity))
        mEntity->activeSet(true);
    if (dragEntity != nullptr)
        dragEntity->destroy();
}

// True if a lock took the key and none of them still needs it.
bool znCDraggableKeyComponent::locksTry(const znCEntity& pDragEntity)
{
    const znIHogLevel* level = znIHogLevel::levelGet();
    const znCSubSceneComponent* subScene = level != nullptr ? level->currentSubSceneGet() : nullptr;
    if (subScene == nullptr)
        return false;
    auto* dragSprite = pDragEntity.componentGet<znCSpriteComponent>();
    bool taken = false;
    bool needed = false;
    for (znCEntity* entity : subScene->entityGet()->entitiesWithComponentsGet({&typeid(znCLockComponent)}))
    {
        auto* lock = entity->componentGet<znCLockComponent>();
        if (lock->keyTry(mEntity, dragSprite))
        {
            taken = true;
            std::string name = mEntity->nameGet();
            znCGuiMessageDispatcher::instanceGet()->messageSend(znCGuiMessageDispatcher::TUTORIAL_BUTTON_PRESSED,
                                                                &name);
        }
        else if (lock->keyNeeded(mEntity))
            needed = true;
    }
    return taken && !needed;
}

void znCDraggableKeyComponent::reset()
{
    // The picture would stay behind with nobody waiting for its drop.
    znCEntity* dragEntity = mDragging ? dragEntityFind() : nullptr;
    if (dragEntity != nullptr)
        dragEntity->destroy();
    mDragging = false;
    mEntity->activeSet(true);
}

znCEntity* znCDraggableKeyComponent::dragEntityFind() const
{
    znINode* parent = mEntity->parentGet();
    if (parent == nullptr)
        return nullptr;
    return dynamic_cast<znCEntity*>(parent->childFind(mEntity->nameGet() + DRAG_ENTITY_SUFFIX));
}

void znCDraggableKeyComponent::mySave(std::string& pOut)
{
    znINode::boolSave(pOut, mDragging);
}

void znCDraggableKeyComponent::myLoad(std::string& pIn)
{
    if (znINode::boolLoad(pIn))
        mEntity->activeSet(true);
}
