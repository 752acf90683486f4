#ifndef ZNHOGCORE_COMPONENTS_ZNCSCORETRAILCOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCSCORETRAILCOLLECTIONEFFECTCOMPONENT_H

// Sparkles that fly from a found thing to the player's currency in the GUI and bring its points there: 50 for
// lost-and-found things, 20 for other bonus things, 10 for all others. Points whose flight is cancelled arrive at once.

#include "znhogcore/components/znIFlyingCollectionEffectComponent.h"

class znCScoreTrailCollectionEffectComponent final : public znIFlyingCollectionEffectComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCScoreTrailCollectionEffectComponent"};

    using znIFlyingCollectionEffectComponent::znIFlyingCollectionEffectComponent;

    // Makes pEntity, which is new, the effect for pSource, the collected entity, which must outlive it.
    static void create(znCEntity* pEntity, const znCEntity* pSource, const znPoint& pStart);

protected:
    void arrive() override;
    void cancelDo() override;

private:
    void pointsSend() const;

    const znCEntity* mSource = nullptr; // owned by the tree
};

#endif
