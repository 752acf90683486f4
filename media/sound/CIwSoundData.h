#ifndef MEDIA_SOUND_CIWSOUNDDATA_H
#define MEDIA_SOUND_CIWSOUNDDATA_H

#include "zncore/znTypes.h"

// One sample in the mixer, freed with this object; its plays stop then, and nobody is told of their end.
class CIwSoundData
{
public:
    // pSample: the mixer's number of the sample, 0 for none.
    explicit CIwSoundData(u32 pSample) : mSample(pSample) {}
    ~CIwSoundData();
    CIwSoundData(const CIwSoundData&) = delete;
    CIwSoundData& operator=(const CIwSoundData&) = delete;

    u32 sampleGet() const { return mSample; }

private:
    u32 mSample;
};

#endif
