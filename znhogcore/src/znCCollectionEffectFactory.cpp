#include "znhogcore/src/znCCollectionEffectFactory.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/components/znCFadeCollectionEffectComponent.h"

#include <memory>

namespace
{
std::unique_ptr<znCCollectionEffectFactory> sInstance;

void fadeCreate(const znCEntity& pEntity)
{
    auto* effect = new znCEntity(pEntity.nameGet() + znICollectionEffectComponent::NAME_SUFFIX); // owned by the tree
    effect->componentAdd<znCFadeCollectionEffectComponent>()->spriteInitialise(&pEntity);
    effect->posSet(pEntity.posGet());
    pEntity.parentGet()->childAdd(effect);
}
} // namespace

void znCCollectionEffectFactory::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCCollectionEffectFactory.\n");
    sInstance.reset(new znCCollectionEffectFactory);
}

znCCollectionEffectFactory* znCCollectionEffectFactory::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCCollectionEffectFactory::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

s32 znCCollectionEffectFactory::effectsCreate(znCEntity* pEntity)
{
    return visualEffectCreate(*pEntity);
}

// The first kind that applies.
s32 znCCollectionEffectFactory::visualEffectCreate(const znCEntity& pEntity)
{
    if (pEntity.parentGet() == nullptr || pEntity.componentGet(znCSpriteComponent::TYPE) == nullptr)
        return 0;
    fadeCreate(pEntity);
    return 1;
}
