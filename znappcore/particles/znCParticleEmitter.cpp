#include "znappcore/particles/znCParticleEmitter.h"

#include "znappcore/particles/znCAnimationParticle.h"
#include "znappcore/particles/znCSpriteParticle.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znNCoreUtils.h"

#include <cmath>

namespace
{
constexpr float MS_PER_SECOND = 1000.0f;
constexpr float STEP_PARTICLES_MAX = 1.0e6f; // far above any pool, far below infinity
} // namespace

znCParticleEmitter::znCParticleEmitter(const znCParticleDataPtr& pData) : mData(pData)
{
    particleCacheCreate();
}

void znCParticleEmitter::particleCacheCreate()
{
    ZN_ASSERT(mParticles.empty(), "Expected the particle cache to be empty.\n");
    const bool sprite = mData->mBrush != nullptr;
    const bool picture = sprite || mData->mAnimation != nullptr;
    ZN_ASSERT(picture, "%s: Expecting either an 'imageFileName' or 'animFileName' for a particle.\n",
              mData->mFile.c_str());
    if (!picture)
        return;
    mParticles.resize(static_cast<std::size_t>(mData->mMaxParticles));
    for (std::unique_ptr<znIParticle>& particle : mParticles)
        if (sprite)
            particle = std::make_unique<znCSpriteParticle>(*mData);
        else
            particle = std::make_unique<znCAnimationParticle>(*mData);
}

void znCParticleEmitter::update(s32 pDeltaMs)
{
    step(pDeltaMs, static_cast<float>(pDeltaMs) / MS_PER_SECOND);
}

void znCParticleEmitter::prerunDo()
{
    constexpr s32 STEP_MS = 32;
    if (mData->mPrerunMs <= 0)
        return;
    for (s32 steps = (mData->mPrerunMs - 1) / STEP_MS + 1; steps > 0; --steps)
        step(STEP_MS, static_cast<float>(STEP_MS) / MS_PER_SECOND);
}

void znCParticleEmitter::step(s32 pDeltaMs, float pSeconds)
{
    for (const std::unique_ptr<znIParticle>& particle : mParticles)
        if (particle->particleUpdate(pDeltaMs, pSeconds))
            --mLiveCount;
    mAgeMs = znNCoreUtils::s32Saturate(static_cast<s64>(mAgeMs) + pDeltaMs);
    if (!isEmitting())
        return;
    mEmitAccumulator += std::fmin(mData->mEmitSpeed * static_cast<float>(pDeltaMs) / MS_PER_SECOND, STEP_PARTICLES_MAX);
    const float due = std::trunc(mEmitAccumulator);
    if (!(due > 0.0f))
        return;
    // What the pool has no room for is dropped, not kept for later.
    const float room = static_cast<float>(mParticles.size());
    mLiveCount += spawn(static_cast<s32>(std::fmin(due, room)));
    mEmitAccumulator -= due;
}

// How many it could spawn.
s32 znCParticleEmitter::spawn(s32 pCount)
{
    s32 spawned = 0;
    for (std::size_t i = 0; i < mParticles.size() && spawned < pCount; ++i)
    {
        if (mParticles[i]->activeGet())
            continue;
        mParticles[i]->particleInit(*mData, mPos);
        ++spawned;
    }
    return spawned;
}

void znCParticleEmitter::render()
{
    for (const std::unique_ptr<znIParticle>& particle : mParticles)
        particle->particleRender();
}

void znCParticleEmitter::matrixApply(const znAffineMtx2d& pMatrix)
{
    for (const std::unique_ptr<znIParticle>& particle : mParticles)
        particle->emitterMatrixSet(pMatrix);
}

bool znCParticleEmitter::isEmitting() const
{
    return isEndless() || mAgeMs < mData->mEmitterLifeMs;
}
