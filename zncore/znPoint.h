#ifndef ZNCORE_ZNPOINT_H
#define ZNCORE_ZNPOINT_H

#include "zncore/znTypes.h"

// A position or a size in whole units. A default-constructed point holds no defined values.
class znPoint
{
public:
    znPoint() {}
    znPoint(s32 pX, s32 pY) : mX(pX), mY(pY) {}
    virtual ~znPoint() = default;

    bool operator==(const znPoint& pOther) const = default;

    s32 mX;
    s32 mY;
};

#endif
