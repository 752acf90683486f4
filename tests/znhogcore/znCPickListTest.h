#ifndef TESTS_ZNHOGCORE_ZNCPICKLISTTEST_H
#define TESTS_ZNHOGCORE_ZNCPICKLISTTEST_H

// Plays scenes whose GUI holds pick lists. What they report is heard and goes no further, so that no level ends while a
// test looks at it.

#include "tests/znhogcore/znCHogTest.h"

class znCPickListEar : public znIMessageListener
{
public:
    znCPickListEar() : znIMessageListener(1) {}

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    bool mLevelEnds = false; // reports go on to the level
    std::string take() { return std::exchange(mHeard, ""); }
    const std::string& heardGet() const { return mHeard; }
    s32 addedTake() { return std::exchange(mAdded, 0); } // items shown

private:
    std::string mHeard;
    s32 mAdded = 0;
};

class znCPickListTest : public znCHogTest
{
protected:
    enum class Kind
    {
        dropOff,
        silhouette,
        single
    };
    static constexpr Kind KINDS[] = {Kind::dropOff, Kind::silhouette, Kind::single};
    static constexpr s32 FIND_FRAMES = 6000 / FRAME_MS; // longer than a find and the departure of its item

    void SetUp() override;
    void TearDown() override;

    // The element of a list with that many slots at (50, 20 * number).
    static std::string listText(const std::string& pName, Kind pKind, s32 pSlots, const std::string& pSettings);
    // pCoords: behind a small background. pTable: of the level, without its "GUI".
    void open(const std::string& pCoords, const std::string& pGui, const std::string& pTable = "");
    void reopen(); // saves the level and loads it again

    std::vector<znCEntity*> activesGet(); // the objects of the room that can be found, in tree order
    // Their node names, each with a blank behind it.
    std::string activeGet();
    s32 activeCount() { return static_cast<s32>(activesGet().size()); }
    void collect(const std::string& pName) { collectable(pName).collectionProcessTrigger(); }
    void collectAny();
    // Finds whatever is on show until nothing more happens. What was sent meanwhile.
    std::string playToEnd();
    std::string playUntilMet();                                 // the same, no longer than a while behind the report
    std::string textGet(const std::string& pName);              // of a text in the level
    std::string savedGet(const std::string& pName, s32 pField); // field of the component of that entity, from 0
    std::string countsGet() { return textGet("itemCountText"); }

    znCPickListEar mListEar;
};

#endif
