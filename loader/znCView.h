#ifndef LOADER_ZNCVIEW_H
#define LOADER_ZNCVIEW_H

#include "zncore/znTypes.h"

// Where the surface stands in a window: as large as it fits with its shape kept, in the middle, bars beside it.
struct znCView
{
    s32 mX = 0; // pixels of the window
    s32 mY = 0;
    s32 mWidth = 0;
    s32 mHeight = 0;

    static znCView fit(s32 pSurfaceWidth, s32 pSurfaceHeight, s32 pWindowWidth, s32 pWindowHeight);
    bool holds(s32 pX, s32 pY) const;
    // A position of the window in pixels of the surface; one on a bar becomes the nearest on the surface.
    void toSurface(s32 pSurfaceWidth, s32 pSurfaceHeight, s32& pX, s32& pY) const;
};

#endif
