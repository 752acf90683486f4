#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCSINGLEITEMPICKLISTENTRYGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCSINGLEITEMPICKLISTENTRYGUI_H

// A slot that shows its item as one sentence, which counts down: "Find 3 bottles in the scene". The sentence is the
// localised "find", a blank, the number, a blank, the localised key + "Single" or key + "Plural", and right behind it
// the localised "inTheScene"; it is empty without an item.
//
// Key "visible" (bool, true): with false the sentence isn't shown. Needs the text "pickListEntryText".

#include "znhogcore/components/gui/znIPickListEntryGui.h"

class znCSingleItemPickListEntryGui : public znIPickListEntryGui
{
public:
    static constexpr znCUniqueId TYPE{"znCSingleItemPickListEntryGui"};

    using znIPickListEntryGui::znIPickListEntryGui;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void mySave(std::string& pOut) override;
    void myLoad(std::string& pIn) override;

    void activateDo(const std::vector<znCEntity*>& pEntities) override;
    void resetDo() override;
    bool transitionOnUpdate(s32 pDeltaMs) override;
    bool transitionOffUpdate(s32 pDeltaMs) override;
    bool entityCollected() override;
    void countLimit(s32 pCount) override;

private:
    void textUpdate();
    std::string sentenceGet() const;

    bool mVisible = true;
    std::string mItemKey;
    s32 mCount = 0; // objects yet to be found
};

#endif
