#include "znappcore/components/znITrailComponent.h"

#include "znappcore/src/znCEntity.h"

#include <cmath>

void znITrailComponent::trailInitialise(const znPoint& pStart, const znPoint& pEnd, s32 pDurationMs, bool pDestroyAtEnd)
{
    mDurationMs = pDurationMs;
    mDestroyAtEnd = pDestroyAtEnd;
    pathSet(pStart, pEnd);
    mEntity->posSet(pStart);
}

void znITrailComponent::update(s32 pDeltaMs)
{
    if (mElapsedMs >= mDurationMs)
        return;
    mElapsedMs += pDeltaMs;
    positionUpdate();
    if (mDestroyAtEnd && finishedGet())
        mEntity->destroy();
}

znPointF znITrailComponent::liftedMidpointGet(const znPoint& pFrom, const znPoint& pTo)
{
    const float x = static_cast<float>(pTo.mX - pFrom.mX);
    const float y = static_cast<float>(pTo.mY - pFrom.mY);
    const znPointF middle = {static_cast<float>(pFrom.mX) + x * 0.5f, static_cast<float>(pFrom.mY) + y * 0.5f};
    const float distance = std::hypot(x, y);
    if (distance == 0.0f)
        return middle;
    const float lift = distance / 5.0f * (x < 0.0f ? 1.0f : -1.0f) / distance;
    return {middle.mX - lift * y, middle.mY + lift * x};
}

void znITrailComponent::entityPlace(const znPointF& pPos)
{
    mEntity->posSet(znPoint(static_cast<s32>(pPos.mX), static_cast<s32>(pPos.mY)));
}
