#include "znhogcore/components/znCFadeCollectionEffectComponent.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"

namespace
{
constexpr float SWOLLEN_SCALE = 1.25f;
} // namespace

znCFadeCollectionEffectComponent::znCFadeCollectionEffectComponent(znCEntity* pEntity)
    : znICollectionEffectComponent(pEntity)
{
    mColourGraph.dataAdd(0, znCColour("ffffffff"));
    mColourGraph.dataAdd(mDurationMs, znCColour("ffffff00"));
    mScaleGraph.dataAdd(0, 1.0f);
    mScaleGraph.dataAdd(mDurationMs, SWOLLEN_SCALE);
}

void znCFadeCollectionEffectComponent::spriteInitialise(const znCEntity* pEntity)
{
    const auto* sprite = pEntity->componentGet<znCSpriteComponent>();
    ZN_ASSERT(sprite != nullptr, "Expecting a sprite component to copy.\n");
    if (sprite != nullptr)
        mSprite.brushSet(sprite->brushGet());
}

void znCFadeCollectionEffectComponent::update(s32 pDeltaMs)
{
    if (endedGet())
        return;
    mElapsedMs += pDeltaMs;
    if (mElapsedMs >= mDurationMs)
    {
        effectComplete();
        return;
    }
    mSprite.colourSet(mColourGraph.valueGet(mElapsedMs));
    mEntity->scaleSet(mScaleGraph.valueGet(mElapsedMs));
}

void znCFadeCollectionEffectComponent::render()
{
    mSprite.render();
}

void znCFadeCollectionEffectComponent::matrixApply()
{
    mSprite.matrixApply(mEntity->worldMatrixGet());
}
