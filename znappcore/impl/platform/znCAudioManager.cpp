#include "znappcore/impl/platform/znCAudioManager.h"

#include "media/sound/CIwSoundManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/impl/platform/s3e.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"

#include <algorithm>
#include <cmath>

namespace
{
std::unique_ptr<znIAudioManager> sInstance;

// On a scale from 0 to pMax. What is out of range, as in a faulty save, counts as the end of it.
s32 scaled(float pVolume, s32 pMax)
{
    return static_cast<s32>(std::fmin(std::fmax(pVolume, 0.0f), 1.0f) * static_cast<float>(pMax));
}
} // namespace

void znIAudioManager::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znIAudioManager.\n");
    sInstance.reset();
    sInstance = std::make_unique<znCAudioManager>();
}

znIAudioManager* znIAudioManager::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znIAudioManager::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

znCAudioManager::znCAudioManager()
{
    CIwSoundManager::create();
}

znCAudioManager::~znCAudioManager()
{
    effectsClear();
    musicStop();
    CIwSoundManager::destroy();
}

void znCAudioManager::update(s32 pDeltaMs)
{
    CIwSoundManager::instanceGet()->update(pDeltaMs);
}

void znCAudioManager::masterVolumeSet(float pVolume)
{
    mMasterVolume = pVolume;
    musicVolumeSet(mMusicVolume);
    effectsVolumeSet(mEffectsVolume);
}

void znCAudioManager::musicVolumeSet(float pVolume)
{
    mMusicVolume = pVolume;
    s3eAudioSetInt(S3E_AUDIO_VOLUME, scaled(pVolume * mMasterVolume, S3E_AUDIO_MAX_VOLUME));
}

void znCAudioManager::effectsVolumeSet(float pVolume)
{
    mEffectsVolume = pVolume;
    CIwSoundManager::instanceGet()->masterVolumeSet(scaled(pVolume * mMasterVolume, S3E_SOUND_MAX_VOLUME));
}

void znCAudioManager::musicPlay(const znCResourceName& pName)
{
    if (pName.nameGet() == mMusicName)
        return;
    const bool plays = s3eAudioPlay(pName.nameGet().c_str(), 0) == S3E_RESULT_SUCCESS;
    if (!plays)
        ZN_LOG("Music %s can't be played.\n", pName.nameGet().c_str());
    mMusicName = plays ? pName.nameGet() : "";
}

void znCAudioManager::musicStop()
{
    if (!mMusicName.empty())
        s3eAudioStop();
}

void znCAudioManager::effectPlay(const znCResourceName& pName, bool pLoop)
{
    const znCCachedSoundEffect* effect = effectGet(pName);
    CIwSoundInst* instance = effect != nullptr ? effect->play() : nullptr;
    if (instance == nullptr)
        return;
    if (Instance* slot = instanceFind(nullptr))
        *slot = {instance, effect};
    else
        mInstances.emplace_back(instance, effect);
    instance->endCallbackSet(pLoop ? effectLoopCb : effectCompleteCb, this);
}

// The file is looked at once: what is cached is played without asking the disk again.
const znCCachedSoundEffect* znCAudioManager::effectGet(const znCResourceName& pName)
{
    const znCUniqueId id(pName.nameGet());
    const auto cached = mEffectCache.find(id);
    if (cached != mEffectCache.end())
        return cached->second.get();
    if (!znIFile::existsGet(pName))
        return nullptr;
    return mEffectCache.emplace(id, std::make_unique<znCCachedSoundEffect>(mWavHandler.build(pName)))
        .first->second.get();
}

void znCAudioManager::effectsClear()
{
    mEffectCache.clear();
    mInstances.clear();
}

void znCAudioManager::pause()
{
    s3eAudioPause();
    for (const Instance& instance : mInstances)
        if (instance.first != nullptr)
            instance.first->pause();
}

void znCAudioManager::resume()
{
    s3eAudioResume();
    for (const Instance& instance : mInstances)
        if (instance.first != nullptr)
            instance.first->resume();
}

znCAudioManager::Instance* znCAudioManager::instanceFind(const CIwSoundInst* pInstance)
{
    const auto found = std::find_if(mInstances.begin(), mInstances.end(),
                                    [pInstance](const Instance& pSlot) { return pSlot.first == pInstance; });
    return found != mInstances.end() ? &*found : nullptr;
}

znCAudioManager::Instance* znCAudioManager::endedInstanceFind(const CIwSoundInst* pInstance)
{
    Instance* slot = instanceFind(pInstance);
    ZN_ASSERT(slot != nullptr, "Not found a record of this sound instance.\n");
    return slot;
}

void znCAudioManager::effectLoopCb(CIwSoundInst* pInstance, void* pUserData)
{
    Instance* slot = static_cast<znCAudioManager*>(pUserData)->endedInstanceFind(pInstance);
    if (slot == nullptr)
        return;
    slot->first = slot->second->play();
    if (slot->first != nullptr)
        slot->first->endCallbackSet(effectLoopCb, pUserData);
}

void znCAudioManager::effectCompleteCb(CIwSoundInst* pInstance, void* pUserData)
{
    if (Instance* slot = static_cast<znCAudioManager*>(pUserData)->endedInstanceFind(pInstance))
        slot->first = nullptr;
}
