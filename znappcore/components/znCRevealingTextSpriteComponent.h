#ifndef ZNAPPCORE_COMPONENTS_ZNCREVEALINGTEXTSPRITECOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCREVEALINGTEXTSPRITECOMPONENT_H

#include "znappcore/components/znCTextSpriteComponent.h"

// A text that appears letter by letter, as from a typewriter.
//
// Further settings: "delayedStart" (exactly "true": nothing appears before trigger()), "msPerChar" (1000).
class znCRevealingTextSpriteComponent : public znCTextSpriteComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCRevealingTextSpriteComponent"};

    explicit znCRevealingTextSpriteComponent(znCEntity* pEntity) : znCTextSpriteComponent(pEntity) {}
    ~znCRevealingTextSpriteComponent() override = default;

    void update(s32 pDeltaMs) override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    // Starts anew with this text. textGet() is what shows of it.
    void textSet(const std::string& pText) override;
    virtual std::string fullTextGet() const; // the whole text, whatever shows of it
    using znCTextSpriteComponent::textSet;

    // Nothing shows; starts at once unless the start is delayed.
    void reset();
    // Starts anew; logs "Already running." if it runs.
    void trigger();
    bool runningGet() const { return mRunning; }   // started, and finished perhaps
    bool finishedGet() const { return mFinished; } // the update after the last letter

private:
    void shownClear();
    void characterTake();

    s32 mMsPerChar = 250;
    bool mDelayedStart = false;
    bool mRunning = true;
    bool mFinished = false;
    std::string mFullText;
    std::string mShownText;
    s32 mReadIndex = 0; // byte of mFullText
    s32 mAccumulatedMs = 0;
};

#endif
