#ifndef ZNAPPCORE_COMPONENTS_ZNCARCLINETRAILCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCARCLINETRAILCOMPONENT_H

#include "znappcore/components/znITrailComponent.h"
#include "znappcore/src/znCBezierSpline.h"

#include <memory>

// In an arc, through a lifted midpoint.
class znCArcLineTrailComponent final : public znITrailComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCArcLineTrailComponent"};

    using znITrailComponent::znITrailComponent;

    void pathSet(const znPoint& pStart, const znPoint& pEnd) override;
    void positionUpdate() override;

private:
    std::unique_ptr<znCBezierSpline> mSpline;
};

#endif
