#include "znappcore/components/znCArcLineTrailComponent.h"

void znCArcLineTrailComponent::pathSet(const znPoint& pStart, const znPoint& pEnd)
{
    const std::vector<znPointF> knots = {{static_cast<float>(pStart.mX), static_cast<float>(pStart.mY)},
                                         liftedMidpointGet(pStart, pEnd),
                                         {static_cast<float>(pEnd.mX), static_cast<float>(pEnd.mY)}};
    mSpline = std::make_unique<znCBezierSpline>(knots, mDurationMs);
}

void znCArcLineTrailComponent::positionUpdate()
{
    if (mElapsedMs < mDurationMs)
        entityPlace(mSpline->positionGet(mElapsedMs));
}
