#ifndef ZNAPPCORE_SRC_ZNCGLOBALSAVEDDATA_H
#define ZNAPPCORE_SRC_ZNCGLOBALSAVEDDATA_H

#include "znappcore/znISavedData.h"
#include "zncore/znCResourceName.h"

// What all players share: who they are and who is playing. A singleton, filled and written by znCProfileManager.
class znCGlobalSavedData : public znISavedData
{
public:
    static constexpr s32 PROFILE_NONE = -1;

    // Makes the one instance with its defaults. A second call logs "Already created znCGlobalSavedData.\n" and starts
    // anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCGlobalSavedData* instanceGet();
    static void destroy();

    void defaultsSet() override;

    s32 profileCountGet() const;
    void profileCountSet(s32 pCount);
    s32 currentProfileGet() const; // PROFILE_NONE without a player
    void currentProfileSet(s32 pIndex);
    // Of a player that doesn't exist both log, and answer what stands under the key all the same.
    std::string profileNameGet(s32 pIndex) const;
    znCResourceName profileFileNameGet(s32 pIndex) const;
    void profileSet(s32 pIndex, const std::string& pName, const std::string& pFileName);
    // The player's file name as it is stored; empty if there is none.
    std::string profileFileTextGet(s32 pIndex) const;
    // Leaves out players without a file, gives those without a name that of their file, and has the first one play if
    // a player plays who doesn't exist. Whatever it mends is in the log.
    void profilesMend();

protected:
    znCGlobalSavedData() = default;
    static bool existsGet();
    // Makes pInstance, a derived class's, the one instance, and fills it; destroy() deletes it.
    static void instanceSet(znCGlobalSavedData* pInstance);
    bool wholeGet() const override; // all players have their files

private:
    bool profileExists(s32 pIndex) const { return pIndex >= 0 && pIndex < profileCountGet(); }
};

#endif
