#ifndef ZNHOGCORE_COMPONENTS_ZNCPARTICLECOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCPARTICLECOLLECTIONEFFECTCOMPONENT_H

// A burst of particles where a thing was collected, until the last of them has gone.

#include "znappcore/particles/znCParticleEmitter.h"
#include "znhogcore/components/znICollectionEffectComponent.h"

#include <memory>

class znCResourceName;

class znCParticleCollectionEffectComponent final : public znICollectionEffectComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCParticleCollectionEffectComponent"};

    using znICollectionEffectComponent::znICollectionEffectComponent;

    // A file that emits for ever, or whose particles live for ever, logs "Collection particle effects (%s) should not
    // run forever.\n" with pBaseName, the collected thing's, and counts as played. What a frame does before this logs
    // "Not initialised.\n".
    void particleInitialise(const znCResourceName& pFile, const std::string& pBaseName);

    void update(s32 pDeltaMs) override;
    void render() override;
    void matrixApply() override;

private:
    bool initialisedCheck() const;

    std::unique_ptr<znCParticleEmitter> mEmitter;
    bool mEndless = false;
};

#endif
