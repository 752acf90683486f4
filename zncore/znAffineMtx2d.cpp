#include "zncore/znAffineMtx2d.h"
#include "zncore/debug/znIDebug.h"

#include <cmath>

// The element's place in the class, null if there is none.
float znAffineMtx2d::*znAffineMtx2d::elementGet(s32 pRow, s32 pColumn) const
{
    static constexpr float znAffineMtx2d::*ELEMENTS[3][2] = {{&znAffineMtx2d::m00, &znAffineMtx2d::m10},
                                                             {&znAffineMtx2d::m01, &znAffineMtx2d::m11},
                                                             {&znAffineMtx2d::m02, &znAffineMtx2d::m12}};
    const bool rowExists = pRow >= 0 && pRow <= 1;
    const bool columnExists = pColumn >= 0 && pColumn <= 2;
    ZN_ASSERT(rowExists, "znAffineMtx2d only has 2 rows.\n");
    ZN_ASSERT(columnExists, "znAffineMtx2d only has 3 columns.\n");
    return rowExists && columnExists ? ELEMENTS[pColumn][pRow] : nullptr;
}

void znAffineMtx2d::set(s32 pRow, s32 pColumn, float pValue)
{
    if (float znAffineMtx2d::*element = elementGet(pRow, pColumn))
        this->*element = pValue;
}

float znAffineMtx2d::get(s32 pRow, s32 pColumn) const
{
    float znAffineMtx2d::*element = elementGet(pRow, pColumn);
    return element != nullptr ? this->*element : 0.0f;
}

bool znAffineMtx2d::inverseTransform(const float pIn[2], float pOut[2]) const
{
    const float determinant = m11 * m00 - m01 * m10;
    if (determinant == 0.0f)
    {
        pOut[0] = 0.0f;
        pOut[1] = 0.0f;
        return false;
    }
    const float u = (pIn[0] - m02) / determinant;
    const float v = (pIn[1] - m12) / determinant;
    pOut[0] = u * m11 - v * m01;
    pOut[1] = v * m00 - m10 * u;
    return true;
}
