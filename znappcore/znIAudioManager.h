#ifndef ZNAPPCORE_ZNIAUDIOMANAGER_H
#define ZNAPPCORE_ZNIAUDIOMANAGER_H

#include "zncore/znTypes.h"

#include <string>

class znCResourceName;

// The single way to make sound: one streamed music track, and any number of short effects that stay cached until
// effectsClear(). Volumes are 0 to 1; music and effects are scaled by the master volume.
//
// A singleton from start-up to shut-down. Effects that end are noticed in update() alone.
class znIAudioManager
{
public:
    // A second call logs "Already created znIAudioManager.\n" and starts anew.
    static void create();
    // Both log "Not created.\n" without an instance; instanceGet answers null then.
    static znIAudioManager* instanceGet();
    static void destroy();

    virtual void update(s32 pDeltaMs) = 0;
    virtual void masterVolumeSet(float pVolume) = 0;
    // Starts a track that repeats until another follows. The name that plays already goes on from where it is. A track
    // that can't be played is logged and leaves no name.
    virtual void musicPlay(const znCResourceName& pName) = 0;
    virtual const std::string& musicNameGet() const = 0; // empty while there is none
    // Keeps the name, so that the same track asked for again stays silent.
    virtual void musicStop() = 0;
    virtual void musicVolumeSet(float pVolume) = 0;
    // Plays a WAV file once, or again and again until effectsClear(). A missing file is silent and not logged; so is a
    // play when all channels are taken.
    virtual void effectPlay(const znCResourceName& pName, bool pLoop) = 0;
    virtual void effectsVolumeSet(float pVolume) = 0;
    // Stops all effects and forgets their files; every change of screen does this.
    virtual void effectsClear() = 0;
    virtual void pause() = 0; // music and effects
    virtual void resume() = 0;
    virtual ~znIAudioManager() = default;

protected:
    znIAudioManager() = default;
};

#endif
