#ifndef ZNHOGCORE_COMPONENTS_ZNCREQUIREDPICKABLECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCREQUIREDPICKABLECOMPONENT_H

#include "znappcore/znIComponent.h"

// Marks an item that a pick list must show.
class znCRequiredPickableComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCRequiredPickableComponent"};

    using znIComponent::znIComponent;
};

#endif
