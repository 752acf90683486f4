#ifndef ZNAPPCORE_COMPONENTS_ZNCSTRAIGHTLINETRAILCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCSTRAIGHTLINETRAILCOMPONENT_H

#include "znappcore/components/znITrailComponent.h"
#include "zncore/znCGraph.h"

// Straight to the end at constant speed; stays there.
class znCStraightLineTrailComponent final : public znITrailComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCStraightLineTrailComponent"};

    using znITrailComponent::znITrailComponent;

    void pathSet(const znPoint& pStart, const znPoint& pEnd) override;
    void positionUpdate() override;

private:
    znCGraph<float> mGraphX;
    znCGraph<float> mGraphY;
};

#endif
