#include "znappcore/src/znCUserSavedData.h"

#include "zncore/debug/znIDebug.h"

#include <memory>

#include <algorithm>

namespace
{
// The settings of a new player.
constexpr float VOLUME = 0.75f;
constexpr bool MUTED = false;
constexpr bool FULL = true;
constexpr bool CURSORS = true;

std::unique_ptr<znCUserSavedData> sInstance;
} // namespace

void znCUserSavedData::create()
{
    ZN_ASSERT(!existsGet(), "Already created znCUserSavedData.\n");
    instanceSet(new znCUserSavedData());
}

bool znCUserSavedData::existsGet()
{
    return sInstance != nullptr;
}

void znCUserSavedData::instanceSet(znCUserSavedData* pInstance)
{
    sInstance.reset(pInstance);
    sInstance->reset();
    sInstance->progressClear();
}

znCUserSavedData* znCUserSavedData::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCUserSavedData::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

void znCUserSavedData::defaultsSet()
{
    f32Set(MUSIC_VOLUME, VOLUME);
    f32Set(EFFECTS_VOLUME, VOLUME);
    boolSet(MUTE_ALL, MUTED);
    boolSet(FULL_SCREEN, FULL);
    boolSet(CUSTOM_CURSORS, CURSORS);
    boolSet(CHEAT, false);
    s32Set(CURRENCY, 0);
}

float znCUserSavedData::musicVolumeGet() const
{
    return f32Get(MUSIC_VOLUME, VOLUME);
}

float znCUserSavedData::effectsVolumeGet() const
{
    return f32Get(EFFECTS_VOLUME, VOLUME);
}

bool znCUserSavedData::muteAllGet() const
{
    return boolGet(MUTE_ALL, MUTED);
}

bool znCUserSavedData::fullScreenGet() const
{
    return boolGet(FULL_SCREEN, FULL);
}

bool znCUserSavedData::customCursorsGet() const
{
    return boolGet(CUSTOM_CURSORS, CURSORS);
}

s32 znCUserSavedData::textSizeGet() const
{
    return std::clamp(s32Get(TEXT_SIZE), 0, TEXT_SIZE_MAX);
}
