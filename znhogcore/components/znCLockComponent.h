#ifndef ZNHOGCORE_COMPONENTS_ZNCLOCKCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCLOCKCOMPONENT_H

// A collectable that a tap never collects: it opens when all of its keys have been dragged onto it. If it is named with
// a task, its opening completes that task instead of announcing the lock itself.
//
// Everything comes from the name: "PRE-", one or more keys each with "-" behind it, the task's name and "+" if there is
// a task, the lock's own key. "PRE-oil-wick-lit+lamp.png" needs the keys "oil" and "wick" and completes the task "lit".

#include "znhogcore/components/znCTappableCollectableComponent.h"

#include <vector>

class znCLockComponent : public znCTappableCollectableComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCLockComponent"};

    explicit znCLockComponent(znCEntity* pEntity);

    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void mySave(std::string& pOut) override; // behind the state one bool a key: used
    void myLoad(std::string& pIn) override;
    void collectionComplete() override;
    // A tap: collects nothing, but tells the player what is missing, by the localised string that the lock's name
    // without its used keys and with "HINT-" for "PRE-" names, if there is one.
    void collectionProcessTrigger() override;
    void resetDo() override;

    // Uses the key of pKeyEntity if this lock still needs it and pDragSprite touches the lock; the last one opens it.
    // True if the key was used.
    bool keyTry(znCEntity* pKeyEntity, znCSpriteComponent* pDragSprite);
    // The key of pKeyEntity is one of this lock's and is still unused.
    bool keyNeeded(const znCEntity* pKeyEntity);
    std::vector<std::string> keysGet() const; // all that it needs to open, used or not
    const std::string& taskNameGet() const { return mTaskName; } // empty if it ends none
    // Opens the lock without its keys; nothing happens if all are used already.
    void forceComplete();

private:
    struct Key
    {
        std::string mKey;
        bool mUsed = false;
    };

    void initialiseFromName(const std::string& pBaseName);
    Key* neededKeyFind(const znCEntity* pKeyEntity);
    bool allKeysUsedGet() const;

    std::vector<Key> mKeys; // in the order of the name
    std::string mTaskName;  // may be empty
};

#endif
