#ifndef ZNAPPCORE_SRC_ZNCSCREENFADE_H
#define ZNAPPCORE_SRC_ZNCSCREENFADE_H

#include "znappcore/components/znCScreenFadeComponent.h"
#include "znappcore/src/znCEntity.h"

// Covers the whole canvas with black and takes it away again, and the sound with it: between any two screens lies a
// fadeOut() and a fadeIn(). It starts covered.
//
// A singleton that hangs under the display and dies with the tree.
class znCScreenFade : public znCEntity
{
public:
    // Sent through znCGuiMessageDispatcher when the screen is all covered or all open, and two frames have shown it so;
    // empty data.
    static constexpr znCUniqueId FADE_OUT_COMPLETE{"FadeOutComplete"};
    static constexpr znCUniqueId FADE_IN_COMPLETE{"FadeInComplete"};

    ~znCScreenFade() override;

    // A second call logs "Already created znCScreenFade.\n" and changes nothing.
    static void create();
    // Logs "Not created.\n" and answers null without an instance.
    static znCScreenFade* instanceGet();

    // Closes or opens the screen, pMs for the whole way, from where it stands. One that is called during another turns
    // it round; only the later one's message is sent.
    void fadeOut(s32 pMs);
    void fadeIn(s32 pMs);

    void update(s32 pDeltaMs) override;

private:
    znCScreenFade();

    void fadeStart(s32 pMs, float pDirection);
    void limitHold(float pLimit, const znCUniqueId& pMessage);

    znCScreenFadeComponent* mComponent = nullptr; // owned by the entity
    znCColour mColour;
    float mFadeAlpha = 1.0f; // 0 open, 1 covered
    float mFadeSpeed = 0.0f; // a millisecond; 0 rests
    s32 mFadeHoldCount = 0;  // frames left at the limit
};

#endif
