#ifndef ZNHOGCORE_COMPONENTS_ZNCPICKLISTTRAILCOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCPICKLISTTRAILCOLLECTIONEFFECTCOMPONENT_H

// Sparkles that fly from a listed thing to its entry on the list.

#include "znhogcore/components/znIFlyingCollectionEffectComponent.h"

class znCPickListTrailCollectionEffectComponent final : public znIFlyingCollectionEffectComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCPickListTrailCollectionEffectComponent"};

    using znIFlyingCollectionEffectComponent::znIFlyingCollectionEffectComponent;

    // Makes pEntity, which is new, the effect for the entry of that display text. Without such an entry it logs "Failed
    // to find an entry for %s.\n", and the sparkles stay at the start as long as a flight takes.
    static void create(znCEntity* pEntity, const std::string& pText, const znPoint& pStart);
};

#endif
