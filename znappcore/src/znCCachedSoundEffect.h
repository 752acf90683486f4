#ifndef ZNAPPCORE_SRC_ZNCCACHEDSOUNDEFFECT_H
#define ZNAPPCORE_SRC_ZNCCACHEDSOUNDEFFECT_H

#include "media/sound/CIwSoundData.h"
#include "media/sound/CIwSoundSpec.h"

#include <memory>

class CIwSoundInst;

// The sample of one effect file. Its plays stop when it goes.
class znCCachedSoundEffect
{
public:
    explicit znCCachedSoundEffect(std::unique_ptr<CIwSoundData> pSample) : mSample(std::move(pSample)), mSpec(*mSample)
    {
    }
    ~znCCachedSoundEffect() { mDestroying = true; }
    znCCachedSoundEffect(const znCCachedSoundEffect&) = delete;
    znCCachedSoundEffect& operator=(const znCCachedSoundEffect&) = delete;

    // Null when no channel is free, and while this goes.
    CIwSoundInst* play() const { return mDestroying ? nullptr : mSpec.play(); }

private:
    std::unique_ptr<CIwSoundData> mSample;
    CIwSoundSpec mSpec;
    bool mDestroying = false;
};

#endif
