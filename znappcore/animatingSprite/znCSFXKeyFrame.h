#ifndef ZNAPPCORE_ANIMATINGSPRITE_ZNCSFXKEYFRAME_H
#define ZNAPPCORE_ANIMATINGSPRITE_ZNCSFXKEYFRAME_H

#include "znappcore/animatingSprite/znIKeyFrame.h"
#include "zncore/znCResourceName.h"

// Plays a sound once.
class znCSFXKeyFrame final : public znIKeyFrame
{
public:
    explicit znCSFXKeyFrame(const znCResourceName& pName) : znIKeyFrame(0), mName(pName) {}

    void execute(znCAnimatingSprite& pSprite) const override;

private:
    znCResourceName mName;
};

#endif
