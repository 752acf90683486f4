#ifndef MEDIA_SOUND_CIWSOUNDSPEC_H
#define MEDIA_SOUND_CIWSOUNDSPEC_H

class CIwSoundData;
class CIwSoundInst;

// How a sample is played. Refers to the sample, which must outlive it.
class CIwSoundSpec
{
public:
    explicit CIwSoundSpec(const CIwSoundData& pData) : mData(&pData) {}

    // Starts a play; null when no channel is free, for a silent sample and without a mixer.
    CIwSoundInst* play() const;

private:
    const CIwSoundData* mData;
};

#endif
