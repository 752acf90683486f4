#include "media/sound/CIwSoundManager.h"

#include "zncore/debug/znIDebug.h"

#include <algorithm>

namespace
{
CIwSoundManager* sInstance = nullptr; // deleted by destroy()
}

void CIwSoundManager::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created CIwSoundManager.\n");
    delete sInstance;
    sInstance = new CIwSoundManager();
}

CIwSoundManager* CIwSoundManager::instanceGet()
{
    return sInstance;
}

void CIwSoundManager::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    delete sInstance;
    sInstance = nullptr;
}

CIwSoundManager::CIwSoundManager()
{
    if (s3eExtGetHash(S3E_SOUND_HASH, &mTable, sizeof(mTable)) != S3E_RESULT_SUCCESS)
        mTable = s3eSound{};
    if (isAvailable())
        mTable.endCallbackSet(endCb, this);
}

CIwSoundManager::~CIwSoundManager()
{
    if (isAvailable())
        mTable.endCallbackSet(nullptr, nullptr);
}

void CIwSoundManager::update(s32 pDeltaMs)
{
    if (!isAvailable())
        return;
    if (mVolumeChanged)
        mTable.volumeSet(mVolume);
    mVolumeChanged = false;
    mTable.update(pDeltaMs);
}

void CIwSoundManager::masterVolumeSet(s32 pVolume)
{
    const s32 volume = std::clamp(pVolume, 0, S3E_SOUND_MAX_VOLUME);
    mVolumeChanged = mVolumeChanged || volume != mVolume;
    mVolume = volume;
}

u32 CIwSoundManager::sampleCreate(const void* pBytes, u32 pSize)
{
    return isAvailable() ? mTable.sampleCreate(pBytes, pSize) : 0;
}

void CIwSoundManager::sampleFree(u32 pSample)
{
    if (!isAvailable() || pSample == 0)
        return;
    for (CIwSoundInst& instance : mInstances)
        if (instance.mPlay != 0 && instance.mSample == pSample)
            instance = CIwSoundInst();
    mTable.sampleFree(pSample);
}

CIwSoundInst* CIwSoundManager::play(u32 pSample)
{
    CIwSoundInst* instance = instanceFind(0);
    if (!isAvailable() || pSample == 0 || instance == nullptr)
        return nullptr;
    if (mVolumeChanged)
        mTable.volumeSet(mVolume);
    mVolumeChanged = false;
    const u32 play = mTable.play(pSample);
    if (play == 0)
        return nullptr;
    instance->mPlay = play;
    instance->mSample = pSample;
    return instance;
}

void CIwSoundManager::pause(const CIwSoundInst& pInstance)
{
    if (isAvailable())
        mTable.pause(pInstance.mPlay);
}

void CIwSoundManager::resume(const CIwSoundInst& pInstance)
{
    if (isAvailable())
        mTable.resume(pInstance.mPlay);
}

CIwSoundInst* CIwSoundManager::instanceFind(u32 pPlay)
{
    const auto found = std::find_if(mInstances.begin(), mInstances.end(),
                                    [pPlay](const CIwSoundInst& pInstance) { return pInstance.mPlay == pPlay; });
    return found != mInstances.end() ? &*found : nullptr;
}

s32 CIwSoundManager::endCb(void* pSystemData, void* pUserData)
{
    static_cast<CIwSoundManager*>(pUserData)->endHandle(*static_cast<const u32*>(pSystemData));
    return 0;
}

// The place is free before the callback, so that a loop can go on when all others are taken.
void CIwSoundManager::endHandle(u32 pPlay)
{
    CIwSoundInst* instance = instanceFind(pPlay);
    if (pPlay == 0 || instance == nullptr)
        return;
    const CIwSoundInst ended = *instance;
    *instance = CIwSoundInst();
    if (ended.mCallback != nullptr)
        ended.mCallback(instance, ended.mUserData);
}
