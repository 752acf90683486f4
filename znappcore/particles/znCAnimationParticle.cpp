#include "znappcore/particles/znCAnimationParticle.h"

#include "zncore/debug/znIDebug.h"

znCAnimationParticle::znCAnimationParticle(const znCParticleData& pData)
    : znIParticle(pData.mColourGraph.get()), mAnimation(std::make_unique<znCAnimatingSprite>())
{
    mAnimation->dataSet(pData.mAnimation);
}

void znCAnimationParticle::colourGraphUpdate()
{
    ZN_ASSERT(mColourGraph == nullptr, "Colours on animation particles are not supported currently.\n");
}
