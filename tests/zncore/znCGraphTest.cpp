#include "zncore/znCGraph.h"
#include "tests/support/znCTestCore.h"
#include <climits>
#include <gtest/gtest.h>

TEST(znCGraph, Values)
{
    znCGraph<float> graph;
    graph.dataAdd(0, 1.0f);
    graph.dataAdd(100, 3.0f);
    graph.dataAdd(0, 10.0f); // a step: two values at one time
    graph.dataAdd(300, 4.0f);
    const std::pair<s32, float> CASES[] = {{-50, 1.0f}, {0, 1.0f},   {25, 1.5f},  {100, 3.0f},     {101, 9.98f},
                                           {250, 7.0f}, {400, 4.0f}, {401, 4.0f}, {INT_MAX, 4.0f}, {INT_MIN, 1.0f}};
    for (const auto& [time, value] : CASES)
        EXPECT_FLOAT_EQ(graph.valueGet(time), value) << time;
}

TEST(znCGraph, ColoursGoDownAndUp)
{
    znCGraph<znCColour> graph;
    graph.dataAdd(0, znCColour(1, 0, 0.5f, 1));
    graph.dataAdd(200, znCColour(0, 1, 0.5f, 0));
    const znCColour half = graph.valueGet(100);
    EXPECT_FLOAT_EQ(half.mR, 0.5f);
    EXPECT_FLOAT_EQ(half.mG, 0.5f);
    EXPECT_FLOAT_EQ(half.mB, 0.5f);
    EXPECT_FLOAT_EQ(half.mA, 0.5f);
}

TEST(znCGraph, MisuseIsHarmless)
{
    znCTestCore core;
    EXPECT_EQ(znCGraph<float>().valueGet(5), 0.0f);
    znCGraph<float> graph;
    graph.dataAdd(70, 2.0f);
    EXPECT_EQ(core.mPlatform.logCountGet("First value must have a duration of 0.\n"), 1);
    graph.dataAdd(10, 4.0f);
    EXPECT_FLOAT_EQ(graph.valueGet(5), 3.0f);
    graph.dataAdd(INT_MAX, 6.0f);
    graph.dataAdd(INT_MAX, 8.0f);
    EXPECT_EQ(graph.valueGet(INT_MAX), 8.0f);
}
