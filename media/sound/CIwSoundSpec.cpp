#include "media/sound/CIwSoundSpec.h"

#include "media/sound/CIwSoundData.h"
#include "media/sound/CIwSoundManager.h"

CIwSoundInst* CIwSoundSpec::play() const
{
    CIwSoundManager* manager = CIwSoundManager::instanceGet();
    return manager != nullptr ? manager->play(mData->sampleGet()) : nullptr;
}
