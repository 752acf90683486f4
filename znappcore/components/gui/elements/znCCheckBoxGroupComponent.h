#ifndef ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCCHECKBOXGROUPCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCCHECKBOXGROUPCOMPONENT_H

// Makes the check boxes right below its entity exclude one another: one of them is checked, the first at the start.

#include "znappcore/znIComponent.h"

#include <vector>

class znCCheckBoxComponent;

class znCCheckBoxGroupComponent : public znIComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCCheckBoxGroupComponent"};

    using znIComponent::znIComponent;
    ~znCCheckBoxGroupComponent() override;

    void boxAdd(znCCheckBoxComponent& pBox);
    void boxRemove(const znCCheckBoxComponent& pBox);
    void othersUncheck(const znCCheckBoxComponent& pBox);

private:
    std::vector<znCCheckBoxComponent*> mBoxes; // not owned; box and group tell each other of their end
};

#endif
