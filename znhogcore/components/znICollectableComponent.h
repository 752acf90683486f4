#ifndef ZNHOGCORE_COMPONENTS_ZNICOLLECTABLECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNICOLLECTABLECOMPONENT_H

// Base of everything that can be found. Somebody activates it, something triggers its collection, the effects of the
// collection play, and with the last effect's report it is collected, which it announces by
// "CollectableEntityCollected".
//
//     inactive -> active -> collecting -> collected; a reset of the level leads back to inactive
//
// Without effects the trigger itself collects. If the level ends while effects play, the entity is collected at once
// and their reports no longer count; a level that was saved while they played starts them again. A bonus item that is
// collected ignores resets.
//
// The entity needs a znCNameComponent.

#include "znappcore/znIMessageListenerComponent.h"

class znICollectableComponent : public znIMessageListenerComponent
{
public:
    enum State : s32
    {
        STATE_INACTIVE = 0,   // not on offer
        STATE_ACTIVE = 1,     // can be collected
        STATE_COLLECTING = 2, // effects are running
        STATE_COLLECTED = 3,
    };

    using znIMessageListenerComponent::znIMessageListenerComponent;

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void mySave(std::string& pOut) override; // the state
    void myLoad(std::string& pIn) override;  // what is no state counts as the nearest one

    // The collection has ended: announces it and starts "particles/PAR-" + key + "-post.txt" in its place, if there is
    // such a file.
    virtual void collectionComplete();
    // Starts the collection: hides the entity, unless it stays on view, and starts its effects. In a state other than
    // active it logs and does so all the same.
    virtual void collectionProcessTrigger();
    virtual void activateDo();
    virtual void resetDo();

    // From inactive to active; in another state it logs "Already activated.\n" and goes on.
    void activate();
    // The entity stays on view once collected; nothing happens on one with znCHotComponent. pMarkerFile: animation
    // shown over it then, may be empty.
    void postCollectionVisibleSet(const std::string& pMarkerFile);

    bool inactiveGet() const { return mState == STATE_INACTIVE; }
    bool collectionStartedGet() const { return mState > STATE_ACTIVE; }
    bool collectingGet() const { return mState == STATE_COLLECTING; }

protected:
    void collectedSet();

    s32 mState = STATE_INACTIVE;
    s32 mEffectsPending = 0;             // effects that have yet to report
    bool mFinishedEarly = false;         // the level ended while effects ran
    bool mPostCollectionVisible = false; // on view when collected
    std::string mMarkerFile;

    std::string keyGet() const; // of the entity's name

private:
    void postParticleStart();
    void markerStart();
    std::string postParticleFileGet() const; // also the name of the entity
    std::string markerNameGet() const;
    znCEntity* siblingCreate(const std::string& pName);
    void siblingDestroy(const std::string& pName);
    bool effectReportProcess(const std::string& pNodeName);
    void reset();
    bool exemptFromResetGet() const;
};

#endif
