#include "media/sound/CIwSoundInst.h"

#include "media/sound/CIwSoundManager.h"

void CIwSoundInst::pause()
{
    CIwSoundManager::instanceGet()->pause(*this);
}

void CIwSoundInst::resume()
{
    CIwSoundManager::instanceGet()->resume(*this);
}

void CIwSoundInst::endCallbackSet(CIwSoundEndCallback pCallback, void* pUserData)
{
    mCallback = pCallback;
    mUserData = pUserData;
}
