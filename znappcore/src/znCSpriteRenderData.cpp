#include "znappcore/src/znCSpriteRenderData.h"

#include <algorithm>

namespace
{
u32 byteGet(float pComponent)
{
    // The order of the arguments makes a 0 of what isn't a number.
    return static_cast<u32>(std::min(1.0f, std::max(0.0f, pComponent)) * 255.0f);
}
} // namespace

void znCSpriteRenderData::uvsSet(float pU0, float pU1, float pV0, float pV1)
{
    mUvs[0] = {pU0, pV0};
    mUvs[1] = {pU0, pV1};
    mUvs[2] = {pU1, pV1};
    mUvs[3] = {pU1, pV0};
    znNRenderChanges::contentsMark();
}

void znCSpriteRenderData::colourSet(const znCColour& pColour)
{
    const u32 colour = colourPack(pColour);
    if (colour != mColour)
        znNRenderChanges::contentsMark();
    mColour = colour;
}

u32 znCSpriteRenderData::colourPack(const znCColour& pColour)
{
    return byteGet(pColour.mA) << 24 | byteGet(pColour.mB) << 16 | byteGet(pColour.mG) << 8 | byteGet(pColour.mR);
}
