#include "znappcore/animatingSprite/znCSFXKeyFrame.h"

#include "znappcore/znIAudioManager.h"

void znCSFXKeyFrame::execute(znCAnimatingSprite&) const
{
    if (znIAudioManager* audio = znIAudioManager::instanceGet())
        audio->effectPlay(mName, false);
}
