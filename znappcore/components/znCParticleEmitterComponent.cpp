#include "znappcore/components/znCParticleEmitterComponent.h"

#include "znappcore/particles/znCParticleDataManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"

void znCParticleEmitterComponent::update(s32 pDeltaMs)
{
    if (mActive && mEmitter != nullptr)
        mEmitter->update(pDeltaMs);
}

void znCParticleEmitterComponent::render()
{
    if (mActive && mEmitter != nullptr)
        mEmitter->render();
}

void znCParticleEmitterComponent::posChangeHandle()
{
    if (mEmitter != nullptr && !mEmitter->isLinked())
        mEmitter->posSet(mEntity->posGet());
}

void znCParticleEmitterComponent::matrixApply()
{
    if (mEmitter == nullptr)
        return;
    if (mEmitter->isLinked())
    {
        mEmitter->matrixApply(mEntity->worldMatrixGet());
        return;
    }
    mEmitter->posSet(mEntity->posGet());
    const znINode* parent = mEntity->parentGet();
    mEmitter->matrixApply(parent != nullptr ? parent->worldMatrixGet() : znAffineMtx2d());
}

void znCParticleEmitterComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIComponent::initialiseFromVariableTableDo(pTable);
    const std::string file = pTable.strGet("particleFile");
    ZN_ASSERT(!file.empty(), "Expected a 'particleFile' setting for a ParticleEmitterComponente.\n");
    if (!file.empty())
        initialise(znCResourceName(file, znCResourceName::GAME_DATA));
}

void znCParticleEmitterComponent::initialise(const znCResourceName& pName)
{
    ZN_ASSERT(mEmitter == nullptr, "Already initialised!\n");
    znCParticleDataManager* manager = znCParticleDataManager::instanceGet();
    if (mEmitter != nullptr || manager == nullptr)
        return;
    mEmitter = std::make_unique<znCParticleEmitter>(manager->dataGet(pName));
    posChangeHandle();
    if (mEntity->parentGet() == nullptr)
        return;
    mEntity->treeUpdate(1); // for matrices that are right before the particles fly
    matrixApply();
    mEmitter->prerunDo();
}
