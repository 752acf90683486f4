#include "tests/support/znCTestSound.h"

#include "tests/support/znCTestPlatform.h"

#include <iterator>

namespace
{
znCTestSound* sSound = nullptr; // the one that lives

u32 sampleCreate(const void* pBytes, u32 pSize)
{
    const std::string bytes(static_cast<const char*>(pBytes), pSize);
    if (bytes.rfind("bad", 0) == 0)
        return 0;
    sSound->mSamples[++sSound->mLastSample] = bytes;
    return sSound->mLastSample;
}

void sampleFree(u32 pSample)
{
    sSound->mSamples.erase(pSample);
    std::erase_if(sSound->mPlays, [pSample](const auto& pPlay) { return pPlay.second == pSample; });
}

u32 play(u32 pSample)
{
    if (static_cast<s32>(sSound->mPlays.size()) >= sSound->mChannels)
        return 0;
    sSound->mPlays[++sSound->mLastPlay] = pSample;
    return sSound->mLastPlay;
}

void stop(u32 pPlay)
{
    sSound->mPlays.erase(pPlay);
}

void pause(u32 pPlay)
{
    sSound->mPaused.insert(pPlay);
}

void resume(u32 pPlay)
{
    sSound->mPaused.erase(pPlay);
}

void volumeSet(s32 pVolume)
{
    sSound->mVolume = pVolume;
}

void endCallbackSet(s3eCallback pCallback, void* pUserData)
{
    sSound->mEndCallback = pCallback;
    sSound->mEndUserData = pUserData;
}

void update(s32)
{
    std::vector<u32> ending;
    ending.swap(sSound->mEnding);
    for (u32 number : ending)
        if (sSound->mPlays.erase(number) != 0 && sSound->mEndCallback != nullptr)
            sSound->mEndCallback(&number, sSound->mEndUserData);
}
} // namespace

znCTestSound::znCTestSound()
{
    sSound = this;
    const s3eSound table = {sampleCreate, sampleFree, play, stop, pause, resume, volumeSet, endCallbackSet, update};
    znCTestPlatform::instanceGet()->extensionSet(S3E_SOUND_HASH, &table, sizeof(table));
}

znCTestSound::~znCTestSound()
{
    sSound = nullptr;
}
