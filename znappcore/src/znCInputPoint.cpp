#include "znappcore/src/znCInputPoint.h"

void znCInputPoint::stateSet(const znPoint& pPos, bool pDown)
{
    posSet(pPos);
    mDown = pDown;
}

void znCInputPoint::posSet(const znPoint& pPos)
{
    if (pPos.mX == mPos.mX && pPos.mY == mPos.mY)
        return;
    mMoved = true;
    mPos = pPos;
}

void znCInputPoint::commit()
{
    mWasDown = mDown;
    mMoved = false;
}
