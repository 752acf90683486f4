#include "znappcore/znISpriteRenderData.h"

#include "znappcore/src/znCBrush.h"

#include <algorithm>

namespace
{
float partGet(s32 pTexel, s32 pTexels)
{
    return static_cast<float>(pTexel) / static_cast<float>(std::max(pTexels, 1));
}
} // namespace

void znISpriteRenderData::brushApply(const znCBrush& pBrush)
{
    if (const znITexture* texture = pBrush.textureGet().get())
    {
        const s32 width = texture->gpuWidthGet();
        const s32 height = texture->gpuHeightGet();
        uvsSet(partGet(pBrush.xGet(), width), partGet(pBrush.xGet() + pBrush.widthGet(), width),
               partGet(pBrush.yGet(), height), partGet(pBrush.yGet() + pBrush.heightGet(), height));
    }
    znCMaterial material;
    material.brushApply(pBrush);
    materialSet(material);
}

void znISpriteRenderData::materialSet(const znCMaterial& pMaterial)
{
    if (pMaterial.materialDiffers(mMaterial))
        znNRenderChanges::structureMark();
    mMaterial = pMaterial;
}

void znISpriteRenderData::alphaModeSet(u32 pMode)
{
    znCMaterial material = mMaterial;
    material.alphaModeSet(pMode);
    materialSet(material);
}
