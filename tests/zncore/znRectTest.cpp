#include "zncore/znRect.h"
#include <climits>
#include <gtest/gtest.h>

TEST(znRect, AroundACentre)
{
    EXPECT_EQ(znRect(znPoint(10, -10), 5, 7), znRect(8, 12, -13, -7));
    EXPECT_EQ(znRect(znPoint(INT_MAX, INT_MIN), 10, 10), znRect(INT_MAX - 5, INT_MAX, INT_MIN, INT_MIN + 5));
}

TEST(znRect, IntersectionMayBeEmpty)
{
    EXPECT_EQ(znRect(0, 10, 0, 10).intersectionGet(znRect(5, 20, -5, 3)), znRect(5, 10, 0, 3));
    EXPECT_EQ(znRect(0, 10, 0, 10).intersectionGet(znRect(20, 30, 0, 10)), znRect(20, 10, 0, 10));
}
