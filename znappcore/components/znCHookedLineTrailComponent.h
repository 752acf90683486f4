#ifndef ZNAPPCORE_COMPONENTS_ZNCHOOKEDLINETRAILCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCHOOKEDLINETRAILCOMPONENT_H

#include "znappcore/components/znITrailComponent.h"
#include "znappcore/src/znCBezierSpline.h"

#include <memory>

// In an arc to a ring of 50 pixels around the end, which it circles three times. At (0, 0) when the time is up.
class znCHookedLineTrailComponent final : public znITrailComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCHookedLineTrailComponent"};

    using znITrailComponent::znITrailComponent;

    void pathSet(const znPoint& pStart, const znPoint& pEnd) override;
    void positionUpdate() override;

private:
    std::unique_ptr<znCBezierSpline> mSpline;
};

#endif
