#include "zncore/znRect.h"
#include "zncore/znNCoreUtils.h"
#include <algorithm>

using znNCoreUtils::s32Saturate;

znRect::znRect(const znPoint& pCentre, s32 pWidth, s32 pHeight)
    : mLeft(s32Saturate(static_cast<s64>(pCentre.mX) - pWidth / 2)),
      mRight(s32Saturate(static_cast<s64>(pCentre.mX) + pWidth / 2)),
      mTop(s32Saturate(static_cast<s64>(pCentre.mY) - pHeight / 2)),
      mBottom(s32Saturate(static_cast<s64>(pCentre.mY) + pHeight / 2))
{
}

znRect znRect::intersectionGet(const znRect& pOther) const
{
    return znRect(std::max(mLeft, pOther.mLeft), std::min(mRight, pOther.mRight), std::max(mTop, pOther.mTop),
                  std::min(mBottom, pOther.mBottom));
}
