#ifndef ZNAPPCORE_SRC_ZNCBEZIERSPLINE_H
#define ZNAPPCORE_SRC_ZNCBEZIERSPLINE_H

#include "zncore/znPointF.h"
#include "zncore/znTypes.h"

#include <vector>

// A smooth curve through given points, walked by time: each segment takes the part of the duration that its straight
// length has of all straight lengths. The control points are those of the natural cubic spline, written as Bezier
// curves.
class znCBezierSpline
{
public:
    // At least two knots; fewer give a spline that stays at (0, 0). pDurationMs above 0.
    znCBezierSpline(const std::vector<znPointF>& pKnots, s32 pDurationMs);

    // The place at a time; (0, 0) at or past the duration. Times must not run backwards from call to call. The call
    // that crosses a knot still follows the segment before it.
    znPointF positionGet(s32 pTimeMs);

private:
    void fractionsCalculate();
    void controlPointsCalculate();

    std::vector<znPointF> mKnots;
    std::vector<znPointF> mControl1; // one a segment, as the rest below
    std::vector<znPointF> mControl2;
    s32 mCurrentSegment = 0;
    float mTotalLength = 0.0f;
    std::vector<float> mSegmentFractions; // 0 to 1, together 1
    s32 mDurationMs;
};

#endif
