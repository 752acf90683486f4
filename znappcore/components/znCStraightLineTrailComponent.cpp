#include "znappcore/components/znCStraightLineTrailComponent.h"

void znCStraightLineTrailComponent::pathSet(const znPoint& pStart, const znPoint& pEnd)
{
    mGraphX = znCGraph<float>();
    mGraphX.dataAdd(0, static_cast<float>(pStart.mX));
    mGraphX.dataAdd(mDurationMs, static_cast<float>(pEnd.mX));
    mGraphY = znCGraph<float>();
    mGraphY.dataAdd(0, static_cast<float>(pStart.mY));
    mGraphY.dataAdd(mDurationMs, static_cast<float>(pEnd.mY));
}

void znCStraightLineTrailComponent::positionUpdate()
{
    entityPlace({mGraphX.valueGet(mElapsedMs), mGraphY.valueGet(mElapsedMs)});
}
