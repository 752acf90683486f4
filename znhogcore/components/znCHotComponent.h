#ifndef ZNHOGCORE_COMPONENTS_ZNCHOTCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCHOTCOMPONENT_H

#include "znappcore/znIComponent.h"

// Marks an object that can be collected from the start, without a pick list; it never stays on view once collected.
class znCHotComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCHotComponent"};

    using znIComponent::znIComponent;
};

#endif
