#ifndef ZNHOGCORE_SRC_ZNCPROGRESSSAVER_H
#define ZNHOGCORE_SRC_ZNCPROGRESSSAVER_H

// Saves the player's progress while the program runs, so that a crash costs seconds: what is written is what would be
// written if the program ended now.
//
// It saves no more often than every ten seconds, and only after something has happened: a press, a typed character or
// a message of play. What a press sets going may take a while, so the round behind such a save looks once more; after
// that a scene in which nothing happens costs nothing. A save waits a moment for the player's hand to rest.
//
// A level that is won is not stored before it is left: its reward is booked already, and who came back to the moment
// before would win it twice.
//
// The main object owns the one instance and registers it.

#include "znappcore/znIMessageListener.h"

class znCProgressSaver : public znIMessageListener
{
public:
    static constexpr s32 INTERVAL_MS = 10000; // from one save to the next, at least
    static constexpr s32 REST_MS = 400;       // without a press, before a save
    static constexpr s32 REST_WAIT_MS = 5000; // how long a save waits for that, at most

    znCProgressSaver();

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    void update(s32 pDeltaMs);
    // Stores the level's state and writes what changed, at once.
    void save();
    // The level that stood is gone.
    void levelLeft() { mWon = false; }

private:
    s32 mSinceSaveMs = 0;
    s32 mRestMs = 0;     // since the last press
    s32 mRoundsLeft = 0; // saves to come, unless something happens
    bool mWon = false;   // the level on the screen
};

#endif
