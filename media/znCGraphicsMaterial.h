#ifndef MEDIA_ZNCGRAPHICSMATERIAL_H
#define MEDIA_ZNCGRAPHICSMATERIAL_H

// How a run of quads is painted. A value: copied freely, owns nothing.

#include "zncore/znTypes.h"

class znCGraphicsTexture;

struct znCGraphicsMaterial
{
    const znCGraphicsTexture* mTexture = nullptr; // null: plain colour; not owned, lives until the frame is flushed
    u32 mBlend = 4;                               // 0 none, 2 add, 3 subtract, 4 alpha
    u32 mColour = 0xFFFFFFFFu; // (a << 24) | (b << 16) | (g << 8) | r; of all vertices without a stream
};

#endif
