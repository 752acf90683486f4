#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNIPICKLISTENTRYGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNIPICKLISTENTRYGUI_H

// Base of the slots of a pick list. A slot holds one item, which may stand for several objects of one display text,
// and the kinds of slot differ in how they show it.
//
//     free -> transition on -> shown -> transition off -> finished -> free
//
// The list fills a free slot; a find of the item's text is counted, and the last one sends the item off; the list
// counts a finished item and so frees the slot. Finds go by text, not by entity: two slots of one text count the same
// find. An item that arrives can be found as well as one that is shown.
//
// What is saved brings an item back in the state that it was in; a transition starts over.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

#include <string>
#include <vector>

class znCEntity;
class znCTextSpriteComponent;

class znIPickListEntryGui : public znIMessageListenerGuiComponent
{
public:
    enum EntryState : s32
    {
        STATE_FREE = 0,
        STATE_TRANSITION_ON = 1,  // the item is appearing
        STATE_SHOWN = 2,          // it waits for the player
        STATE_TRANSITION_OFF = 3, // it is leaving
        STATE_FINISHED = 4,       // the list has yet to count it
    };

    // What an item's first object is; settles the colour of its text.
    enum EntityType : s32
    {
        ENTITY_RANDOM = 0,
        ENTITY_HIDDEN = 1,
        ENTITY_REQUIRED = 2,
        ENTITY_TASK = 3,
    };

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override; // consumes nothing
    void update(s32 pDeltaMs) override;
    void mySave(std::string& pOut) override;
    void myLoad(std::string& pIn) override; // what is no state or type counts as the nearest one

    virtual void activateDo(const std::vector<znCEntity*>& pEntities) = 0; // the item has just been placed here
    virtual void resetDo() = 0;                                            // the slot is being cleared
    virtual bool transitionOnUpdate(s32 pDeltaMs) = 0;                     // true when the arrival is done
    virtual bool transitionOffUpdate(s32 pDeltaMs) = 0;                    // true when the departure is done
    virtual bool entityCollected() = 0; // one object of the item was found; true if that was the last
    // No more than pCount objects of the item are left to be found.
    virtual void countLimit(s32 pCount);

    // Places an item in a free slot and makes its objects collectable; sends "AddedEntry". In a state other than free
    // it logs "Already active.\n" and goes on; without an entity it logs "Expected at least one entity in the
    // vector.\n" and nothing happens. The entities stay the level's.
    void activate(const std::vector<znCEntity*>& pEntities);
    void entitiesMakeCollectable(const std::vector<znCEntity*>& pEntities);
    // Clears the slot, whatever it holds; its objects stay as they are.
    void reset();
    // Frees a slot whose item is finished and returns true.
    bool finishedConsume();
    bool freeGet() const { return mEntryState == STATE_FREE; }
    bool waitingGet() const { return mEntryState == STATE_TRANSITION_ON || mEntryState == STATE_SHOWN; }

    const std::string& textGet() const { return mText; } // the item's display text, empty when free
    // The item's objects, found again behind a load.
    void entitiesSet(const std::vector<znCEntity*>& pEntities) { mEntities = pEntities; }
    // Appends the item's objects that are yet to be found and lie in that sub-scene.
    void uncollectedEntitiesInSubSceneAddToVec(std::vector<znCEntity*>& pOut, s32 pSubSceneIndex) const;
    // By the kind of the item, as the application's settings say: "listColHidden" (ff00ffff), "listColRequired"
    // (00ffffff), "listColTask" (ffff00ff), "listColRandom" (ffffffff) for all others; "listColCollected" (000000ff)
    // once the item is found.
    void textColourSet(znCTextSpriteComponent* pTextSprite, bool pCollected) const;

protected:
    // The text component of a child of that name; null if either is missing.
    znCTextSpriteComponent* textChildFind(const char* pName) const;

    std::string mText;
    std::vector<znCEntity*> mEntities; // not owned; those of the last item until the slot is used again
    s32 mEntryState = STATE_FREE;
    s32 mEntityType = ENTITY_RANDOM;
};

#endif
