#include "znappcore/components/znCSpriteComponent.h"

#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"
#include "zncore/znRect.h"

namespace
{
// The rectangle of the hit brush around an entity, in its parent's space.
znRect hitRectGet(const znCEntity& pEntity, const znCBrush& pBrush)
{
    return znRect(pEntity.posGet(), pBrush.hitWidthGet(), pBrush.hitHeightGet());
}

bool pixelShared(const znCBrush& pFirst, const znRect& pFirstRect, const znCBrush& pSecond, const znRect& pSecondRect,
                 const znRect& pShared)
{
    for (s32 y = pShared.mTop; y < pShared.mBottom; ++y)
        for (s32 x = pShared.mLeft; x < pShared.mRight; ++x)
            if (pFirst.hitTest({x - pFirstRect.mLeft, y - pFirstRect.mTop}) &&
                pSecond.hitTest({x - pSecondRect.mLeft, y - pSecondRect.mTop}))
                return true;
    return false;
}
} // namespace

znCSpriteComponent::znCSpriteComponent(znCEntity* pEntity) : znIComponent(pEntity) {}

void znCSpriteComponent::render()
{
    mSprite.render();
}

void znCSpriteComponent::matrixApply()
{
    mSprite.matrixApply(mEntity->worldMatrixGet());
}

void znCSpriteComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIComponent::initialiseFromVariableTableDo(pTable);
    const std::string image = pTable.strGet("image");
    znCBrushManager* brushes = image.empty() ? nullptr : znCBrushManager::instanceGet();
    if (brushes != nullptr)
        brushSet(
            brushes->brushGet(znCResourceName(image, znCResourceName::GAME_DATA), pTable.strGet("hitMap") == "true"));
}

void znCSpriteComponent::brushSet(const znCBrushPtr& pBrush)
{
    mSprite.brushSet(pBrush);
    matrixApply();
}

bool znCSpriteComponent::hitTest(const znPoint& pWorld, bool pExpectHitMap)
{
    znPoint local(0, 0);
    return mEntity->activeInTreeGet() && mEntity->worldToLocalGet(pWorld, local) &&
           mSprite.hitTest(local, pExpectHitMap);
}

bool znCSpriteComponent::hitTest(znCSpriteComponent& pOther, bool pPerPixel)
{
    overlapPreconditionsCheck(pOther);
    const znCBrush* first = brushGet().get();
    const znCBrush* second = pOther.brushGet().get();
    if (first == nullptr || second == nullptr)
        return false;
    const znRect firstRect = hitRectGet(*mEntity, *first);
    const znRect secondRect = hitRectGet(*pOther.mEntity, *second);
    const znRect shared = firstRect.intersectionGet(secondRect);
    if (shared.mLeft >= shared.mRight || shared.mTop >= shared.mBottom)
        return false;
    if (!pPerPixel)
        return true;
    const bool hitMaps = first->hasHitMap() && second->hasHitMap();
    ZN_ASSERT(hitMaps, "Sprite entities %s and %s must have hit maps for this hit test.\n", mEntity->nameGet().c_str(),
              pOther.mEntity->nameGet().c_str());
    return !hitMaps || pixelShared(*first, firstRect, *second, secondRect, shared);
}

void znCSpriteComponent::overlapPreconditionsCheck(const znCSpriteComponent& pOther) const
{
    const znCEntity& one = *mEntity;
    const znCEntity& other = *pOther.mEntity;
    const char* oneName = one.nameGet().c_str();
    const char* otherName = other.nameGet().c_str();
    ZN_ASSERT(one.parentGet() == other.parentGet(),
              "Sprite entities %s and %s must be linked to the same parent for this hit test.\n", oneName, otherName);
    ZN_ASSERT(one.scaleGet() == 1.0f && other.scaleGet() == 1.0f,
              "Sprite entities %s and %s must have a scale of 1.0f for this hit test.\n", oneName, otherName);
    ZN_ASSERT(one.rotationGet() == 0.0f && other.rotationGet() == 0.0f,
              "Sprite entities %s and %s must have an angle of 0.0f for this hit test.\n", oneName, otherName);
}
