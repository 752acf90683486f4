#include "znhogcore/src/znCHogUserSavedData.h"

#include "zncore/debug/znIDebug.h"
#include "zncore/znNCoreUtils.h"

void znCHogUserSavedData::create()
{
    ZN_ASSERT(!existsGet(), "Already created znCHogUserSavedData.\n");
    instanceSet(new znCHogUserSavedData());
}

znCHogUserSavedData* znCHogUserSavedData::instanceGet()
{
    return dynamic_cast<znCHogUserSavedData*>(znCUserSavedData::instanceGet());
}

void znCHogUserSavedData::destroy()
{
    znCUserSavedData::destroy();
}

void znCHogUserSavedData::defaultsSet()
{
    znCUserSavedData::defaultsSet();
    boolSet(MALE, false);
    boolSet(CASUAL, true);
    for (const char* counter : {LOST_AND_FOUND_COUNT, TRASH_COUNT, HINT_FREE_STREAK, MINIGAME_COUNT, PLAY_TIME})
        s32Set(counter, 0);
}

void znCHogUserSavedData::profileInitialise()
{
    reset();
    progressClear();
}

void znCHogUserSavedData::progressClear()
{
    keysContainingRemove(LEVEL_STATE);
    mapLevelSet("");
    currentLevelSet("");
}

bool znCHogUserSavedData::levelVisitedGet(const std::string& pLevel) const
{
    return keyExistsGet(LEVEL_STATE + pLevel);
}

std::string znCHogUserSavedData::levelStateGet(const std::string& pLevel) const
{
    return strGet(LEVEL_STATE + pLevel);
}

void znCHogUserSavedData::levelStateSet(const std::string& pLevel, const std::string& pState)
{
    strSet(LEVEL_STATE + pLevel, pState);
}

void znCHogUserSavedData::playTimeAdd(s32 pMs)
{
    s32Set(PLAY_TIME, znNCoreUtils::s32Saturate(s64(s32Get(PLAY_TIME)) + pMs));
}

void znCHogUserSavedData::counterIncrement(const std::string& pKey)
{
    s32Set(pKey, znNCoreUtils::s32Saturate(s64(s32Get(pKey)) + 1));
}
