#ifndef TOOLS_AUTHOR_ZNNPAGELAYOUT_H
#define TOOLS_AUTHOR_ZNNPAGELAYOUT_H

// Where rectangles stand on pages, so that as little as possible of a page stays empty.

#include "zncore/znTypes.h"

#include <vector>

namespace znNPageLayout
{
struct Rectangle
{
    s32 mWidth;
    s32 mHeight;
    s32 mX = 0;
    s32 mY = 0;
};

struct Page
{
    s32 mWidth = 0; // even, at most the limit; so is the height
    s32 mHeight = 0;
    std::vector<Rectangle> mRectangles;
};

// All in the order that they are given in, so that neighbours stand on one page. Each must fit into the limit.
std::vector<Page> pagesMake(const std::vector<Rectangle>& pRectangles, s32 pSideMax);
} // namespace znNPageLayout

#endif
