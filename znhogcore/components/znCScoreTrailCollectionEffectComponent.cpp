#include "znhogcore/components/znCScoreTrailCollectionEffectComponent.h"

#include "znappcore/components/znCStraightLineTrailComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znCScoreCollectionEffectData.h"

namespace
{
constexpr char GUI_PANEL[] = "topGuiBackground";
constexpr char GUI_CURRENCY[] = "currency";
constexpr char PARTICLES[] = "particles/pScoreCollectTrail.txt";
constexpr s32 FLIGHT_MS = 2000;

constexpr s32 SILHOUETTE_POINTS = 50;
constexpr s32 BONUS_POINTS = 20;
constexpr s32 LISTED_POINTS = 10;

s32 pointsGet(const znCEntity& pSource)
{
    if (pSource.componentGet(znCBonusSilhouetteComponent::TYPE) != nullptr)
        return SILHOUETTE_POINTS;
    return pSource.componentGet(znCBonusComponent::TYPE) != nullptr ? BONUS_POINTS : LISTED_POINTS;
}
} // namespace

void znCScoreTrailCollectionEffectComponent::create(znCEntity* pEntity, const znCEntity* pSource, const znPoint& pStart)
{
    auto* effect = pEntity->componentAdd<znCScoreTrailCollectionEffectComponent>();
    effect->mSource = pSource;
    effect->flightStart(pEntity->componentAdd<znCStraightLineTrailComponent>(), pStart,
                        guiPosGet(GUI_PANEL, GUI_CURRENCY), FLIGHT_MS);
    effect->particlesAdd(PARTICLES);
}

void znCScoreTrailCollectionEffectComponent::arrive()
{
    pointsSend();
}

void znCScoreTrailCollectionEffectComponent::cancelDo()
{
    pointsSend();
}

void znCScoreTrailCollectionEffectComponent::pointsSend() const
{
    znCScoreCollectionEffectData data{"", pointsGet(*mSource)};
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::SCORE_COLLECTION_EFFECT_COMPLETE,
                                                        &data);
}
