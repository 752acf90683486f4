#ifndef ZNHOGCORE_COMPONENTS_ZNCNAVIGATECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCNAVIGATECOMPONENT_H

// A way out of the scene: a tap sends "navigateTap" with where it leads.
//
// The base name holds "NAV-" and a key of the level's table whose value is the target; without that key it is the
// target itself. The entity needs a znCSpriteComponent and a znCNameComponent.

#include "znappcore/components/znIGestureHandlingComponent.h"

#include <string>

class znCNavigateComponent : public znIGestureHandlingComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCNavigateComponent"};
    static constexpr const char* MARK = "NAV-"; // in front of the key

    explicit znCNavigateComponent(znCEntity* pEntity);

    bool inputEnabled() override;
    void onTap() override;

    const std::string& targetGet() const { return mTarget; }
    // Whether it counts as something to do in its sub-scene; true at first.
    void navigateActiveSet(bool pActive) { mNavigateActive = pActive; }
    bool navigateActiveGet() const { return mNavigateActive; }

private:
    void targetCalculate(const znCVariableTable& pTable, const std::string& pBaseName);

    std::string mTarget;
    bool mNavigateActive = true;
};

#endif
