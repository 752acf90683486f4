#include "media/sound/CIwSoundData.h"

#include "media/sound/CIwSoundManager.h"

CIwSoundData::~CIwSoundData()
{
    if (CIwSoundManager* manager = CIwSoundManager::instanceGet())
        manager->sampleFree(mSample);
}
