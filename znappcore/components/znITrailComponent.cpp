#include "znappcore/components/znITrailComponent.h"

#include "znappcore/src/znCEntity.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr float PLACE_LIMIT = 1073741824.0f; // 2^30; data can put things at the ends of the integers
} // namespace

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
    const float x = static_cast<float>(pTo.mX) - static_cast<float>(pFrom.mX);
    const float y = static_cast<float>(pTo.mY) - static_cast<float>(pFrom.mY);
    const znPointF middle = {static_cast<float>(pFrom.mX) + x * 0.5f, static_cast<float>(pFrom.mY) + y * 0.5f};
    const float distance = std::hypot(x, y);
    if (distance == 0.0f)
        return middle;
    const float lift = distance / 5.0f * (x < 0.0f ? 1.0f : -1.0f) / distance;
    return {middle.mX - lift * y, middle.mY + lift * x};
}

void znITrailComponent::entityPlace(const znPointF& pPos)
{
    const auto whole = [](float pValue)
    {
        return static_cast<s32>(std::clamp(pValue, -PLACE_LIMIT, PLACE_LIMIT));
    };
    mEntity->posSet(znPoint(whole(pPos.mX), whole(pPos.mY)));
}
