#ifndef ZNAPPCORE_ZNNSAVEDTREE_H
#define ZNAPPCORE_ZNNSAVEDTREE_H

// The text that a tree of nodes saves, looked at without the tree. A tree that loads a text of another shape than its
// own would have nodes read what belongs to others (see znINode::myLoadStringGet); so a text that may come from an
// earlier or later state of the data is brought into the tree's shape first.

#include "zncore/znTypes.h"
#include <string>

namespace znNSavedTree
{
struct Fitted
{
    std::string mText;
    s32 mNewCount = 0;     // nodes that the saved text doesn't know; of a new subtree only its topmost counts
    bool mDamaged = false; // the saved text breaks off, or is no tree's
};

// pSaved in the shape of pFresh, which the tree has saved as it stands now: sections in pFresh's order, and for a node
// that pSaved doesn't know the one of pFresh, so that it loads what it is already. A node that has more fields than in
// pSaved gets the further ones from pFresh. Sections of nodes that pFresh doesn't have stand behind the others, for
// nodes that come up while the tree loads. Takes time in proportion to the texts, whatever their order.
Fitted fit(const std::string& pFresh, const std::string& pSaved);
} // namespace znNSavedTree

#endif
