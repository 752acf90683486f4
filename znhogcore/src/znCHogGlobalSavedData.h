#ifndef ZNHOGCORE_SRC_ZNCHOGGLOBALSAVEDDATA_H
#define ZNHOGCORE_SRC_ZNCHOGGLOBALSAVEDDATA_H

#include "znappcore/src/znCGlobalSavedData.h"

#include <string>
#include <vector>

// What all players of a hidden-object game share. It takes the place of znCGlobalSavedData: both instanceGet() answer
// the same object. The table of high scores comes from the application's settings and is not stored.
class znCHogGlobalSavedData : public znCGlobalSavedData
{
public:
    // A second call logs "Already created znCHogGlobalSavedData.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCHogGlobalSavedData* instanceGet();
    static void destroy();

    void defaultsSet() override;

    s32 highScoreCountGet() const { return static_cast<s32>(mHighScores.size()); }
    // From the highest down; 0 and the empty text behind the end.
    s32 highScoreGet(s32 pIndex) const;
    std::string highScoreNameGet(s32 pIndex) const;

private:
    struct HighScore
    {
        s32 mScore = 0;
        std::string mName;
    };

    znCHogGlobalSavedData() = default;
    // Rows without a score log "Expected a highScore%d value in appSettings.txt\n" and stand all the same.
    void highScoresInitialise();
    HighScore rowGet(s32 pIndex) const;

    std::vector<HighScore> mHighScores; // highest first
};

#endif
