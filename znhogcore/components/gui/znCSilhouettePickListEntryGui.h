#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCSILHOUETTEPICKLISTENTRYGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCSILHOUETTEPICKLISTENTRYGUI_H

// A slot that shows its item as a black shape of the object, which turns to its own colours, holds and fades away when
// the object is found. For lists that don't group their items.
//
// Keys "width" and "height" (float, both above 0): the shape is scaled to fit into them.

#include "zncore/znCColour.h"
#include "zncore/znCGraph.h"
#include "znhogcore/components/gui/znIPickListEntryGui.h"

class znCSpriteComponent;

class znCSilhouettePickListEntryGui : public znIPickListEntryGui
{
public:
    static constexpr znCUniqueId TYPE{"znCSilhouettePickListEntryGui"};

    explicit znCSilhouettePickListEntryGui(znCEntity* pEntity);

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void mySave(std::string& pOut) override;
    void myLoad(std::string& pIn) override;

    void activateDo(const std::vector<znCEntity*>& pEntities) override;
    void resetDo() override;
    bool transitionOnUpdate(s32 pDeltaMs) override;
    bool transitionOffUpdate(s32 pDeltaMs) override;
    bool entityCollected() override;

private:
    void spriteBrushSet(s32 pTimeMs);
    void scaleToSlot(const znCSpriteComponent& pSprite);
    bool colourStep(const znCGraph<znCColour>& pGraph, s32 pDeltaMs);

    znCGraph<znCColour> mOnGraph;
    znCGraph<znCColour> mOffGraph;
    s32 mElapsedMs = 0; // in the transition
    float mSlotWidth = 0.0f;
    float mSlotHeight = 0.0f;
    std::string mEntityName; // of the object
};

#endif
