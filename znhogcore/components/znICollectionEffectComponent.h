#ifndef ZNHOGCORE_COMPONENTS_ZNICOLLECTIONEFFECTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNICOLLECTIONEFFECTCOMPONENT_H

// Base of the pieces of the show that plays when something is collected. Each is an entity of its own, named after the
// collected one with NAME_SUFFIX behind it; that is how its report finds the way back.

#include "znappcore/znIComponent.h"

class znICollectionEffectComponent : public znIComponent
{
public:
    static constexpr const char* NAME_SUFFIX = "CollectionEffect";

    using znIComponent::znIComponent;

protected:
    // Reports to the collectable and destroys the entity. Once.
    void effectComplete();

private:
    std::string mCollectedName; // set just before the report
};

#endif
