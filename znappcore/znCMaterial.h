#ifndef ZNAPPCORE_ZNCMATERIAL_H
#define ZNAPPCORE_ZNCMATERIAL_H

#include "zncore/znTypes.h"

class znCBrush;
class znITexture;

// What decides whether two sprites can share a draw call. A value.
class znCMaterial
{
public:
    // Alpha modes, as particle files and the drawing table number them.
    static constexpr u32 BLEND_NONE = 0;
    static constexpr u32 BLEND_ADD = 2;
    static constexpr u32 BLEND_SUBTRACT = 3;
    static constexpr u32 BLEND_ALPHA = 4;

    // Takes the brush's texture, with blending if that has an alpha channel.
    void brushApply(const znCBrush& pBrush);

    bool materialDiffers(const znCMaterial& pOther) const
    {
        return mTexture != pOther.mTexture || mAlphaMode != pOther.mAlphaMode;
    }

    void alphaModeSet(u32 pMode) { mAlphaMode = pMode; }
    u32 alphaModeGet() const { return mAlphaMode; }
    // Null: plain colour.
    znITexture* textureGet() const { return mTexture; }

private:
    znITexture* mTexture = nullptr; // owned by the brush that was applied
    u32 mAlphaMode = BLEND_ALPHA;
};

#endif
