#ifndef MEDIA_SOUND_CIWSOUNDINST_H
#define MEDIA_SOUND_CIWSOUNDINST_H

#include "zncore/znTypes.h"

class CIwSoundInst;
class CIwSoundManager;

// Told inside CIwSoundManager::update when a play has run to its end. The instance may be given out again from within.
typedef void (*CIwSoundEndCallback)(CIwSoundInst* pInstance, void* pUserData);

// One play of a sample. Owned by the manager; valid until its end callback returns, or its sample goes.
class CIwSoundInst
{
public:
    void pause();
    void resume();
    void endCallbackSet(CIwSoundEndCallback pCallback, void* pUserData);

private:
    friend class CIwSoundManager;

    u32 mPlay = 0; // the mixer's number, 0 when the place is free
    u32 mSample = 0;
    CIwSoundEndCallback mCallback = nullptr;
    void* mUserData = nullptr;
};

#endif
