#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNIROUNDSCOREGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNIROUNDSCOREGUI_H

// Base of the window that adds up what a level has earned. The reward is calculated and booked once, when the window's
// file has been read.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"

#include <vector>

class znIRoundScoreGui : public znIMessageListenerGuiComponent
{
public:
    explicit znIRoundScoreGui(znCEntity* pEntity);

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;

    virtual void roundScoreInitialise();
    virtual void valuesCreate();
    virtual void scoreCalculate() = 0; // fills mValues in, books the reward and shows them

protected:
    enum Row : std::size_t
    {
        ROW_COMPLETION = 0,
        ROW_HINT_FREE = 1,
        ROW_TOTAL = 2,
    };
    static constexpr std::size_t ROWS = 3;

    std::vector<s32> mValues; // by row; points
};

#endif
