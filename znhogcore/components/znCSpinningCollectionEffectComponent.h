#ifndef ZNHOGCORE_COMPONENTS_ZNCSPINNINGCOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCSPINNINGCOLLECTIONEFFECTCOMPONENT_H

// A copy of a bonus thing's picture that flies in an arc to the list of bonus things, spinning by a tenth of a half
// turn a frame.

#include "znhogcore/components/znIFlyingCollectionEffectComponent.h"

class znCSpinningCollectionEffectComponent final : public znIFlyingCollectionEffectComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSpinningCollectionEffectComponent"};

    using znIFlyingCollectionEffectComponent::znIFlyingCollectionEffectComponent;

    // Makes pEntity, which is new, the effect for pSource, the collected entity.
    static void create(znCEntity* pEntity, const znCEntity* pSource, const znPoint& pStart);

protected:
    void flightUpdate() override;
};

#endif
