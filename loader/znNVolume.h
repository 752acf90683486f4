#ifndef LOADER_ZNNVOLUME_H
#define LOADER_ZNNVOLUME_H

#include "zncore/znTypes.h"

#include <algorithm>

namespace znNVolume
{
// A volume of 0 to pFromMax on the scale of 0 to pToMax, to the nearest; what is not silent stays above 0.
constexpr s32 scale(s32 pVolume, s32 pFromMax, s32 pToMax)
{
    const s32 volume = std::clamp(pVolume, 0, pFromMax);
    return volume == 0 ? 0 : std::max(1, (volume * pToMax + pFromMax / 2) / pFromMax);
}
} // namespace znNVolume

#endif
