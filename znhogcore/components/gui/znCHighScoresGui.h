#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCHIGHSCORESGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCHIGHSCORESGUI_H

// Shows the table of high scores in the texts "HighScoresScore" + row and "HighScoresName" + row, rows from 0. More or
// fewer rows than the table has are logged, and the rows that both have are shown.

#include "znappcore/components/gui/znIGuiComponent.h"

class znCHighScoresGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCHighScoresGui"};

    using znIGuiComponent::znIGuiComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;

private:
    s32 rowsCount() const;
    void entriesTextSet();
};

#endif
