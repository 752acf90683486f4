#ifndef MEDIA_SOUND_CIWRESHANDLERWAV_H
#define MEDIA_SOUND_CIWRESHANDLERWAV_H

#include "media/sound/CIwSoundData.h"

#include <memory>

class znCResourceName;

// Builds samples from WAV files.
class CIwResHandlerWAV
{
public:
    // The sample of a file. One that can't be read or is no sound logs "Sound %s can't be played.\n" and gives a silent
    // one; without a mixer nothing is logged.
    std::unique_ptr<CIwSoundData> build(const znCResourceName& pName) const;
};

#endif
