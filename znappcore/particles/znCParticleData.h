#ifndef ZNAPPCORE_PARTICLES_ZNCPARTICLEDATA_H
#define ZNAPPCORE_PARTICLES_ZNCPARTICLEDATA_H

#include "znappcore/animatingSprite/znCAnimationDataInstance.h"
#include "znappcore/src/znCBrush.h"
#include "znappcore/znCMaterial.h"
#include "zncore/znCColour.h"
#include "zncore/znCGraph.h"
#include "zncore/znPointF.h"
#include "zncore/znTypes.h"

#include <memory>
#include <string>

struct znCParticleData;

// Shared by the manager and the emitters that use it, so that clearing the manager takes nothing from under an emitter.
using znCParticleDataPtr = std::shared_ptr<const znCParticleData>;

// A number, or one drawn by lot: mBase plus a random number below mRangeFixed / 1024, taken if that is above 0.
struct znCParticleValue
{
    float mBase = 0.0f;
    s32 mRangeFixed = 0;

    float drawGet() const;
};

struct znCParticlePair
{
    znCParticleValue mX;
    znCParticleValue mY;

    znPointF drawGet() const;
};

// What one particle file says, with the values of what it leaves out. Not changed after loading. Times are
// milliseconds, lengths canvas units, rates per second, angles radians.
struct znCParticleData
{
    std::string mFile;           // its name, for the log
    bool mLinkToEmitter = false; // the particles stay attached to the emitter
    s32 mMaxParticles = 0;
    s32 mParticleLifeMs = 0; // 0: for ever
    float mEmitSpeed = 0.0f; // particles a second
    znCParticlePair mEmitPos;
    znCParticlePair mVelocity;
    znCParticlePair mVelocityDelta;
    znCParticleValue mScale{1.0f, 0};
    znCParticleValue mScaleDelta;
    znCParticleValue mAngle;
    znCParticleValue mAngleDelta;
    u32 mAlphaMode = znCMaterial::BLEND_ALPHA;
    s32 mPrerunMs = 0;
    s32 mEmitterLifeMs = 0; // 0: for ever
    znCColour mColour;
    std::unique_ptr<const znCGraph<znCColour>> mColourGraph; // over a particle's age; may be null
    znCBrushPtr mBrush;                                      // of sprite particles; may be null
    znCAnimationDataPtr mAnimation;                          // of animated particles; may be null
};

#endif
