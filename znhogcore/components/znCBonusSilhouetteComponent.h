#ifndef ZNHOGCORE_COMPONENTS_ZNCBONUSSILHOUETTECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCBONUSSILHOUETTECOMPONENT_H

#include "znappcore/znIComponent.h"

// Marks a lost-and-found item, shown as a silhouette on its list; it is still collected when the level starts over.
class znCBonusSilhouetteComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCBonusSilhouetteComponent"};

    using znIComponent::znIComponent;
};

#endif
