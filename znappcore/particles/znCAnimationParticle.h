#ifndef ZNAPPCORE_PARTICLES_ZNCANIMATIONPARTICLE_H
#define ZNAPPCORE_PARTICLES_ZNCANIMATIONPARTICLE_H

#include "znappcore/animatingSprite/znCAnimatingSprite.h"
#include "znappcore/particles/znIParticle.h"

// A particle that plays an animation.
class znCAnimationParticle final : public znIParticle
{
public:
    explicit znCAnimationParticle(const znCParticleData& pData);

protected:
    // A graph is logged ("Colours on animation particles are not supported currently.\n"); data from files has none.
    void colourGraphUpdate() override;
    void matrixApply(const znAffineMtx2d& pMatrix) override { mAnimation->matrixApply(pMatrix); }
    void updateDo(s32 pDeltaMs) override { mAnimation->update(pDeltaMs); }
    void renderDo() override { mAnimation->render(); }

private:
    std::unique_ptr<znCAnimatingSprite> mAnimation;
};

#endif
