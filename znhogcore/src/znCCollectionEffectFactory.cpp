#include "znhogcore/src/znCCollectionEffectFactory.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "znhogcore/components/znCAnimCollectionEffectComponent.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/components/znCFadeCollectionEffectComponent.h"
#include "znhogcore/components/znCHiddenPickableComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCParticleCollectionEffectComponent.h"
#include "znhogcore/components/znCPickListTrailCollectionEffectComponent.h"
#include "znhogcore/components/znCRandomPickableComponent.h"
#include "znhogcore/components/znCRequiredPickableComponent.h"
#include "znhogcore/components/znCScoreTrailCollectionEffectComponent.h"
#include "znhogcore/components/znCSpinningCollectionEffectComponent.h"
#include "znhogcore/components/znCTaskComponent.h"
#include "znhogcore/components/znIMinigameComponent.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace
{
std::unique_ptr<znCCollectionEffectFactory> sInstance;

constexpr char ANIMATION_EXTENSION[] = ".xml";
constexpr char PARTICLES_PREFIX[] = "particles/PAR-";
constexpr char PARTICLES_EXTENSION[] = ".txt";
constexpr char MINIGAME_PARTICLES[] = "particles/pMinigameCollectEffect.txt";
constexpr char FIND_SOUND[] = "audio/sfx/find.wav"; // of settings that name none

// A new entity for an effect; the caller puts it into the tree.
znCEntity* effectEntityMake(const znCEntity& pEntity)
{
    return new znCEntity(pEntity.nameGet() + znICollectionEffectComponent::NAME_SUFFIX);
}

// The same where the collected one stands.
znCEntity* visualEntityMake(const znCEntity& pEntity)
{
    znCEntity* effect = effectEntityMake(pEntity);
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
    znCEntity* effect = visualEntityMake(pEntity);
    effect->componentAdd<znCAnimCollectionEffectComponent>()->animationInitialise(file);
    pEntity.parentGet()->childAdd(effect);
    return true;
}

bool particlesCreate(znCEntity& pEntity)
{
    const znCNameComponent* name = znCNameComponent::get(&pEntity);
    const bool minigame = pEntity.componentFind<znIMinigameComponent>() != nullptr;
    const znCResourceName file(minigame ? MINIGAME_PARTICLES : PARTICLES_PREFIX + name->keyGet() + PARTICLES_EXTENSION,
                               znCResourceName::GAME_DATA);
    if (!znIFile::existsGet(file))
        return false;
    znCEntity* effect = visualEntityMake(pEntity);
    effect->componentAdd<znCParticleCollectionEffectComponent>()->particleInitialise(file, name->baseNameGet());
    pEntity.parentGet()->childAdd(effect);
    return true;
}

bool fadeCreate(znCEntity& pEntity)
{
    if (pEntity.componentGet(znCSpriteComponent::TYPE) == nullptr)
        return false;
    znCEntity* effect = visualEntityMake(pEntity);
    effect->componentAdd<znCFadeCollectionEffectComponent>()->spriteInitialise(&pEntity);
    pEntity.parentGet()->childAdd(effect);
    return true;
}

// What flies besides the sparkles to the score.
void listTrailCreate(znCEntity& pEntity, const znPoint& pStart)
{
    znCPickListTrailCollectionEffectComponent::create(effectEntityMake(pEntity),
                                                      znCNameComponent::get(&pEntity)->displayTextGet(), pStart);
}

void spinningCreate(znCEntity& pEntity, const znPoint& pStart)
{
    znCSpinningCollectionEffectComponent::create(effectEntityMake(pEntity), &pEntity, pStart);
}

struct Flight
{
    std::vector<znCUniqueId> mMarks; // components that tell the kind; any of them
    void (*mCreate)(znCEntity& pEntity, const znPoint& pStart);
    const char* mSoundKey; // of the application's settings
};

const Flight FLIGHTS[] = {
    {{znCTaskComponent::TYPE, znCRequiredPickableComponent::TYPE, znCRandomPickableComponent::TYPE,
      znCHiddenPickableComponent::TYPE},
     listTrailCreate,
     "sfxCollectHOGList"},
    {{znCBonusComponent::TYPE}, spinningCreate, "sfxCollectTrash"},
    {{znCBonusSilhouetteComponent::TYPE}, listTrailCreate, "sfxCollectLostFound"},
};
constexpr s32 FLYING_EFFECTS = 2;

// The first that applies; null if none does.
const Flight* flightFind(const znCEntity& pEntity)
{
    const auto flight = std::find_if(std::begin(FLIGHTS), std::end(FLIGHTS),
                                     [&pEntity](const Flight& pFlight)
                                     {
                                         return std::any_of(pFlight.mMarks.begin(), pFlight.mMarks.end(),
                                                            [&pEntity](const auto& pMark)
                                                            { return pEntity.componentGet(pMark) != nullptr; });
                                     });
    return flight != std::end(FLIGHTS) ? &*flight : nullptr;
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
    if (pEntity->parentGet() == nullptr || znCNameComponent::get(pEntity) == nullptr)
        return 0;
    return visualEffectCreate(*pEntity) + flyingEffectsCreate(*pEntity);
}

// The first kind that applies.
s32 znCCollectionEffectFactory::visualEffectCreate(znCEntity& pEntity)
{
    return animationCreate(pEntity) || particlesCreate(pEntity) || fadeCreate(pEntity) ? 1 : 0;
}

s32 znCCollectionEffectFactory::flyingEffectsCreate(znCEntity& pEntity)
{
    const Flight* flight = flightFind(pEntity);
    if (flight == nullptr || znIHogLevel::levelGet() == nullptr)
        return 0;
    const znPoint start = localStartCoordGet(pEntity.worldPosGet());
    flight->mCreate(pEntity, start);
    znCScoreTrailCollectionEffectComponent::create(effectEntityMake(pEntity), &pEntity, start);
    const std::string sound = znCAppSettings::instanceGet()->strGet(flight->mSoundKey, FIND_SOUND);
    znIAudioManager::instanceGet()->effectPlay(znCResourceName(sound, znCResourceName::GAME_DATA), false);
    return FLYING_EFFECTS;
}

void znCCollectionEffectFactory::effectsCancel()
{
    znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr)
        return;
    for (znCEntity* entity : level->entitiesWithKindGet<znICollectionEffectComponent>())
        entity->componentFind<znICollectionEffectComponent>()->effectCancel();
}

znPoint znCCollectionEffectFactory::localStartCoordGet(const znPoint& pWorldPoint)
{
    znIHogLevel* level = znIHogLevel::levelGet();
    znPoint local(0, 0);
    const bool converted = level != nullptr && level->worldToLocalGet(pWorldPoint, local);
    ZN_ASSERT(converted, "Failed to convert coordinates.\n");
    return converted ? local : pWorldPoint;
}
