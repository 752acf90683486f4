#ifndef ZNHOGCORE_COMPONENTS_ZNNSPOTTHEDIFF_H
#define ZNHOGCORE_COMPONENTS_ZNNSPOTTHEDIFF_H

// What the scene and its panel ask about the pieces of a picture with differences to find.

#include "znappcore/src/znCEntity.h"
#include "znappcore/znCUniqueId.h"

namespace znNSpotTheDiff
{
constexpr znCUniqueId PIECE_TYPE{"znCSpotTheDiffMinigameComponent"};
constexpr s32 PIECES_PER_DIFFERENCE = 2; // one in either picture

// At or below the node.
inline s32 pieceCount(const znINode& pNode)
{
    const auto* entity = dynamic_cast<const znCEntity*>(&pNode);
    s32 count = entity != nullptr && entity->componentGet(PIECE_TYPE) != nullptr ? 1 : 0;
    for (const znINode* child : pNode.childrenGet())
        count += pieceCount(*child);
    return count;
}
} // namespace znNSpotTheDiff

#endif
