#ifndef ZNHOGCORE_SRC_ZNCHOGLEVEL_H
#define ZNHOGCORE_SRC_ZNCHOGLEVEL_H

// A level that is played: a hidden-object scene or a minigame. It is won by "LevelComplete"; "continueGame" leads on to
// the next screen and leaves the scene as it was at first, "replayLevel" starts it over. A table that names no next
// screen is logged, and the main menu opens.

#include "znhogcore/znIHogLevel.h"

class znCHogLevel : public znIHogLevel
{
public:
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    void shutDownStateFix() override;
    void skipDo() override;
    void levelInitialise() override;

    // Locks and hot objects can be collected from the first moment; all others wait for a pick list.
    void nonPickListCollectableEntitiesActivate();
    // Sets up all pieces of minigames.
    void minigameEntitiesInitialise();

private:
    void levelEndProcess();
    void wonStateClear();
    bool roundScoreOpen();
    bool roundScoreStands() const;
    void levelNext();
    void levelReset();

    bool mContinuePending = false; // won and left: the scene is reset at the end of the fade
};

#endif
