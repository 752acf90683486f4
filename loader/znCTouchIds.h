#ifndef LOADER_ZNCTOUCHIDS_H
#define LOADER_ZNCTOUCHIDS_H

#include "zncore/znTypes.h"

#include <array>
#include <optional>

// Small numbers for the fingers that are down: each gets the lowest one that is free.
class znCTouchIds
{
public:
    static constexpr s32 COUNT = 10;

    // -1 when no number is free, and for find and release when that finger isn't down.
    s32 idTake(s64 pFinger);
    s32 idFind(s64 pFinger) const;
    s32 idRelease(s64 pFinger);

private:
    std::array<std::optional<s64>, COUNT> mFingers;
};

#endif
