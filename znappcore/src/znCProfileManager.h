#ifndef ZNAPPCORE_SRC_ZNCPROFILEMANAGER_H
#define ZNAPPCORE_SRC_ZNCPROFILEMANAGER_H

#include "znappcore/znCUniqueId.h"
#include "zncore/znCResourceName.h"

#include <string>

// Moves the players' data between the two saved tables and the disk: "global.txt" names the players, and each has a
// file "user" + number + ".txt". Keeps the settings that a new player inherits.
//
// A singleton, made when both saved tables exist; its end writes them once more and destroys them. A damaged file is
// replaced by the one saved before it; a failed read leaves a table empty or as it was, a failed write is in the log
// and leaves the file before it. At no moment do the files name a player whose file was deleted. A file that is there
// and can't be read is never written over: that player's progress, or with the global file nothing at all, isn't saved.
class znCProfileManager
{
public:
    // Through znCGuiMessageDispatcher, empty data.
    static constexpr znCUniqueId PROFILE_CREATION_COMPLETE{"ProfileCreationComplete"};
    static constexpr znCUniqueId PROFILE_SLOTS_HAVE_CHANGED{"ProfileSlotsHaveChanged"};

    // Loads the global file and the current player's, and applies that player's settings.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCProfileManager* instanceGet();
    static void destroy();
    ~znCProfileManager();
    znCProfileManager(const znCProfileManager&) = delete;
    znCProfileManager& operator=(const znCProfileManager&) = delete;

    bool profileNameIsFreeGet(const std::string& pName) const; // case matters
    // Makes a player, who is the current one then, with the settings of the player before.
    void profileCreate(const std::string& pName);
    // Deletes the player's file and closes the gap. An index without a player is logged and ignored, here and below.
    void profileDelete(s32 pIndex);
    // Saves the current player and loads another.
    void profileSelect(s32 pIndex);
    // Writes the global file and, if there is one, the current player's.
    void dataSave();
    // The same for what has changed since it was last read or written. What could not be written is tried again with
    // the next change.
    void changesSave();
    // Applies the user table's settings to sound, cursor and display.
    void settingsApply();
    // Has letters shown at one of the text sizes of znCUserSavedData.
    static void textSizeApply(s32 pSize);

private:
    znCProfileManager();
    void start();
    bool profileExists(s32 pIndex) const;
    void userSave();
    bool globalSave();
    bool userSavable() const;
    void settingsCapture();
    void settingsHandOn();
    std::string fileNameFreeGet() const;
    void slotsChangedSend();

    znCResourceName mGlobalFile;
    // Settings that go from one player to the next.
    float mMusicVolume = 0.0f; // 0: none captured yet
    float mEffectsVolume = 0.0f;
    bool mMuteAll = false;
    bool mCustomCursors = true;
    bool mFullScreen = true;
    // Change counts of the tables when they were last read or written.
    u32 mUserChanges = 0;
    u32 mGlobalChanges = 0;
    bool mUserReadable = true; // the current player's file
    bool mGlobalReadable = true;
};

#endif
