#include "znappcore/particles/znIParticle.h"

#include "zncore/znNCoreUtils.h"

#include <algorithm>
#include <cmath>

void znIParticle::particleInit(const znCParticleData& pData, const znPoint& pEmitterPos)
{
    mPos = pData.mEmitPos.drawGet();
    if (!pData.mLinkToEmitter)
    {
        mPos.mX += static_cast<float>(pEmitterPos.mX);
        mPos.mY += static_cast<float>(pEmitterPos.mY);
    }
    mVelocity = pData.mVelocity.drawGet();
    mVelocityDelta = pData.mVelocityDelta.drawGet();
    mScale = pData.mScale.drawGet();
    mScaleDelta = pData.mScaleDelta.drawGet();
    mAngle = pData.mAngle.drawGet();
    mAngleDelta = pData.mAngleDelta.drawGet();
    mDirty = true;
    mLifeMs = pData.mParticleLifeMs;
    mAgeMs = 0;
    colourGraphUpdate();
    mActive = true;
}

bool znIParticle::particleUpdate(s32 pDeltaMs, float pSeconds)
{
    if (!mActive)
        return false;
    mAgeMs = znNCoreUtils::s32Saturate(static_cast<s64>(mAgeMs) + pDeltaMs);
    if (mLifeMs > 0 && mAgeMs >= mLifeMs)
    {
        mActive = false;
        return true;
    }
    mPos.mX += pSeconds * mVelocity.mX;
    mPos.mY += pSeconds * mVelocity.mY;
    mDirty = mDirty || mPos.mX != mLastPos.mX || mPos.mY != mLastPos.mY;
    mVelocity.mX += pSeconds * mVelocityDelta.mX;
    mVelocity.mY += pSeconds * mVelocityDelta.mY;
    if (mScaleDelta != 0.0f)
    {
        mScale = std::max(mScale + pSeconds * mScaleDelta, 0.0f);
        mDirty = true;
    }
    if (mAngleDelta != 0.0f)
    {
        mAngle += pSeconds * mAngleDelta;
        mDirty = true;
    }
    colourGraphUpdate();
    updateDo(pDeltaMs);
    return false;
}

void znIParticle::particleRender()
{
    if (!mActive)
        return;
    if (mDirty)
        matrixRebuild();
    renderDo();
}

void znIParticle::matrixRebuild()
{
    mLastPos = mPos;
    const float c = mScale * std::cos(mAngle);
    const float s = mScale * std::sin(mAngle);
    mLocalMatrix = znAffineMtx2d(c, -s, s, c, mPos.mX, mPos.mY);
    matrixApply(mEmitterMatrix * mLocalMatrix);
    mDirty = false;
}

void znIParticle::emitterMatrixSet(const znAffineMtx2d& pMatrix)
{
    mEmitterMatrix = pMatrix;
    mDirty = true;
}
