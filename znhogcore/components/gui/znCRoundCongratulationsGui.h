#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCROUNDCONGRATULATIONSGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCROUNDCONGRATULATIONSGUI_H

// The celebration between the last find and the end of the level. Sits on the level; the level's checker leaves the end
// to it from its construction on.
//
// First sparkles run over the pieces of a minigame, from both sides to the middle; then one of three "well done"
// screens shows for three seconds; then it announces the end: "LevelComplete", or "LevelCompleteWaiting" where the
// player has the last word. A level without pieces goes to the screen after one second.
//
// A level that was saved in its celebration begins the present stage anew, and the end is announced again.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

#include <vector>

class znCRoundCongratulationsGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCRoundCongratulationsGui"};

    // Without a checker on the entity nothing is celebrated.
    explicit znCRoundCongratulationsGui(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void update(s32 pDeltaMs) override;
    void mySave(std::string& pOut) override; // the time left in the stage, the stage
    void myLoad(std::string& pIn) override;  // what is no stage counts as the nearest one
    // The stage begins here: what it looks at is loaded by now.
    void myPostLoad() override;

private:
    enum Stage : s32
    {
        STAGE_IDLE = 0,
        STAGE_SWEEP = 1,
        STAGE_WELL_DONE = 2,
        STAGE_FINISHED = 3,
    };

    void announcementProcess();
    void stageEnter(s32 pStage);
    void sweepListBuild();
    void sweepStep();
    bool sweepMetGet() const;
    void wellDoneOpen();
    void wellDoneClose();
    void endAnnounce();
    void reset();

    znCEntity* mWellDoneEntity = nullptr; // owned by the tree
    s32 mStage = STAGE_IDLE;
    bool mWaitSeen = false;                 // the player has the last word
    std::vector<znCEntity*> mSweepEntities; // owned by the tree
    std::size_t mSweepFront = 0;            // the next place from the left
    std::size_t mSweepBack = 0;             // behind the next place from the right
    s32 mTimerMs = 0;                       // 0: nothing is under way
    bool mRestored = false;                 // the announcement that led to the stage will come once more
};

#endif
