#ifndef ZNHOGCORE_COMPONENTS_ZNIFLYINGCOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNIFLYINGCOLLECTIONEFFECTCOMPONENT_H

// Base of the pieces of the show that fly to a place of the level's GUI and report when they arrive. A level is open,
// and the entity flies below it: all points are in the level's space.

#include "zncore/znPoint.h"
#include "znhogcore/components/znICollectionEffectComponent.h"

class znITrailComponent;

class znIFlyingCollectionEffectComponent : public znICollectionEffectComponent
{
public:
    using znICollectionEffectComponent::znICollectionEffectComponent;

    void update(s32 pDeltaMs) override;

protected:
    // Puts the entity below the level and lets it go, moved by pTrail, a component of the entity.
    void flightStart(znITrailComponent* pTrail, const znPoint& pStart, const znPoint& pTarget, s32 pDurationMs);
    void particlesAdd(const char* pFile);
    // Where the part pInner of the GUI's piece pOuter is; (0, 0) without them.
    static znPoint guiPosGet(const char* pOuter, const char* pInner);

    virtual void flightUpdate(); // each frame on the way
    virtual void arrive();       // behind the report

private:
    znITrailComponent* mTrail = nullptr; // owned by the entity
};

#endif
