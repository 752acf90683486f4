#ifndef ZNHOGCORE_COMPONENTS_ZNCHIDDENPICKABLECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCHIDDENPICKABLECOMPONENT_H

#include "znappcore/znIComponent.h"

// Marks an item that is hard to see, of which pick lists have types of their own.
class znCHiddenPickableComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCHiddenPickableComponent"};

    using znIComponent::znIComponent;
};

#endif
