#include "znappcore/components/znITrailComponent.h"

#include "tests/znappcore/znCTreeTest.h"
#include "znappcore/components/znCArcLineTrailComponent.h"
#include "znappcore/components/znCHookedLineTrailComponent.h"
#include "znappcore/components/znCStraightLineTrailComponent.h"
#include "znappcore/src/znCBezierSpline.h"
#include "znappcore/src/znCEntity.h"

#include <cmath>

namespace
{
constexpr s32 DURATION_MS = 1000;
constexpr s32 STEP_MS = 10;

// The places of a trail after each step, from the first to the last.
template <class Trail>
std::vector<znPoint> flightGet(const znPoint& pStart, const znPoint& pEnd)
{
    znCEntity entity("trail");
    Trail trail(&entity);
    trail.trailInitialise(pStart, pEnd, DURATION_MS, false);
    std::vector<znPoint> places = {entity.posGet()};
    while (!trail.finishedGet())
    {
        trail.update(STEP_MS);
        places.push_back(entity.posGet());
    }
    return places;
}

double distanceGet(const znPoint& pFrom, const znPoint& pTo)
{
    return std::hypot(pTo.mX - pFrom.mX, pTo.mY - pFrom.mY);
}

class znITrailComponentTest : public znCTreeTest
{
};
} // namespace

TEST_F(znITrailComponentTest, goesStraightAtConstantSpeedAndStaysAtTheEnd)
{
    const std::vector<znPoint> places = flightGet<znCStraightLineTrailComponent>({-100, 40}, {300, -160});
    ASSERT_EQ(places.size(), 101u);
    EXPECT_EQ(places[25].mX, 0);
    EXPECT_EQ(places[25].mY, -10);
    EXPECT_EQ(places[50].mX, 100);
    EXPECT_EQ(places.back().mX, 300);
    EXPECT_EQ(places.back().mY, -160);
}

TEST_F(znITrailComponentTest, arcsToOneSideOfTheScreenWhereverItComesFrom)
{
    struct Case
    {
        znPoint mStart;
        znPoint mEnd;
        znPoint mMiddle; // of the path: the lifted midpoint
    };
    const Case cases[] = {
        {{0, 0}, {200, 0}, {100, -40}}, {{200, 0}, {0, 0}, {100, -40}}, {{0, 0}, {0, 200}, {40, 100}}};
    for (const Case& c : cases)
    {
        const std::vector<znPoint> places = flightGet<znCArcLineTrailComponent>(c.mStart, c.mEnd);
        EXPECT_LE(distanceGet(places[50], c.mMiddle), 2.0);
        EXPECT_LE(distanceGet(places[places.size() - 2], c.mEnd), 6.0);
        for (std::size_t i = 1; i < places.size(); ++i)
            EXPECT_LE(distanceGet(places[i - 1], places[i]), 12.0) << "a jump at step " << i;
    }
}

TEST_F(znITrailComponentTest, circlesItsTargetThreeTimes)
{
    const znPoint target(120, 60);
    const std::vector<znPoint> places = flightGet<znCHookedLineTrailComponent>({-300, -200}, target);
    double turned = 0.0;
    s32 onRing = 0;
    for (std::size_t i = 1; i + 1 < places.size(); ++i)
    {
        if (std::abs(distanceGet(places[i], target) - 50.0) > 6.0 || onRing++ == 0)
            continue;
        const double before = std::atan2(places[i - 1].mY - target.mY, places[i - 1].mX - target.mX);
        const double now = std::atan2(places[i].mY - target.mY, places[i].mX - target.mX);
        turned += std::remainder(now - before, 2.0 * M_PI);
    }
    // Eleven quarters from the first knot of the ring to the last; the flight swings into the first of them.
    EXPECT_GT(std::abs(turned), 9.0 * M_PI / 2.0);
    EXPECT_LT(std::abs(turned), 11.5 * M_PI / 2.0);
}

TEST_F(znITrailComponentTest, endsOnTimeWithoutADistance)
{
    const znPoint here(30, -20);
    for (const std::vector<znPoint>& places :
         {flightGet<znCStraightLineTrailComponent>(here, here), flightGet<znCArcLineTrailComponent>(here, here)})
    {
        ASSERT_EQ(places.size(), 101u);
        EXPECT_LE(distanceGet(places[99], here), 1.0);
    }
    EXPECT_EQ(flightGet<znCHookedLineTrailComponent>(here, here).size(), 101u);
}

TEST_F(znITrailComponentTest, destroysItsEntityWhenAsked)
{
    auto* parent = new znCEntity("parent");
    auto* child = new znCEntity("child");
    parent->childAdd(child);
    auto* trail = child->componentAdd<znCStraightLineTrailComponent>();
    ASSERT_NE(trail, nullptr);
    trail->trailInitialise({0, 0}, {10, 0}, 30, true);
    parent->treeUpdate(20);
    znINode::flaggedNodesDestroy();
    EXPECT_NE(parent->childFind("child"), nullptr);
    parent->treeUpdate(20);
    znINode::flaggedNodesDestroy();
    EXPECT_EQ(parent->childFind("child"), nullptr);
    delete parent;
}

TEST_F(znITrailComponentTest, splinePassesThroughItsKnots)
{
    const std::vector<znPointF> knots = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    znCBezierSpline spline(knots, 3000);
    for (s32 i = 0; i <= 2; ++i)
    {
        const znPointF place = spline.positionGet(i * 1000);
        EXPECT_NEAR(place.mX, knots[static_cast<std::size_t>(i)].mX, 0.5) << i;
        EXPECT_NEAR(place.mY, knots[static_cast<std::size_t>(i)].mY, 0.5) << i;
        spline.positionGet(i * 1000 + 1); // the walk goes on to the next segment behind a knot
    }
    EXPECT_NEAR(spline.positionGet(2999).mX, 0.0f, 0.5);
    EXPECT_EQ(spline.positionGet(3000).mX, 0.0f);
    znCBezierSpline line({{0, 0}, {90, 30}}, 90);
    EXPECT_NEAR(line.positionGet(30).mX, 30.0f, 0.01);
    EXPECT_NEAR(line.positionGet(60).mY, 20.0f, 0.01);
}
