#include "znhogcore/src/znCCollectionEffectFactory.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "znhogcore/components/znCAnimCollectionEffectComponent.h"
#include "znhogcore/components/znCFadeCollectionEffectComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCParticleCollectionEffectComponent.h"
#include "znhogcore/znIHogLevel.h"

#include <memory>

namespace
{
std::unique_ptr<znCCollectionEffectFactory> sInstance;

constexpr char ANIMATION_EXTENSION[] = ".xml";
constexpr char PARTICLES_PREFIX[] = "particles/PAR-";
constexpr char PARTICLES_EXTENSION[] = ".txt";

// A new entity for an effect where the collected one stands; the caller puts it into the tree.
znCEntity* effectEntityMake(const znCEntity& pEntity)
{
    auto* effect = new znCEntity(pEntity.nameGet() + znICollectionEffectComponent::NAME_SUFFIX);
    effect->posSet(pEntity.posGet());
    return effect;
}

bool animationCreate(znCEntity& pEntity)
{
    const znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr)
        return false;
    const znCResourceName file(level->folderGet() + znCNameComponent::get(&pEntity)->baseNameGet() +
                                   ANIMATION_EXTENSION,
                               znCResourceName::GAME_DATA);
    if (!znIFile::existsGet(file))
        return false;
    znCEntity* effect = effectEntityMake(pEntity);
    effect->componentAdd<znCAnimCollectionEffectComponent>()->animationInitialise(file);
    pEntity.parentGet()->childAdd(effect);
    return true;
}

bool particlesCreate(znCEntity& pEntity)
{
    const znCNameComponent* name = znCNameComponent::get(&pEntity);
    const znCResourceName file(PARTICLES_PREFIX + name->keyGet() + PARTICLES_EXTENSION, znCResourceName::GAME_DATA);
    if (!znIFile::existsGet(file))
        return false;
    znCEntity* effect = effectEntityMake(pEntity);
    effect->componentAdd<znCParticleCollectionEffectComponent>()->particleInitialise(file, name->baseNameGet());
    pEntity.parentGet()->childAdd(effect);
    return true;
}

bool fadeCreate(znCEntity& pEntity)
{
    if (pEntity.componentGet(znCSpriteComponent::TYPE) == nullptr)
        return false;
    znCEntity* effect = effectEntityMake(pEntity);
    effect->componentAdd<znCFadeCollectionEffectComponent>()->spriteInitialise(&pEntity);
    pEntity.parentGet()->childAdd(effect);
    return true;
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
s32 znCCollectionEffectFactory::visualEffectCreate(znCEntity& pEntity)
{
    if (pEntity.parentGet() == nullptr || znCNameComponent::get(&pEntity) == nullptr)
        return 0;
    return animationCreate(pEntity) || particlesCreate(pEntity) || fadeCreate(pEntity) ? 1 : 0;
}
