#ifndef ZNHOGCORE_COMPONENTS_ZNIMINIGAMECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNIMINIGAMECOMPONENT_H

// Base of the pieces of minigames. A minigame is no object of its own: it is all pieces of one kind in a level, and
// what they must do together they do by messages or by what their class shares. Each piece is a requirement of the
// level under its entity's name, from its construction on, and reports itself by completeStateSet() alone.
//
// The level calls minigameInitialise() when it is set up and again behind each reset, minigameSkip() when the player
// skips it. What a kind restores in myLoad() decides whether the piece is done: it then calls
// completeStateSet(true, false). The state itself isn't saved.
//
// A kind's messageProcess() tests its own message types first and hands all others to this class.

#include "znappcore/components/znIGestureHandlingComponent.h"

class znCVariableTable;

class znIMinigameComponent : public znIGestureHandlingComponent
{
public:
    enum CompleteState : s32
    {
        eIncomplete = 0,
        eCollecting = 1, // done; the effect that shows it is playing
        eComplete = 2,
    };

    // Taps on, drags and two-pointer gestures off.
    explicit znIMinigameComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    // Puts the piece into its solved state at once, without an effect.
    virtual void minigameSkip() = 0;
    virtual void minigameReset(); // the level is played again; the requirement is cleared behind this
    // Sets the piece up for play. pLevelTable: the level's settings.
    virtual void minigameInitialiseDo(const znCVariableTable& pLevelTable) = 0;

    void minigameInitialise(const znCVariableTable& pLevelTable);
    // All digits of the name's key as one decimal number: 12 for "a1b2". A key without any logs "Minigame entity has no
    // numbers in its name:%s\n" and gives 0; a number too large gives the largest.
    s32 indexCalculate() const;
    // The only way in which a piece reports. Done, with an effect: the effect plays, and its end reports. Done,
    // without: reports at once. Not done: takes the report back. A call for the state that it is in does nothing, and
    // what is collecting stays so.
    void completeStateSet(bool pComplete, bool pWithEffect);
    CompleteState completeStateGet() const { return mCompleteState; }

protected:
    bool mLevelEnding = false; // the end of the level is announced; until the next reset

private:
    void requirementSend(const znCUniqueId& pType) const;
    bool effectReportProcess(const std::string& pNodeName);
    void done();
    void notDone();

    CompleteState mCompleteState = eIncomplete;
};

#endif
