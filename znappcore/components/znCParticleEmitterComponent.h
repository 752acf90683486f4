#ifndef ZNAPPCORE_COMPONENTS_ZNCPARTICLEEMITTERCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCPARTICLEEMITTERCOMPONENT_H

#include "znappcore/particles/znCParticleEmitter.h"
#include "znappcore/znIComponent.h"

#include <memory>

// A particle emitter at an entity's place. Particles that aren't linked live in the space of the entity's parent and
// don't follow the entity.
//
// Settings: "particleFile" names the particle file; without it "Expected a 'particleFile' setting for a
// ParticleEmitterComponente.\n" is logged.
class znCParticleEmitterComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCParticleEmitterComponent"};

    explicit znCParticleEmitterComponent(znCEntity* pEntity) : znIComponent(pEntity) {}

    void update(s32 pDeltaMs) override;
    void render() override;
    void posChangeHandle() override;
    void matrixApply() override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;

    // Makes the emitter, and lets its "prerun" pass if the entity has a parent. A second call logs "Already
    // initialised!\n" and changes nothing.
    void initialise(const znCResourceName& pName);
    // An inactive one freezes and isn't drawn.
    void activeSet(bool pActive) { mActive = pActive; }
    // Null until initialised.
    znCParticleEmitter* emitterGet() const { return mEmitter.get(); }

private:
    std::unique_ptr<znCParticleEmitter> mEmitter;
    bool mActive = true;
};

#endif
