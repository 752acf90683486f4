#ifndef ZNAPPCORE_COMPONENTS_ZNITRAILCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNITRAILCOMPONENT_H

#include "znappcore/znIComponent.h"
#include "zncore/znPoint.h"
#include "zncore/znPointF.h"

// Base of what moves its entity along a path within a given time. Points are in the space of the entity's parent.
class znITrailComponent : public znIComponent
{
public:
    using znIComponent::znIComponent;

    // Puts the entity at the start and lets it go. With pDestroyAtEnd the entity is destroyed when the time is up.
    void trailInitialise(const znPoint& pStart, const znPoint& pEnd, s32 pDurationMs, bool pDestroyAtEnd);
    bool finishedGet() const { return mDurationMs <= mElapsedMs; }

    void update(s32 pDeltaMs) override;

    virtual void pathSet(const znPoint& pStart, const znPoint& pEnd) = 0;
    // Moves the entity to where it is at mElapsedMs.
    virtual void positionUpdate() = 0;

protected:
    // The middle between two points, lifted by a fifth of their distance, always to the same side as seen along a line
    // from left to right. Of two equal points: that point.
    static znPointF liftedMidpointGet(const znPoint& pFrom, const znPoint& pTo);
    void entityPlace(const znPointF& pPos); // truncated

    s32 mDurationMs = 0;
    s32 mElapsedMs = 0;
    bool mDestroyAtEnd = false;
};

#endif
