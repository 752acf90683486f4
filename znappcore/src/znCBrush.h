#ifndef ZNAPPCORE_SRC_ZNCBRUSH_H
#define ZNAPPCORE_SRC_ZNCBRUSH_H

#include "znappcore/znITexture.h"
#include "zncore/znPoint.h"

#include <boost/shared_ptr.hpp>
#include <string>

class znCBrush;

// The last holder frees the brush.
using znCBrushPtr = boost::shared_ptr<znCBrush>;

// A rectangle of a texture. Many brushes share one texture. Another brush may stand in for it in all questions of hits,
// where the shape to be hit isn't the picture's.
class znCBrush
{
public:
    // The rectangle is in pixels of the texture. An odd width or height logs "%s width or height is not a multiple of 2
    // (%d,%d).\n" with the name, which is used for nothing else.
    void init(const std::string& pName, const znITexturePtr& pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight);
    // Null takes it away again. A brush that leads back to this one is refused with a log line.
    void hitBrushSet(const znCBrushPtr& pBrush);

    const znITexturePtr& textureGet() const { return mTexture; }
    s32 xGet() const { return mX; }
    s32 yGet() const { return mY; }
    s32 widthGet() const { return mWidth; }
    s32 heightGet() const { return mHeight; }

    // Size of the hit brush, or of this one without it.
    s32 hitWidthGet() const;
    s32 hitHeightGet() const;
    // Of the texture of the last brush along the hit brushes.
    bool hasHitMap() const;
    bool hasAlpha() const;
    // pLocal in pixels from the top left corner of the hit brush, or of this one without it.
    bool hitTest(const znPoint& pLocal) const;

private:
    const znCBrush& hitBrushLastGet() const;

    znITexturePtr mTexture;
    s32 mX = 0;
    s32 mY = 0;
    s32 mWidth = 0;
    s32 mHeight = 0;
    znCBrushPtr mHitBrush;
};

#endif
