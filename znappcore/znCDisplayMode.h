#ifndef ZNAPPCORE_ZNCDISPLAYMODE_H
#define ZNAPPCORE_ZNCDISPLAYMODE_H

#include "zncore/znPoint.h"
#include "zncore/znTypes.h"

// A size of the screen or of the canvas, with the depth of its pixels. A value.
class znCDisplayMode
{
public:
    znCDisplayMode();
    znCDisplayMode(s32 pWidth, s32 pHeight, s32 pBpp);
    virtual ~znCDisplayMode() = default;
    znCDisplayMode(const znCDisplayMode&) = default;
    znCDisplayMode& operator=(const znCDisplayMode&) = default;

    const znPoint& sizeGet() const { return mSize; }
    s32 widthGet() const { return mSize.mX; }
    s32 heightGet() const { return mSize.mY; }
    // Bits per pixel; 0 where the platform doesn't tell.
    s32 bppGet() const { return mBpp; }
    void sizeSet(s32 pW, s32 pH);

    // Makes the width four thirds of the height.
    void widthFromHeightSet();

    // Whether width to height is more than 0.1 away from 4:3, to either side. A width without a height logs
    // "Display mode has not been configured correctly.\n" and counts as wide.
    bool isWideScreenGet() const;

private:
    znPoint mSize;
    s32 mBpp = 0;
};

#endif
