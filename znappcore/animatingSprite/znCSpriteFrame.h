#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCSPRITEFRAME_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCSPRITEFRAME_H

#include "znappcore/src/znCSprite.h"

// One frame of one animating sprite, ready to be drawn.
struct znCSpriteFrame
{
    znAffineMtx2d mLocalMatrix; // into the space of the animation
    znCSprite mSprite;
    bool mVisible = false; // false for a blank frame
};

#endif
