#include "znhogcore/components/znIFlyingCollectionEffectComponent.h"

#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/components/znITrailComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/znIHogLevel.h"

void znIFlyingCollectionEffectComponent::flightStart(znITrailComponent* pTrail, const znPoint& pStart,
                                                     const znPoint& pTarget, s32 pDurationMs)
{
    mTrail = pTrail;
    mTrail->trailInitialise(pStart, pTarget, pDurationMs, false);
    znIHogLevel::levelGet()->childAdd(mEntity);
}

void znIFlyingCollectionEffectComponent::particlesAdd(const char* pFile)
{
    mEntity->componentAdd<znCParticleEmitterComponent>()->initialise(
        znCResourceName(pFile, znCResourceName::GAME_DATA));
}

znPoint znIFlyingCollectionEffectComponent::guiPosGet(const char* pOuter, const char* pInner)
{
    znINode* outer = znIHogLevel::levelGet()->childFind(pOuter);
    const znINode* inner = outer != nullptr ? outer->childFind(pInner) : nullptr;
    return inner != nullptr ? znCCollectionEffectFactory::instanceGet()->localStartCoordGet(inner->worldPosGet())
                            : znPoint(0, 0);
}

void znIFlyingCollectionEffectComponent::update(s32)
{
    if (endedGet() || mTrail == nullptr)
        return;
    if (!mTrail->finishedGet())
    {
        flightUpdate();
        return;
    }
    effectComplete();
    arrive();
}

void znIFlyingCollectionEffectComponent::flightUpdate() {}

void znIFlyingCollectionEffectComponent::arrive() {}
