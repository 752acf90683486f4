#include "znappcore/src/znCProfileManager.h"

#include "media/znNFonts.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCSoftwareCursor.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znIFile.h"

#include <memory>

namespace
{
constexpr char CHEAT_NAME[] = "0bkvnqd0"; // the player of this name may look behind the curtain

std::unique_ptr<znCProfileManager> sInstance;

znCGlobalSavedData& global()
{
    return *znCGlobalSavedData::instanceGet();
}

znCUserSavedData& user()
{
    return *znCUserSavedData::instanceGet();
}

// False if there is a file that can't be read.
bool savedLoad(znISavedData& pTable, const znCResourceName& pFile)
{
    const bool readable = pTable.savedFileLoad(pFile) != znCVariableTable::STATUS_READ_FAILED;
    if (!readable)
        ZN_LOG("The saved file %s can't be read; nothing is written over it.\n", pFile.nameGet().c_str());
    return readable;
}

void guiMessageSend(const znCUniqueId& pType)
{
    znCGuiMessageDispatcher::instanceGet()->messageSend(pType, znCEmptyMessageData::sharedGet());
}
} // namespace

void znCProfileManager::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCProfileManager.\n");
    sInstance.reset();
    sInstance.reset(new znCProfileManager());
    sInstance->start();
}

znCProfileManager* znCProfileManager::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCProfileManager::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    if (sInstance == nullptr)
        return;
    sInstance->dataSave();
    sInstance.reset();
}

znCProfileManager::znCProfileManager() : mGlobalFile("global.txt", znCResourceName::USER_DATA) {}

znCProfileManager::~znCProfileManager()
{
    znCGlobalSavedData::destroy();
    znCUserSavedData::destroy();
}

// The select step must not save the user table, which is still empty, over the player's file: so there is no current
// player while it runs.
void znCProfileManager::start()
{
    mGlobalReadable = savedLoad(global(), mGlobalFile);
    global().profilesMend();
    const s32 index = global().currentProfileGet();
    global().currentProfileSet(znCGlobalSavedData::PROFILE_NONE);
    if (index == znCGlobalSavedData::PROFILE_NONE)
        settingsApply();
    else
        profileSelect(index);
    mUserChanges = user().changeCountGet();
    mGlobalChanges = global().changeCountGet();
}

bool znCProfileManager::profileExists(s32 pIndex) const
{
    const bool exists = pIndex >= 0 && pIndex < global().profileCountGet();
    ZN_ASSERT(exists, "There is no player %d.\n", pIndex);
    return exists;
}

bool znCProfileManager::profileNameIsFreeGet(const std::string& pName) const
{
    for (s32 i = 0; i < global().profileCountGet(); ++i)
        if (global().profileNameGet(i) == pName)
            return false;
    return true;
}

void znCProfileManager::profileSelect(s32 pIndex)
{
    if (!profileExists(pIndex))
        return;
    userSave();
    global().currentProfileSet(pIndex);
    user().clear();
    mUserReadable = savedLoad(user(), global().profileFileNameGet(pIndex));
    mUserChanges = user().changeCountGet();
    globalSave();
    settingsApply();
}

void znCProfileManager::profileCreate(const std::string& pName)
{
    userSave();
    const s32 count = global().profileCountGet();
    if (count > 0)
        settingsCapture();
    const std::string fileName = fileNameFreeGet();
    global().profileSet(count, pName, fileName);
    // A file that a deleted player left must not stand in for this player's one day.
    if (mGlobalReadable)
        znIFile::fileDelete(znCResourceName(fileName, znCResourceName::USER_DATA));
    user().profileInitialise();
    if (mMusicVolume != 0.0f)
        settingsHandOn();
    mUserReadable = true;
    global().currentProfileSet(count);
    global().profileCountSet(count + 1);
    if (pName == CHEAT_NAME)
        user().boolSet(znCUserSavedData::CHEAT, true);
    dataSave();
    settingsCapture();
    guiMessageSend(PROFILE_CREATION_COMPLETE);
    slotsChangedSend();
}

void znCProfileManager::profileDelete(s32 pIndex)
{
    if (!profileExists(pIndex))
        return;
    settingsCapture();
    const znCResourceName file = global().profileFileNameGet(pIndex);
    const s32 current = global().currentProfileGet();
    if (pIndex == current)
    {
        global().currentProfileSet(znCGlobalSavedData::PROFILE_NONE);
        user().reset();
    }
    else if (pIndex < current)
        global().currentProfileSet(current - 1);
    for (s32 i = pIndex; i + 1 < global().profileCountGet(); ++i)
        global().profileSet(i, global().profileNameGet(i + 1), global().profileFileTextGet(i + 1));
    global().profileCountSet(global().profileCountGet() - 1);
    // The file goes only when nothing names it any more: a player is there whole, or not at all.
    if (globalSave())
        znIFile::fileDelete(file);
    slotsChangedSend();
}

// The player's file comes first: a crash between the two leaves a global file that names only files that are there.
void znCProfileManager::dataSave()
{
    userSave();
    globalSave();
}

void znCProfileManager::changesSave()
{
    if (user().changeCountGet() != mUserChanges)
        userSave();
    if (global().changeCountGet() != mGlobalChanges)
        globalSave();
}

void znCProfileManager::userSave()
{
    mUserChanges = user().changeCountGet();
    if (userSavable())
        user().fileSave(global().profileFileNameGet(global().currentProfileGet()));
}

bool znCProfileManager::globalSave()
{
    mGlobalChanges = global().changeCountGet();
    return mGlobalReadable && global().fileSave(mGlobalFile);
}

// Without the list of players nobody knows whose file is whose.
bool znCProfileManager::userSavable() const
{
    return mGlobalReadable && mUserReadable && global().currentProfileGet() != znCGlobalSavedData::PROFILE_NONE;
}

void znCProfileManager::settingsCapture()
{
    mMusicVolume = user().musicVolumeGet();
    mEffectsVolume = user().effectsVolumeGet();
    mMuteAll = user().muteAllGet();
    mCustomCursors = user().customCursorsGet();
    mFullScreen = user().fullScreenGet();
}

void znCProfileManager::settingsHandOn()
{
    user().f32Set(znCUserSavedData::MUSIC_VOLUME, mMusicVolume);
    user().f32Set(znCUserSavedData::EFFECTS_VOLUME, mEffectsVolume);
    user().boolSet(znCUserSavedData::MUTE_ALL, mMuteAll);
    user().boolSet(znCUserSavedData::CUSTOM_CURSORS, mCustomCursors);
    user().boolSet(znCUserSavedData::FULL_SCREEN, mFullScreen);
}

void znCProfileManager::settingsApply()
{
    znIAudioManager* audio = znIAudioManager::instanceGet();
    audio->musicVolumeSet(user().musicVolumeGet());
    audio->effectsVolumeSet(user().effectsVolumeGet());
    audio->masterVolumeSet(user().muteAllGet() ? 0.0f : 1.0f);
    znCSoftwareCursor::enabledSet(user().customCursorsGet());
    textSizeApply(user().textSizeGet());
    const bool fullScreen = user().fullScreenGet();
    if (znIDisplay::existsGet() && znIDisplay::instanceGet()->isFullScreenGet() != fullScreen)
        znIDisplay::instanceGet()->screenModeSet(fullScreen);
}

void znCProfileManager::textSizeApply(s32 pSize)
{
    constexpr float STEP = 0.2f;
    znNFonts::textScaleSet(1.0f + STEP * static_cast<float>(pSize));
}

std::string znCProfileManager::fileNameFreeGet() const
{
    for (s32 number = 0;; ++number)
    {
        const std::string name = "user" + std::to_string(number) + ".txt";
        bool used = false;
        for (s32 i = 0; i < global().profileCountGet() && !used; ++i)
            used = global().profileFileTextGet(i) == name;
        if (!used)
            return name;
    }
}

void znCProfileManager::slotsChangedSend()
{
    guiMessageSend(PROFILE_SLOTS_HAVE_CHANGED);
}
