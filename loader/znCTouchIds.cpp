#include "loader/znCTouchIds.h"

#include <algorithm>

s32 znCTouchIds::idTake(s64 pFinger)
{
    if (const s32 id = idFind(pFinger); id >= 0)
        return id;
    const auto free = std::find(mFingers.begin(), mFingers.end(), std::nullopt);
    if (free == mFingers.end())
        return -1;
    *free = pFinger;
    return static_cast<s32>(free - mFingers.begin());
}

s32 znCTouchIds::idFind(s64 pFinger) const
{
    const auto found = std::find(mFingers.begin(), mFingers.end(), std::optional(pFinger));
    return found == mFingers.end() ? -1 : static_cast<s32>(found - mFingers.begin());
}

s32 znCTouchIds::idRelease(s64 pFinger)
{
    const s32 id = idFind(pFinger);
    if (id >= 0)
        mFingers[static_cast<size_t>(id)].reset();
    return id;
}
