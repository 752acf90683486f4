#ifndef ZNAPPCORE_SRC_ZNCUSERSAVEDDATA_H
#define ZNAPPCORE_SRC_ZNCUSERSAVEDDATA_H

#include "zncore/src/znCVariableTable.h"

// The settings and the state of the current player. A singleton.
class znCUserSavedData : public znCVariableTable
{
public:
    // Keys.
    static constexpr const char* MUSIC_VOLUME = "MusicVolume";     // float, 0 to 1; 0.75
    static constexpr const char* EFFECTS_VOLUME = "EffectsVolume"; // float, 0 to 1; 0.75
    static constexpr const char* MUTE_ALL = "MuteAll";             // bool; false
    static constexpr const char* FULL_SCREEN = "FullScreen";       // bool; true
    static constexpr const char* CUSTOM_CURSORS = "CustomCursors"; // bool; true
    static constexpr const char* CHEAT = "cheat";                  // bool; false
    static constexpr const char* CURRENCY = "currency";            // s32; 0

    virtual ~znCUserSavedData() = default;

    // Makes the one instance with all values at their defaults. A second call logs "Already created
    // znCUserSavedData.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCUserSavedData* instanceGet();
    static void destroy();

    virtual void defaultsSet();

protected:
    znCUserSavedData() = default;
};

#endif
