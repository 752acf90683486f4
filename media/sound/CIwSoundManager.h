#ifndef MEDIA_SOUND_CIWSOUNDMANAGER_H
#define MEDIA_SOUND_CIWSOUNDMANAGER_H

#include "media/sound/CIwSoundInst.h"
#include "zncore/impl/platform/s3eExtensions.h"

#include <array>

// The mixer of short sounds, on the loader's sound table. Without that table every operation is harmless and silent.
//
// A singleton between create and destroy; instanceGet answers null outside. The plays belong to it.
class CIwSoundManager
{
public:
    static void create();
    static CIwSoundManager* instanceGet();
    static void destroy();
    CIwSoundManager(const CIwSoundManager&) = delete;
    CIwSoundManager& operator=(const CIwSoundManager&) = delete;
    ~CIwSoundManager();

    bool isAvailable() const { return mTable.update != nullptr; }
    // End callbacks run in here and nowhere else.
    void update(s32 pDeltaMs);
    void masterVolumeSet(s32 pVolume); // 0 to S3E_SOUND_MAX_VOLUME, applied at the next update

    u32 sampleCreate(const void* pBytes, u32 pSize);
    void sampleFree(u32 pSample);
    CIwSoundInst* play(u32 pSample);
    void pause(const CIwSoundInst& pInstance);
    void resume(const CIwSoundInst& pInstance);

private:
    CIwSoundManager();
    static s32 endCb(void* pSystemData, void* pUserData);
    void endHandle(u32 pPlay);
    CIwSoundInst* instanceFind(u32 pPlay);

    s3eSound mTable{};
    std::array<CIwSoundInst, S3E_SOUND_CHANNELS> mInstances; // those with play number 0 are free
    s32 mVolume = S3E_SOUND_MAX_VOLUME;
    bool mVolumeChanged = true;
};

#endif
