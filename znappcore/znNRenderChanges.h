#ifndef ZNAPPCORE_ZNNRENDERCHANGES_H
#define ZNAPPCORE_ZNNRENDERCHANGES_H

#include "zncore/znTypes.h"

// Counts what changes in all that is drawn, so that a frame like the one before needs no gathering.
namespace znNRenderChanges
{
inline u64 sContents = 0;
inline u64 sStructure = 0;

// Contents: every operation on render data of sprites and texts that alters what they hand over marks one, their making
// and copying included. While the number stays, what was gathered of the same render data in the same order can be
// drawn again as it is.
inline void contentsMark()
{
    ++sContents;
}

inline u64 contentsGet()
{
    return sContents;
}

// Structure: which nodes of a tree are drawn, in which order, and the material of each sprite. While the number stays,
// a walk over the tree meets the same.
inline void structureMark()
{
    ++sContents;
    ++sStructure;
}

inline u64 structureGet()
{
    return sStructure;
}

// A member that marks the making and the copying of what holds it.
struct Marker
{
    Marker() { structureMark(); }
    Marker(const Marker&) { structureMark(); }
    Marker& operator=(const Marker&)
    {
        structureMark();
        return *this;
    }
};
} // namespace znNRenderChanges

#endif
