#include "znappcore/components/gui/elements/znCCheckBoxGroupComponent.h"

#include "znappcore/components/gui/elements/znCCheckBoxComponent.h"

znCCheckBoxGroupComponent::~znCCheckBoxGroupComponent()
{
    for (znCCheckBoxComponent* box : mBoxes)
        box->groupForget();
}

void znCCheckBoxGroupComponent::boxAdd(znCCheckBoxComponent& pBox)
{
    pBox.checkedSet(mBoxes.empty());
    mBoxes.push_back(&pBox);
}

void znCCheckBoxGroupComponent::boxRemove(const znCCheckBoxComponent& pBox)
{
    std::erase(mBoxes, &pBox);
}

void znCCheckBoxGroupComponent::othersUncheck(const znCCheckBoxComponent& pBox)
{
    for (znCCheckBoxComponent* box : mBoxes)
        if (box != &pBox)
            box->checkedSet(false);
}
