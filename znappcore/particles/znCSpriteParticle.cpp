#include "znappcore/particles/znCSpriteParticle.h"

znCSpriteParticle::znCSpriteParticle(const znCParticleData& pData) : znIParticle(pData.mColourGraph.get())
{
    mSprite.brushSet(pData.mBrush);
    mSprite.alphaModeSet(pData.mAlphaMode);
    mSprite.colourSet(pData.mColour);
}

void znCSpriteParticle::colourGraphUpdate()
{
    if (mColourGraph != nullptr)
        mSprite.colourSet(mColourGraph->valueGet(mAgeMs));
}
