#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCDROPOFFPICKLISTENTRYGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCDROPOFFPICKLISTENTRYGUI_H

// A slot that shows its item's text, behind it the number of objects in brackets if it is above 1. The text swells up
// when the item comes and falls off the list, turning, when its last object is found.
//
// Key "image": picture behind the text. Needs the text "PickListEntryText". Hidden while it is free.

#include "zncore/znCGraph.h"
#include "zncore/znPoint.h"
#include "znhogcore/components/gui/znIPickListEntryGui.h"

class znCDropOffPickListEntryGui : public znIPickListEntryGui
{
public:
    static constexpr znCUniqueId TYPE{"znCDropOffPickListEntryGui"};

    explicit znCDropOffPickListEntryGui(znCEntity* pEntity); // hides the entity

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
    void bringToTop();
    void fallStart();
    void fallEnd();

    znCGraph<float> mScaleGraph; // of the arrival
    znPoint mHomePos{0, 0};      // the entity's place when it doesn't fall
    float mFallX = 0.0f;
    float mFallY = 0.0f;
    float mFallVelX = 0.0f; // canvas units a frame of 60 hertz, as all the fall's speeds
    float mFallVelY = 0.0f;
    float mFallLimitY = 0.0f; // the fall ends below it
    float mFallRotation = 0.0f;
    float mFallRotationSpeed = 0.0f;
    s32 mCount = 0; // objects yet to be found
    s32 mElapsedMs = 0;
    bool mFalling = false; // the entity isn't at mHomePos
};

#endif
