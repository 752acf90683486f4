#ifndef ZNAPPCORE_IMPL_PLATFORM_ZNCAUDIOMANAGER_H
#define ZNAPPCORE_IMPL_PLATFORM_ZNCAUDIOMANAGER_H

#include "media/sound/CIwResHandlerWAV.h"
#include "znappcore/src/znCCachedSoundEffect.h"
#include "znappcore/znCUniqueId.h"
#include "znappcore/znIAudioManager.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

// Music through the platform's audio player, effects through the media layer's mixer.
class znCAudioManager : public znIAudioManager
{
public:
    znCAudioManager();
    ~znCAudioManager() override;

    void update(s32 pDeltaMs) override;
    void masterVolumeSet(float pVolume) override;
    void musicPlay(const znCResourceName& pName) override;
    const std::string& musicNameGet() const override { return mMusicName; }
    void musicStop() override;
    void musicVolumeSet(float pVolume) override;
    void effectPlay(const znCResourceName& pName, bool pLoop) override;
    void effectsVolumeSet(float pVolume) override;
    void effectsClear() override;
    void pause() override;
    void resume() override;

private:
    // A play and the effect that it is of; the play is null in a free slot. Neither is owned.
    typedef std::pair<CIwSoundInst*, const znCCachedSoundEffect*> Instance;

    static void effectLoopCb(CIwSoundInst* pInstance, void* pUserData);
    static void effectCompleteCb(CIwSoundInst* pInstance, void* pUserData);
    const znCCachedSoundEffect* effectGet(const znCResourceName& pName); // null if there is no such file
    Instance* instanceFind(const CIwSoundInst* pInstance);
    // The slot of a play that has ended; logs "Not found a record of this sound instance.\n" without one.
    Instance* endedInstanceFind(const CIwSoundInst* pInstance);

    std::map<znCUniqueId, std::unique_ptr<znCCachedSoundEffect>> mEffectCache; // by file name
    std::vector<Instance> mInstances;
    CIwResHandlerWAV mWavHandler;
    std::string mMusicName;
    float mMasterVolume = 1.0f;
    float mMusicVolume = 1.0f;
    float mEffectsVolume = 1.0f;
};

#endif
