#include "znhogcore/src/znCHogGlobalSavedData.h"

#include "znappcore/src/znCAppSettings.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>

namespace
{
// Keys of the application's settings, each followed by the row's number.
constexpr char HIGH_NAME[] = "highName";
constexpr char HIGH_SCORE[] = "highScore";
constexpr s32 SCORE_MISSING = -1;
} // namespace

void znCHogGlobalSavedData::create()
{
    ZN_ASSERT(!existsGet(), "Already created znCHogGlobalSavedData.\n");
    instanceSet(new znCHogGlobalSavedData());
}

znCHogGlobalSavedData* znCHogGlobalSavedData::instanceGet()
{
    return dynamic_cast<znCHogGlobalSavedData*>(znCGlobalSavedData::instanceGet());
}

void znCHogGlobalSavedData::destroy()
{
    znCGlobalSavedData::destroy();
}

void znCHogGlobalSavedData::defaultsSet()
{
    znCGlobalSavedData::defaultsSet();
    highScoresInitialise();
}

void znCHogGlobalSavedData::highScoresInitialise()
{
    mHighScores.clear();
    const znCAppSettings& settings = *znCAppSettings::instanceGet();
    for (s32 i = 0; settings.keyExistsGet(HIGH_NAME + std::to_string(i)); ++i)
    {
        const s32 score = settings.s32Get(HIGH_SCORE + std::to_string(i), SCORE_MISSING);
        ZN_ASSERT(score >= 0, "Expected a highScore%d value in appSettings.txt\n", i);
        mHighScores.push_back({score, settings.strGet(HIGH_NAME + std::to_string(i))});
    }
    std::stable_sort(mHighScores.begin(), mHighScores.end(),
                     [](const HighScore& pOne, const HighScore& pOther) { return pOne.mScore > pOther.mScore; });
}

znCHogGlobalSavedData::HighScore znCHogGlobalSavedData::rowGet(s32 pIndex) const
{
    const bool stands = pIndex >= 0 && pIndex < highScoreCountGet();
    return stands ? mHighScores[static_cast<std::size_t>(pIndex)] : HighScore();
}

s32 znCHogGlobalSavedData::highScoreGet(s32 pIndex) const
{
    return rowGet(pIndex).mScore;
}

std::string znCHogGlobalSavedData::highScoreNameGet(s32 pIndex) const
{
    return rowGet(pIndex).mName;
}
