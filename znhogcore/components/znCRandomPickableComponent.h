#ifndef ZNHOGCORE_COMPONENTS_ZNCRANDOMPICKABLECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCRANDOMPICKABLECOMPONENT_H

#include "znappcore/znIComponent.h"

// Marks an item that a pick list may choose by chance.
class znCRandomPickableComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCRandomPickableComponent"};

    using znIComponent::znIComponent;
};

#endif
