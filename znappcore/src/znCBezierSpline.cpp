#include "znappcore/src/znCBezierSpline.h"

#include <cmath>

namespace
{
constexpr float LENGTH_LEAST = 1e-3f; // pixels; a path shorter than this stands still

znPointF mix(const znPointF& pFirst, float pFirstShare, const znPointF& pSecond, float pSecondShare)
{
    return {pFirst.mX * pFirstShare + pSecond.mX * pSecondShare, pFirst.mY * pFirstShare + pSecond.mY * pSecondShare};
}

float distanceGet(const znPointF& pFrom, const znPointF& pTo)
{
    return std::hypot(pTo.mX - pFrom.mX, pTo.mY - pFrom.mY);
}

// The right side of the tridiagonal system whose solution are the first control points.
std::vector<znPointF> rightSideGet(const std::vector<znPointF>& pKnots)
{
    const std::size_t segments = pKnots.size() - 1;
    std::vector<znPointF> right(segments);
    right[0] = mix(pKnots[0], 1.0f, pKnots[1], 2.0f);
    for (std::size_t i = 1; i + 1 < segments; ++i)
        right[i] = mix(pKnots[i], 4.0f, pKnots[i + 1], 2.0f);
    right[segments - 1] = mix(pKnots[segments - 1], 4.0f, pKnots[segments], 0.5f);
    return right;
}

// Solves it by elimination; the diagonal is 2, 4, ..., 4, 3.5 and its neighbours are 1.
std::vector<znPointF> solve(const std::vector<znPointF>& pRight)
{
    const std::size_t count = pRight.size();
    std::vector<znPointF> solution(count);
    std::vector<float> upper(count, 0.0f);
    float diagonal = 2.0f;
    solution[0] = mix(pRight[0], 1.0f / diagonal, pRight[0], 0.0f);
    for (std::size_t i = 1; i < count; ++i)
    {
        upper[i] = 1.0f / diagonal;
        diagonal = (i + 1 < count ? 4.0f : 3.5f) - upper[i];
        solution[i] = mix(pRight[i], 1.0f / diagonal, solution[i - 1], -1.0f / diagonal);
    }
    for (std::size_t i = 1; i < count; ++i)
        solution[count - i - 1] = mix(solution[count - i - 1], 1.0f, solution[count - i], -upper[count - i]);
    return solution;
}
} // namespace

znCBezierSpline::znCBezierSpline(const std::vector<znPointF>& pKnots, s32 pDurationMs)
    : mKnots(pKnots), mDurationMs(pDurationMs)
{
    if (mKnots.size() < 2)
        mKnots.assign(2, znPointF{0.0f, 0.0f});
    fractionsCalculate();
    controlPointsCalculate();
}

void znCBezierSpline::fractionsCalculate()
{
    const std::size_t segments = mKnots.size() - 1;
    for (std::size_t i = 0; i < segments; ++i)
        mTotalLength += distanceGet(mKnots[i], mKnots[i + 1]);
    for (std::size_t i = 0; i < segments; ++i)
        mSegmentFractions.push_back(mTotalLength < LENGTH_LEAST ? 1.0f / static_cast<float>(segments)
                                                                : distanceGet(mKnots[i], mKnots[i + 1]) / mTotalLength);
}

void znCBezierSpline::controlPointsCalculate()
{
    const std::size_t segments = mKnots.size() - 1;
    if (segments == 1)
    {
        mControl1 = {mix(mKnots[0], 2.0f / 3.0f, mKnots[1], 1.0f / 3.0f)};
        mControl2 = {mix(mControl1[0], 2.0f, mKnots[0], -1.0f)};
        return;
    }
    mControl1 = solve(rightSideGet(mKnots));
    for (std::size_t i = 0; i + 1 < segments; ++i)
        mControl2.push_back(mix(mKnots[i + 1], 2.0f, mControl1[i + 1], -1.0f));
    mControl2.push_back(mix(mKnots[segments], 0.5f, mControl1[segments - 1], 0.5f));
}

znPointF znCBezierSpline::positionGet(s32 pTimeMs)
{
    if (pTimeMs >= mDurationMs)
        return {0.0f, 0.0f};
    const auto current = static_cast<std::size_t>(mCurrentSegment);
    float u = static_cast<float>(pTimeMs) / static_cast<float>(mDurationMs);
    for (std::size_t i = 0; i < current; ++i)
        u -= mSegmentFractions[i];
    const float fraction = mSegmentFractions[current];
    const float v = fraction > 0.0f ? u / fraction : 1.0f;
    const float w = 1.0f - v;
    const znPointF from = mix(mKnots[current], w * w * w, mControl1[current], 3.0f * w * w * v);
    const znPointF to = mix(mControl2[current], 3.0f * w * v * v, mKnots[current + 1], v * v * v);
    if (u > fraction && current + 1 < mSegmentFractions.size())
        ++mCurrentSegment;
    return mix(from, 1.0f, to, 1.0f);
}
