#ifndef ZNCORE_ZNRECT_H
#define ZNCORE_ZNRECT_H

#include "zncore/znPoint.h"
#include "zncore/znTypes.h"

// Edges in whole units, in the order left, right, top, bottom. Nothing keeps right beyond left or bottom beyond top:
// the intersection of two that don't meet has them the other way round.
class znRect
{
public:
    znRect() = default;
    znRect(s32 pLeft, s32 pRight, s32 pTop, s32 pBottom) : mLeft(pLeft), mRight(pRight), mTop(pTop), mBottom(pBottom) {}
    // Half of the size, by integer division, to each side of the centre. Edges beyond s32 are kept at its end.
    znRect(const znPoint& pCentre, s32 pWidth, s32 pHeight);
    virtual ~znRect() = default;

    znRect intersectionGet(const znRect& pOther) const;

    bool operator==(const znRect& pOther) const = default;

    s32 mLeft = 0;
    s32 mRight = 0;
    s32 mTop = 0;
    s32 mBottom = 0;
};

#endif
