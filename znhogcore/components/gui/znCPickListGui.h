#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCPICKLISTGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCPICKLISTGUI_H

// A pick list: tells the player what to find, and decides what can be found at all. It picks objects of the level by
// chance from the types that its GUI file names, makes them collectable and shows them in its slots, the children
// "pickItem0", "pickItem1", ... with a znIPickListEntryGui each. A slot whose item was found is filled again until the
// list's total has been shown; when all of it has been found, or when the level has no more such objects, the list is
// done. docs/pick-lists.md tells authors its keys and children.
//
// A list that is required for the level's end registers and reports that under the name of its entity, and answers the
// hint button, since it alone knows what is on offer.
//
// A list that was saved goes on where it stood. What a save or a change of the scene since then has left without an end
// is mended at "levelLoadComp": a list that was done reports it again, an item whose objects are gone makes way for
// another.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

#include <string>
#include <typeinfo>
#include <vector>

class znCEntity;
class znIPickListEntryGui;

class znCPickListGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCPickListGui"};

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void update(s32 pDeltaMs) override;
    void mySave(std::string& pOut) override;
    void myLoad(std::string& pIn) override;
    void myPostLoad() override; // finds the objects of the items again

    // How many items the list shows in all.
    void totalSet(s32 pTotal);
    s32 totalGet() const { return mTotal; }
    // How many items the level has for this list.
    s32 allEntitiesCount() const;
    // Whether the entity is of a kind that this list names.
    bool kindNamedGet(znCEntity& pEntity) const;
    // The slots, in number order; the list owns them.
    const std::vector<znIPickListEntryGui*>& entriesGet() const { return mEntries; }
    // The slot that holds an item of that display text; null if there is none.
    znIPickListEntryGui* entryForTextGet(const std::string& pText) const;
    // Writes found / total into the text "itemCountText", if there is one.
    void itemCountUpdate();
    // Shows another item in a free slot, or ends the list if there is no other.
    void entityAddToList();
    // Null, with "Haven't found an available gui slot.\n", if none is free.
    znIPickListEntryGui* randomAvailableSlotGet() const;
    // The first of the entities and, behind it, all others of its display text.
    std::vector<znCEntity*> entitiesWithSameTextGet(const std::vector<znCEntity*>& pEntities) const;

private:
    using Types = std::vector<const std::type_info*>;

    void entriesStore();
    static Types typesFromText(const std::string& pText);
    s32 typesCount(const Types& pTypes) const;
    static std::vector<znCEntity*> candidatesGet(const Types& pTypes);
    std::vector<znCEntity*> candidatesPick(const Types& pTypes) const;
    void entriesPoll();
    void slotsCheck();
    void listComplete();
    void completeSpriteSet(bool pActive);
    void requirementSend(const znCUniqueId& pType);
    void reset();
    void restoredMend();
    void lostItemsRelease();
    bool hintGive();

    std::vector<znCEntity*> mHinted;            // what the hint button has pointed at; not owned
    std::vector<znIPickListEntryGui*> mEntries; // in number order; owned by their entities
    Types mPriorityTypes;                       // shown first
    Types mRandomTypes;                         // fill up when there is none of the others
    s32 mAddTimerMs = 100;
    s32 mTotal = 0;
    s32 mAdded = 0; // items shown so far
    bool mGroupEntries = false;
    bool mRequiredForActCompletion = false;
    s32 mCollected = 0;         // items finished so far
    bool mRestored = false;     // from saved play, and not yet mended
    bool mMet = false;          // the requirement has been reported
    bool mSlotsChecked = false; // since the last slot was taken
    bool mSlotsLogged = false;
};

#endif
