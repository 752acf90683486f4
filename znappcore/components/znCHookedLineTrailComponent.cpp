#include "znappcore/components/znCHookedLineTrailComponent.h"

#include <cmath>
#include <numbers>

namespace
{
constexpr s32 RING_KNOTS = 12; // four a round
constexpr float RING_RADIUS = 50.0f;
constexpr float QUARTER_TURN = std::numbers::pi_v<float> / 2.0f;
} // namespace

void znCHookedLineTrailComponent::pathSet(const znPoint& pStart, const znPoint& pEnd)
{
    const znPointF end = {static_cast<float>(pEnd.mX), static_cast<float>(pEnd.mY)};
    std::vector<znPointF> knots = {{static_cast<float>(pStart.mX), static_cast<float>(pStart.mY)},
                                   liftedMidpointGet(pStart, pEnd)};
    const float turn = pEnd.mX >= 0 ? QUARTER_TURN : -QUARTER_TURN;
    // Where the ring is met first. The arguments stand the way round that the flight was tuned with; equal points give
    // 0.
    float angle = std::atan2(knots[0].mX - end.mX, knots[0].mY - end.mY);
    for (s32 i = 0; i < RING_KNOTS; ++i, angle += turn)
        knots.push_back({end.mX + std::cos(angle) * RING_RADIUS, end.mY + std::sin(angle) * RING_RADIUS});
    mSpline = std::make_unique<znCBezierSpline>(knots, mDurationMs);
}

void znCHookedLineTrailComponent::positionUpdate()
{
    entityPlace(mSpline->positionGet(mElapsedMs));
}
