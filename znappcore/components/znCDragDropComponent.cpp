#include "znappcore/components/znCDragDropComponent.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znCEmptyMessageData.h"

znCDragDropComponent::znCDragDropComponent(znCEntity* pEntity)
    : znIGestureHandlingComponent(pEntity, false, true, false)
{
}

znCEntity* znCDragDropComponent::entityCreate(const std::string& pName, const znCBrushPtr& pBrush, const znPoint& pPos)
{
    auto* entity = new znCEntity(pName); // owned by the caller
    entity->componentAdd<znCSpriteComponent>()->brushSet(pBrush);
    entity->componentAdd<znCDragDropComponent>();
    entity->posSet(pPos);
    return entity;
}

void znCDragDropComponent::dragStart(const znPoint& pPos, s32 pId)
{
    dragAdopt(pPos, pId);
}

bool znCDragDropComponent::inputEnabled()
{
    return true;
}

void znCDragDropComponent::onDragMove(const znPoint& pPos)
{
    znINode* parent = mEntity->parentGet();
    znPoint local;
    if (parent != nullptr && parent->worldToLocalGet(pPos, local))
        mEntity->posSet(local);
}

void znCDragDropComponent::onDragEnd(const znPoint& pPos)
{
    onDragMove(pPos);
    znCGuiMessageDispatcher::instanceGet()->messageSend(DRAG_END, znCEmptyMessageData::sharedGet());
}
