#ifndef ZNAPPCORE_SRC_ZNCUSERSAVEDDATA_H
#define ZNAPPCORE_SRC_ZNCUSERSAVEDDATA_H

#include "znappcore/znISavedData.h"

// The settings and the state of the current player. A singleton, filled and written by znCProfileManager.
class znCUserSavedData : public znISavedData
{
public:
    // Keys, with the values that a new table holds.
    static constexpr const char* MUSIC_VOLUME = "MusicVolume";     // float, 0 to 1; 0.75
    static constexpr const char* EFFECTS_VOLUME = "EffectsVolume"; // float, 0 to 1; 0.75
    static constexpr const char* MUTE_ALL = "MuteAll";             // bool; false
    static constexpr const char* FULL_SCREEN = "FullScreen";       // bool; true
    static constexpr const char* CUSTOM_CURSORS = "CustomCursors"; // bool; true
    static constexpr const char* CHEAT = "cheat";                  // bool; false
    static constexpr const char* CURRENCY = "currency";            // s32; 0

    // A choice that no new table holds: s32, 0 (letters as they are drawn) to TEXT_SIZE_MAX (the largest).
    static constexpr const char* TEXT_SIZE = "TextSize";
    static constexpr s32 TEXT_SIZE_MAX = 2;

    // Makes the one instance with its defaults. A second call logs "Already created znCUserSavedData.\n" and starts
    // anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCUserSavedData* instanceGet();
    static void destroy();

    // The settings that the framework itself follows. A player whose file lacks one gets what a new player has.
    float musicVolumeGet() const;
    float effectsVolumeGet() const;
    bool muteAllGet() const;
    bool fullScreenGet() const;
    bool customCursorsGet() const;
    s32 textSizeGet() const; // limited to its range

    void defaultsSet() override;
    virtual void profileInitialise() {} // a new player begins with this table
    virtual void progressClear() {}     // a new game begins

protected:
    znCUserSavedData() = default;
    static bool existsGet();
    // Makes pInstance, a derived class's, the one instance, and fills it; destroy() deletes it.
    static void instanceSet(znCUserSavedData* pInstance);
};

#endif
