#include "znhogcore/components/znCAnimCollectionEffectComponent.h"

#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

void znCAnimCollectionEffectComponent::animationInitialise(const znCResourceName& pFile)
{
    mAnim = std::make_unique<znCAnimatingSprite>(pFile, false);
    ZN_ASSERT(!mAnim->loopsGet(), "Cannot use looping animations as collection effects %s.\n", pFile.nameGet().c_str());
    if (mAnim->loopsGet())
        mAnim->stop(); // a level must not wait for ever
}

bool znCAnimCollectionEffectComponent::initialisedCheck() const
{
    ZN_ASSERT(mAnim != nullptr, "Not initialised.\n");
    return mAnim != nullptr;
}

void znCAnimCollectionEffectComponent::update(s32 pDeltaMs)
{
    if (endedGet() || !initialisedCheck())
        return;
    mAnim->update(pDeltaMs);
    if (!mAnim->isRunning())
        effectComplete();
}

void znCAnimCollectionEffectComponent::render()
{
    if (initialisedCheck())
        mAnim->render();
}

void znCAnimCollectionEffectComponent::matrixApply()
{
    if (initialisedCheck())
        mAnim->matrixApply(mEntity->worldMatrixGet());
}
