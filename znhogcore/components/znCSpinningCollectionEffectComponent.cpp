#include "znhogcore/components/znCSpinningCollectionEffectComponent.h"

#include "znappcore/components/znCArcLineTrailComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"

#include <numbers>

namespace
{
constexpr char GUI_LIST[] = "recyclePickList";
constexpr char GUI_LIST_PICTURE[] = "completeSprite";
constexpr s32 FLIGHT_MS = 1200;
constexpr float TURN_PER_FRAME = std::numbers::pi_v<float> / 10.0f;
} // namespace

void znCSpinningCollectionEffectComponent::create(znCEntity* pEntity, const znCEntity* pSource, const znPoint& pStart)
{
    auto* effect = pEntity->componentAdd<znCSpinningCollectionEffectComponent>();
    auto* trail = pEntity->componentAdd<znCArcLineTrailComponent>();
    if (const auto* picture = pSource->componentGet<znCSpriteComponent>())
        pEntity->componentAdd<znCSpriteComponent>()->brushSet(picture->brushGet());
    effect->flightStart(trail, pStart, guiPosGet(GUI_LIST, GUI_LIST_PICTURE), FLIGHT_MS);
}

void znCSpinningCollectionEffectComponent::flightUpdate()
{
    mEntity->rotationSet(mEntity->rotationGet() + TURN_PER_FRAME);
}
