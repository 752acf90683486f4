#include "znappcore/src/znCUserSavedData.h"

#include "zncore/debug/znIDebug.h"

#include <memory>

namespace
{
std::unique_ptr<znCUserSavedData> sInstance;
}

void znCUserSavedData::create()
{
    instanceSet(new znCUserSavedData());
}

void znCUserSavedData::instanceSet(znCUserSavedData* pInstance)
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCUserSavedData.\n");
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
    f32Set(MUSIC_VOLUME, 0.75f);
    f32Set(EFFECTS_VOLUME, 0.75f);
    boolSet(MUTE_ALL, false);
    boolSet(FULL_SCREEN, true);
    boolSet(CUSTOM_CURSORS, true);
    boolSet(CHEAT, false);
    s32Set(CURRENCY, 0);
}
