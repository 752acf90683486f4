#ifndef ZNCORE_ZNNVECTORSHUFFLE_H
#define ZNCORE_ZNNVECTORSHUFFLE_H

#include "zncore/znNCoreUtils.h"

#include <utility>
#include <vector>

namespace znNCoreUtils
{
// Into an order by chance, from the program's one random generator: size - 1 draws.
template <class T>
void vectorShuffle(std::vector<T>& pVector)
{
    for (std::size_t i = 1; i < pVector.size(); ++i)
        std::swap(pVector[i], pVector[randomGet(static_cast<uint32>(i) + 1)]);
}
} // namespace znNCoreUtils

#endif
