#ifndef ZNHOGCORE_COMPONENTS_ZNCBONUSCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCBONUSCOMPONENT_H

#include "znappcore/znIComponent.h"

// Marks a bonus item to be thrown away: worth points, and still collected when the level starts over.
class znCBonusComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCBonusComponent"};

    using znIComponent::znIComponent;
};

#endif
