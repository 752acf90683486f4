#ifndef ZNCORE_ZNAFFINEMTX2D_H
#define ZNCORE_ZNAFFINEMTX2D_H

// A 2D affine transform: two rows, three columns, the last column being the translation. Applied to column vectors, so
// that A * B is B first, then A. y points downwards and angles turn the way that fromPosScaleRotation says.

#include "zncore/znPoint.h"
#include "zncore/znTypes.h"

#include <cmath>

class znAffineMtx2d
{
public:
    znAffineMtx2d() = default; // the identity
    znAffineMtx2d(float p00, float p10, float p01, float p11, float p02, float p12)
        : m00(p00), m10(p10), m01(p01), m11(p11), m02(p02), m12(p12)
    {
    }
    virtual ~znAffineMtx2d() = default;

    // Beyond row 1 logs "znAffineMtx2d only has 2 rows.\n", beyond column 2 "znAffineMtx2d only has 3 columns.\n"; then
    // set changes nothing and get answers 0.
    void set(s32 pRow, s32 pColumn, float pValue);
    float get(s32 pRow, s32 pColumn) const;

    // Makes this the matrix that scales, turns and then moves:
    // m00 = sx cos r, m10 = -(sx sin r), m01 = sy sin r, m11 = sy cos r.
    void fromPosScaleRotation(const znPoint& pPosition, float pScaleX, float pScaleY, float pRadians)
    {
        const float sine = std::sin(pRadians); // side by side, so that the compiler takes both in one step
        const float cosine = std::cos(pRadians);
        *this = {pScaleX * cosine,
                 -(pScaleX * sine),
                 pScaleY * sine,
                 pScaleY * cosine,
                 static_cast<float>(pPosition.mX),
                 static_cast<float>(pPosition.mY)};
    }

    // Both may be the same array.
    void transform(const float pIn[2], float pOut[2]) const
    {
        const float x = pIn[0];
        const float y = pIn[1];
        pOut[0] = m00 * x + m01 * y + m02;
        pOut[1] = m10 * x + m11 * y + m12;
    }

    // False, and (0, 0), if the matrix maps the plane on a line or a point.
    bool inverseTransform(const float pIn[2], float pOut[2]) const;

    znAffineMtx2d& operator*=(const znAffineMtx2d& pOther)
    {
        *this = *this * pOther;
        return *this;
    }
    // In the header, as is fromPosScaleRotation: every node of the tree has its matrix made this way each time it
    // moves.
    znAffineMtx2d operator*(const znAffineMtx2d& pOther) const
    {
        return {m01 * pOther.m10 + m00 * pOther.m00,       m11 * pOther.m10 + m10 * pOther.m00,
                m00 * pOther.m01 + m01 * pOther.m11,       m10 * pOther.m01 + m11 * pOther.m11,
                m01 * pOther.m12 + m00 * pOther.m02 + m02, m11 * pOther.m12 + m10 * pOther.m02 + m12};
    }

    bool operator==(const znAffineMtx2d& pOther) const = default;

    // Column after column.
    float m00 = 1.0f;
    float m10 = 0.0f;
    float m01 = 0.0f;
    float m11 = 1.0f;
    float m02 = 0.0f;
    float m12 = 0.0f;

private:
    float znAffineMtx2d::*elementGet(s32 pRow, s32 pColumn) const;
};

#endif
