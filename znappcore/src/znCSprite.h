#ifndef ZNAPPCORE_SRC_ZNCSPRITE_H
#define ZNAPPCORE_SRC_ZNCSPRITE_H

#include "znappcore/src/znCBrush.h"
#include "znappcore/src/znCSpriteRenderData.h"
#include "zncore/znAffineMtx2d.h"

// A textured quad centred on the origin of its matrix. Held by value by whatever shows one; it must not move in memory
// between render() and the end of the frame. Until a brush is set it has no size, shows nothing and can't be hit.
class znCSprite
{
public:
    znCSprite() = default;
    virtual ~znCSprite() = default;
    znCSprite(const znCSprite&) = default;
    znCSprite& operator=(const znCSprite&) = default;

    // Takes picture, material and size of the brush. Null takes the picture and the size away.
    void brushSet(const znCBrushPtr& pBrush);
    const znCBrushPtr& brushGet() const { return mBrush; }

    // Size in canvas units before the matrix; the picture stretches. Half of it is taken in integers, so an odd size
    // loses a pixel.
    void widthSet(s32 pWidth);
    void heightSet(s32 pHeight);
    s32 widthGet() const { return mWidth; }
    s32 heightGet() const { return mHeight; }
    void sizeApply();

    // The matrix from the sprite's space to device pixels.
    void matrixApply(const znAffineMtx2d& pMatrix);
    void colourSet(const znCColour& pColour);
    void alphaModeSet(u32 pMode);
    void render();
    // What render() hands to the renderer; null if that is nothing.
    znISpriteRenderData* renderDataGet() { return mBrush != nullptr ? &mRenderData : nullptr; }

    // pLocal counts from the centre. The left and top edges belong to the sprite, the right and bottom ones don't. A
    // brush with a hit map decides by pixel; without one the rectangle decides, and pExpectHitMap logs "Attempting a
    // hitmap test on a SpriteComponent that does not have a hitmap.\n".
    bool hitTest(const znPoint& pLocal, bool pExpectHitMap) const;

private:
    void cornersTransform();

    // What drawing a sprite looks at comes first. The corners in device pixels stand in the render data alone.
    znCBrushPtr mBrush;
    znCSpriteRenderData mRenderData;
    znPointF mLocalCorners[4] = {};
    znAffineMtx2d mMatrix;
    s32 mWidth = 0;
    s32 mHeight = 0;
};

// In the header: a moving tree spends most of its time here.
inline void znCSprite::matrixApply(const znAffineMtx2d& pMatrix)
{
    mMatrix = pMatrix;
    cornersTransform();
}

inline void znCSprite::cornersTransform()
{
    const znPointF half = mLocalCorners[2]; // the other corners are its mirror images
    const float alongX = mMatrix.m00 * half.mX;
    const float alongY = mMatrix.m10 * half.mX;
    const float acrossX = mMatrix.m01 * half.mY;
    const float acrossY = mMatrix.m11 * half.mY;
    const float x = mMatrix.m02;
    const float y = mMatrix.m12;
    znPointF* corners = mRenderData.verticesChange();
    corners[0] = {x - (alongX + acrossX), y - (alongY + acrossY)};
    corners[1] = {x - (alongX - acrossX), y - (alongY - acrossY)};
    corners[2] = {x + (alongX + acrossX), y + (alongY + acrossY)};
    corners[3] = {x + (alongX - acrossX), y + (alongY - acrossY)};
}

#endif
