#include "znhogcore/components/gui/znIRoundScoreGui.h"

namespace
{
constexpr s32 BEHIND_ALL_OTHERS = -1;
} // namespace

// The level stores its state at the same message at which the round score writes the player's data: the level comes
// first, so that a reward never reaches the disk beside a level that can still be won for it.
znIRoundScoreGui::znIRoundScoreGui(znCEntity* pEntity) : znIMessageListenerGuiComponent(pEntity, BEHIND_ALL_OTHERS) {}

void znIRoundScoreGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    roundScoreInitialise();
}

void znIRoundScoreGui::roundScoreInitialise()
{
    valuesCreate();
}

void znIRoundScoreGui::valuesCreate()
{
    mValues.assign(ROWS, 0);
}
