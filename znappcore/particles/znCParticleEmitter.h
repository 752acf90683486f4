#ifndef ZNAPPCORE_PARTICLES_ZNCPARTICLEEMITTER_H
#define ZNAPPCORE_PARTICLES_ZNCPARTICLEEMITTER_H

#include "znappcore/particles/znIParticle.h"

#include <memory>
#include <vector>

// A fixed pool of particles, spawned at a rate, moved and drawn. Takes nothing from the heap once it is made.
class znCParticleEmitter
{
public:
    // Data without a picture or animation logs the file's name and "Expecting either an 'imageFileName' or
    // 'animFileName' for a particle.\n"; nothing is ever spawned then.
    explicit znCParticleEmitter(const znCParticleDataPtr& pData);
    znCParticleEmitter(const znCParticleEmitter&) = delete;
    znCParticleEmitter& operator=(const znCParticleEmitter&) = delete;

    void update(s32 pDeltaMs);
    void render();
    // The matrix from the particles' space to device pixels: the emitter's own for linked particles, that of its parent
    // for others.
    void matrixApply(const znAffineMtx2d& pMatrix);
    // Where particles that aren't linked are spawned, in their space.
    void posSet(const znPoint& pPos) { mPos = pPos; }
    // Lets the time of "prerun" pass at once, in steps of 32 ms.
    void prerunDo();

    bool isEmitting() const;
    // Whether it is never going to stop emitting.
    bool isEndless() const { return mData->mEmitterLifeMs == 0; }
    // Active particles.
    s32 liveCountGet() const { return mLiveCount; }
    bool isLinked() const { return mData->mLinkToEmitter; }

private:
    void particleCacheCreate();
    void step(s32 pDeltaMs, float pSeconds);
    s32 spawn(s32 pCount);

    znCParticleDataPtr mData;
    std::vector<std::unique_ptr<znIParticle>> mParticles; // the pool
    znPoint mPos = znPoint(0, 0);
    float mEmitAccumulator = 0.0f; // particles that are due
    s32 mAgeMs = 0;
    s32 mLiveCount = 0;
};

#endif
