#ifndef ZNHOGCORE_SRC_ZNCHOGUSERSAVEDDATA_H
#define ZNHOGCORE_SRC_ZNCHOGUSERSAVEDDATA_H

#include "znappcore/src/znCUserSavedData.h"

// The current player's settings and progress in a hidden-object game. It takes the place of znCUserSavedData: both
// instanceGet() answer the same object.
class znCHogUserSavedData : public znCUserSavedData
{
public:
    // Keys, with the values that a new table holds.
    static constexpr const char* MALE = "Male";                               // bool, the player's figure; false
    static constexpr const char* CASUAL = "Casual";                           // bool, hints come quickly; true
    static constexpr const char* LOST_AND_FOUND_COUNT = "lostAndFoundCount";  // s32, items collected; 0
    static constexpr const char* TRASH_COUNT = "trashCount";                  // s32, other bonus items collected; 0
    static constexpr const char* HINT_FREE_STREAK = "succesiveHintFreeLevel"; // s32, levels; 0. HINT_USED: see below
    static constexpr const char* MINIGAME_COUNT = "miniGameCount";            // s32, finished without skip; 0
    static constexpr const char* PLAY_TIME = "time";                          // s32, milliseconds in all levels; 0
    // Keys without an entry in a new table.
    static constexpr const char* CURRENT_LEVEL = "CurrLev"; // the screen to continue at; empty: no game is under way
    static constexpr const char* MAP_LEVEL = "mapLev";      // what the map offers next
    static constexpr const char* LEVEL_STATE = "LevDat:";   // and a level's name: its stored state

    static constexpr s32 HINT_USED = -1; // in this level, so the streak of levels without a hint has ended

    // Makes the one instance with its defaults and no progress. A second call logs "Already created
    // znCHogUserSavedData.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCHogUserSavedData* instanceGet();
    static void destroy();

    void defaultsSet() override;
    void profileInitialise() override;
    // Forgets every level and where the player was. Currency, counters and settings stay.
    void progressClear() override;

    bool casualGet() const { return boolGet(CASUAL, true); }
    bool gameInProgressGet() const { return !currentLevelGet().empty(); }
    std::string currentLevelGet() const { return strGet(CURRENT_LEVEL); }
    void currentLevelSet(const std::string& pScreen) { strSet(CURRENT_LEVEL, pScreen); }
    std::string mapLevelGet() const { return strGet(MAP_LEVEL); }
    void mapLevelSet(const std::string& pLevel) { strSet(MAP_LEVEL, pLevel); }
    // A level was visited once its state was stored; what was stored may be empty.
    bool levelVisitedGet(const std::string& pLevel) const;
    std::string levelStateGet(const std::string& pLevel) const;
    void levelStateSet(const std::string& pLevel, const std::string& pState);
    // The play time grows by pMs; it stops at the largest s32.
    void playTimeAdd(s32 pMs);
    // The s32 under pKey grows by 1; from a missing key it becomes 1.
    void counterIncrement(const std::string& pKey);

private:
    znCHogUserSavedData() = default;
};

#endif
