#ifndef ZNHOGCORE_COMPONENTS_ZNCBONUSLISTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCBONUSLISTCOMPONENT_H

#include "znappcore/znIComponent.h"

// Marks a bonus item of a list; it is still collected when the level starts over.
class znCBonusListComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCBonusListComponent"};

    using znIComponent::znIComponent;
};

#endif
