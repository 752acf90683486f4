#ifndef ZNAPPCORE_SRC_ZNCRENDERLIST_H
#define ZNAPPCORE_SRC_ZNCRENDERLIST_H

#include "zncore/znTypes.h"

#include <vector>

class znCSprite;
class znINode;
class znISpriteRenderData;

// What a walk over a tree met that draws, in its order, so that the next frame can go along this list instead of the
// tree: sprites as runs of one material, and the nodes whose render() has to be called. Held by the node that the
// frame's treeRender() is called on; made anew once znNRenderChanges::structureGet() tells of another number.
class znCRenderList
{
public:
    // Before a walk; the number is the one that counts for this list.
    void clear(u64 pStructure);
    // Each hands on to the renderer or to render() as well.
    void spriteRender(znCSprite& pSprite);
    void nodeRender(znINode& pNode);

    bool isCurrent() const;
    // Draws all that is in the list. A node whose render() changes what is drawn is answered, and what comes behind it
    // hasn't been drawn yet; otherwise null.
    znINode* render() const;

private:
    // A node, or a run of sprites.
    struct Entry
    {
        znINode* mNode; // not owned
        std::size_t mFirst;
        s32 mCount;
    };

    std::vector<Entry> mEntries;
    std::vector<znISpriteRenderData*> mSprites; // not owned
    u64 mStructure = 0;
};

#endif
