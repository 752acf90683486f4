#ifndef ZNAPPCORE_PARTICLES_ZNCSPRITEPARTICLE_H
#define ZNAPPCORE_PARTICLES_ZNCSPRITEPARTICLE_H

#include "znappcore/particles/znIParticle.h"
#include "znappcore/src/znCSprite.h"

// A particle that shows a picture.
class znCSpriteParticle final : public znIParticle
{
public:
    // Keeps a pointer to the data's colour graph: the data must outlive the particle.
    explicit znCSpriteParticle(const znCParticleData& pData);

protected:
    void colourGraphUpdate() override;
    void matrixApply(const znAffineMtx2d& pMatrix) override { mSprite.matrixApply(pMatrix); }
    void updateDo(s32) override {}
    void renderDo() override { mSprite.render(); }

private:
    znCSprite mSprite;
};

#endif
