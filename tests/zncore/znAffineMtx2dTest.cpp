#include "zncore/znAffineMtx2d.h"
#include "tests/support/znCTestCore.h"
#include <cmath>
#include <gtest/gtest.h>

namespace
{
const znAffineMtx2d A(2, 3, 5, 7, 11, 13);
const znAffineMtx2d B(17, 19, 23, 29, 31, 37);
} // namespace

TEST(znAffineMtx2d, ProductIsTheRightOneFirst)
{
    EXPECT_EQ(A * B, znAffineMtx2d(129, 184, 191, 272, 258, 365));
    znAffineMtx2d square = A;
    square *= square;
    EXPECT_EQ(square, A * A);

    const float in[2] = {3, -4};
    float direct[2];
    float stepwise[2];
    (A * B).transform(in, direct);
    B.transform(in, stepwise);
    A.transform(stepwise, stepwise);
    EXPECT_EQ(direct[0], stepwise[0]);
    EXPECT_EQ(direct[1], stepwise[1]);
}

TEST(znAffineMtx2d, TurnsTheWayOfTheCanvas)
{
    znAffineMtx2d matrix;
    matrix.fromPosScaleRotation(znPoint(100, -50), 2.0f, 3.0f, std::acos(-1.0f) / 2);
    EXPECT_NEAR(matrix.m10, -2.0f, 1e-6f);
    EXPECT_NEAR(matrix.m01, 3.0f, 1e-6f);
    float point[2] = {1, 0};
    matrix.transform(point, point);
    EXPECT_NEAR(point[0], 100.0f, 1e-5f);
    EXPECT_NEAR(point[1], -52.0f, 1e-5f);
}

TEST(znAffineMtx2d, Inverse)
{
    const float in[2] = {12.5f, -3.0f};
    float out[2];
    A.transform(in, out);
    EXPECT_TRUE(A.inverseTransform(out, out));
    EXPECT_NEAR(out[0], in[0], 1e-4f);
    EXPECT_NEAR(out[1], in[1], 1e-4f);
    EXPECT_FALSE(znAffineMtx2d(0, 0, 0, 1, 5, 5).inverseTransform(in, out));
    EXPECT_EQ(out[0], 0.0f);
    EXPECT_EQ(out[1], 0.0f);
}

TEST(znAffineMtx2d, ElementsByRowAndColumn)
{
    znCTestCore core;
    znAffineMtx2d matrix = A;
    const float ROWS[2][3] = {{2, 5, 11}, {3, 7, 13}};
    for (s32 row = 0; row < 2; ++row)
        for (s32 column = 0; column < 3; ++column)
            EXPECT_EQ(matrix.get(row, column), ROWS[row][column]);
    matrix.set(1, 2, 99);
    EXPECT_EQ(matrix.m12, 99.0f);
    EXPECT_EQ(core.mPlatform.logGet(), "");
    matrix.set(2, 0, 1);
    EXPECT_EQ(matrix.get(0, 3), 0.0f);
    EXPECT_EQ(matrix.get(-1, -1), 0.0f);
    EXPECT_EQ(core.mPlatform.logCountGet("znAffineMtx2d only has 2 rows.\n"), 2);
    EXPECT_EQ(core.mPlatform.logCountGet("znAffineMtx2d only has 3 columns.\n"), 2);
}
