#ifndef ZNAPPCORE_PARTICLES_ZNIPARTICLE_H
#define ZNAPPCORE_PARTICLES_ZNIPARTICLE_H

#include "znappcore/particles/znCParticleData.h"
#include "zncore/znAffineMtx2d.h"
#include "zncore/znPoint.h"
#include "zncore/znPointF.h"

// One particle of an emitter's pool, inactive until it is spawned. Owned by the emitter.
class znIParticle
{
public:
    virtual ~znIParticle() = default;

protected:
    // Sets the colour of its age, where the data has a graph.
    virtual void colourGraphUpdate() = 0;
    virtual void matrixApply(const znAffineMtx2d& pMatrix) = 0;
    virtual void updateDo(s32 pDeltaMs) = 0;
    virtual void renderDo() = 0;

public:
    bool activeGet() const { return mActive; }
    // Spawns the particle with values drawn from the data. pEmitterPos is where the emitter stands in the particle's
    // space; a linked particle's space is the emitter's own.
    void particleInit(const znCParticleData& pData, const znPoint& pEmitterPos);
    // pSeconds is the same step. True if the particle died of age.
    bool particleUpdate(s32 pDeltaMs, float pSeconds);
    void particleRender();
    // The matrix from the particle's space to device pixels.
    void emitterMatrixSet(const znAffineMtx2d& pMatrix);

    znIParticle(const znIParticle&) = delete;
    znIParticle& operator=(const znIParticle&) = delete;

protected:
    // The graph belongs to the emitter's data; null without one.
    explicit znIParticle(const znCGraph<znCColour>* pColourGraph) : mColourGraph(pColourGraph) {}

    bool mActive = false;
    s32 mLifeMs = 0; // 0: for ever
    s32 mAgeMs = 0;
    znAffineMtx2d mEmitterMatrix;
    znAffineMtx2d mLocalMatrix;
    bool mDirty = false;        // the matrix is out of date
    znPointF mLastPos = {0, 0}; // what the matrix was built for
    znPointF mPos = {0, 0};
    znPointF mVelocity = {0, 0};      // per second
    znPointF mVelocityDelta = {0, 0}; // per second per second
    float mScale = 1.0f;
    float mScaleDelta = 0.0f; // per second
    float mAngle = 0.0f;
    float mAngleDelta = 0.0f; // per second
    const znCGraph<znCColour>* mColourGraph;

private:
    void matrixRebuild();
};

#endif
