#include "znappcore/znCMaterial.h"

#include "znappcore/src/znCBrush.h"

void znCMaterial::brushApply(const znCBrush& pBrush)
{
    mTexture = pBrush.textureGet().get();
    mAlphaMode = mTexture != nullptr && mTexture->hasAlpha() ? BLEND_ALPHA : BLEND_NONE;
}
