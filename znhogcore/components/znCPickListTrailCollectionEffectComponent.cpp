#include "znhogcore/components/znCPickListTrailCollectionEffectComponent.h"

#include "znappcore/components/znCStraightLineTrailComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/components/gui/znCPickListGui.h"
#include "znhogcore/components/gui/znIPickListEntryGui.h"
#include "znhogcore/src/znCCollectionEffectFactory.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr char GAME_GUI[] = "GameGui";
constexpr char PARTICLES[] = "particles/pPickListCollectTrail.txt";
constexpr s32 FLIGHT_MS = 2000;

// The first hit wins.
const znIPickListEntryGui* entryFind(const std::string& pText)
{
    auto* gui = dynamic_cast<znCEntity*>(znIHogLevel::levelGet()->childFind(GAME_GUI));
    if (gui == nullptr)
        return nullptr;
    for (const znCEntity* entity : gui->entitiesWithComponentsGet({&typeid(znCPickListGui)}))
    {
        const auto* list = entity->componentGet<znCPickListGui>();
        ZN_ASSERT(list != nullptr, "Expected to get the pick list component.\n");
        if (const znIPickListEntryGui* entry = list != nullptr ? list->entryForTextGet(pText) : nullptr)
            return entry;
    }
    return nullptr;
}
} // namespace

void znCPickListTrailCollectionEffectComponent::create(znCEntity* pEntity, const std::string& pText,
                                                       const znPoint& pStart)
{
    auto* effect = pEntity->componentAdd<znCPickListTrailCollectionEffectComponent>();
    const znIPickListEntryGui* entry = entryFind(pText);
    ZN_ASSERT(entry != nullptr, "Failed to find an entry for %s.\n", pText.c_str());
    const znPoint target =
        entry != nullptr
            ? znCCollectionEffectFactory::instanceGet()->localStartCoordGet(entry->entityGet()->worldPosGet())
            : pStart;
    effect->flightStart(pEntity->componentAdd<znCStraightLineTrailComponent>(), pStart, target, FLIGHT_MS);
    effect->particlesAdd(PARTICLES);
}
