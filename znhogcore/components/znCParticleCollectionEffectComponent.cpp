#include "znhogcore/components/znCParticleCollectionEffectComponent.h"

#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

void znCParticleCollectionEffectComponent::particleInitialise(const znCResourceName& pFile,
                                                              const std::string& pBaseName)
{
    const znCParticleDataPtr data = znCParticleDataManager::instanceGet()->dataGet(pFile);
    mEmitter = std::make_unique<znCParticleEmitter>(data);
    mEmitter->posSet(mEntity->posGet());
    mEndless = mEmitter->isEndless() || data->mParticleLifeMs == 0; // a level must not wait for ever
    ZN_ASSERT(!mEndless, "Collection particle effects (%s) should not run forever.\n", pBaseName.c_str());
}

bool znCParticleCollectionEffectComponent::initialisedCheck() const
{
    ZN_ASSERT(mEmitter != nullptr, "Not initialised.\n");
    return mEmitter != nullptr;
}

void znCParticleCollectionEffectComponent::update(s32 pDeltaMs)
{
    if (endedGet() || !initialisedCheck())
        return;
    mEmitter->update(pDeltaMs);
    if (mEndless || (!mEmitter->isEmitting() && mEmitter->liveCountGet() == 0))
        effectComplete();
}

void znCParticleCollectionEffectComponent::render()
{
    if (initialisedCheck())
        mEmitter->render();
}

// Linked particles live in the entity's space, all others in its parent's.
void znCParticleCollectionEffectComponent::matrixApply()
{
    if (!initialisedCheck())
        return;
    const znINode* parent = mEntity->parentGet();
    mEmitter->matrixApply(mEmitter->isLinked() || parent == nullptr ? mEntity->worldMatrixGet()
                                                                    : parent->worldMatrixGet());
}
