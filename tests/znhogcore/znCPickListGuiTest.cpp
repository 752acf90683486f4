#include "znhogcore/components/gui/znCPickListGui.h"

#include "tests/support/allocationCount.h"
#include "tests/znhogcore/znCPickListTest.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znIDisplay.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <fstream>
#include <set>

namespace
{
using Errors = std::vector<std::string>;

constexpr char SIX[] = "PCK-a.png,-300,0\nPCK-b.png,-200,0\nPCK-c.png,-100,0\n"
                       "PCK-d.png,0,0\nPCK-e.png,100,0\nPCK-f.png,200,0\n";
constexpr char ROPES[] = "PCK-rope-m1.png,-300,0\nPCK-rope-m2.png,-200,0\nPCK-coil.png,-100,0\nPCK-bell.png,0,0\n";
constexpr char PCK[] = "randomEntityTypes = PCK-";
constexpr char REQUIRED[] = "requiredForActCompletion = true\n randomEntityTypes = PCK-";
constexpr char GROUPED[] = "requiredForActCompletion = true\n groupEntries = true\n randomEntityTypes = PCK-";
constexpr char TOO_FEW[] = "Not enough entities in scene to fill the pick list.";
constexpr s32 ADD_FRAMES = 7; // the first frames behind 100 ms

class znCPickListGuiTest : public znCPickListTest
{
protected:
    std::string totalGet() { return savedGet("hogPickList", 0); }

    // Presses the hint button. The object that the sparkles end at; empty if nobody gave a hint.
    std::string hintTargetGet()
    {
        if (!znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::HINT_BUTTON_PRESSED,
                                                                 znCEmptyMessageData::sharedGet()))
            return "";
        frame(3500 / FRAME_MS);
        const znCEntity* effect = find("HintEffect");
        std::string target;
        for (const znINode* node : effect->parentGet()->childrenGet())
            if (node != effect && std::abs(node->posGet().mX - effect->posGet().mX) < 100 &&
                std::abs(node->posGet().mY - effect->posGet().mY) < 100)
                target = node->nameGet();
        frame(1000 / FRAME_MS);
        return target;
    }
};

TEST_F(znCPickListGuiTest, countsWhatItHasToShow)
{
    const struct
    {
        const char* mWhat;
        const char* mSettings;
        const char* mTable;
        const char* mTotal;
    } TESTS[] = {
        {"slots", PCK, "", "3"},
        {"the scene's own number", PCK, "numHogItems = \"15\",\r\n", "15"},
        {"a number below 1", PCK, "numHogItems = \"0\",\r\n", "3"},
        {"all", "collectAllEntities = true randomEntityTypes = PCK-", "", "4"},
        {"all, of two types", "collectAllEntities = true randomEntityTypes = \" PCK-  HDN- \"", "", "6"},
        {"all, grouped", "collectAllEntities = true groupEntries = true randomEntityTypes = PCK-", "", "2"},
        {"all, listed twice",
         "collectAllEntities = true groupEntries = true randomEntityTypes = \"PCK- HDN-\" priorityEntityTypes = HDN-",
         "", "5"},
        {"all of none", "collectAllEntities = true randomEntityTypes = TSK-", "", "0"},
    };
    for (const auto& test : TESTS)
    {
        SCOPED_TRACE(test.mWhat);
        open(std::string(ROPES) + "HDN-bell.png,0,0\nHDN-key.png,0,0\n",
             listText("hogPickList", Kind::dropOff, 3, test.mSettings), test.mTable);
        EXPECT_EQ(totalGet(), test.mTotal);
        EXPECT_EQ(countsGet(), std::string("0 / ") + test.mTotal);
        EXPECT_EQ(find("completeSprite")->activeGet(), test.mTotal == std::string("0"));
        levelEnd();
    }
}

TEST_F(znCPickListGuiTest, takesTheSlotsThatItsFileHas)
{
    std::string gui = listText("hogPickList", Kind::dropOff, 5, PCK);
    gui.replace(gui.find("pickItem3"), 9, "pickItem9");                                 // a gap
    gui.insert(gui.find("znCDropOff"), "znCSpriteComponent {\n name = pickItem0\n}\n"); // no slot, and found first
    open(SIX, gui);
    EXPECT_EQ(totalGet(), "2");
    levelEnd();
    open("", listText("hogPickList", Kind::dropOff, 0, PCK));
    EXPECT_EQ(totalGet(), "0");
}

TEST_F(znCPickListGuiTest, saysWhichTypesItCannotList)
{
    mPlatform.mFiles.fileSet(
        "gui/lists.txt",
        listText("hogPickList", Kind::dropOff, 0, "randomEntityTypes = \"PCK- HOT-\" requiredForActCompletion = 1"));
    imageSet("scenes/quay/background.png", 40, 40);
    sceneSet("quay", "Background.png,0,0\n", "GUI = \"gui/lists.txt\",\r\n");
    linesTake();
    sceneOpen("quay");
    const Errors errors = errorsTake();
    EXPECT_EQ(
        std::count(errors.begin(), errors.end(), "An identifier id for entities of type HOT- has not been registered."),
        1);
    const Errors lines = linesTake();
    EXPECT_EQ(std::count(lines.begin(), lines.end(),
                         "The pick list hogPickList has nothing to find but the level waits for it."),
              1);
    EXPECT_EQ(playToEnd(), "add hogPickList; "); // and never ends by itself
}

TEST_F(znCPickListGuiTest, fillsItsSlotsOneByOneAndRefillsThem)
{
    open(std::string(SIX) + "HDN-key.png,0,0\nBNSL-cup.png,0,0\n", listText("hogPickList", Kind::single, 2, REQUIRED),
         "numHogItems = \"5\",\r\n");
    s32 shown = mListEar.addedTake();
    EXPECT_EQ(shown, 0);
    s32 most = 0;
    for (s32 frames = 1; shown < 2; ++frames)
    {
        frame();
        shown += mListEar.addedTake();
        EXPECT_EQ(shown, frames / ADD_FRAMES) << frames;
    }
    for (s32 i = 0; i < 5; ++i)
    {
        EXPECT_EQ(countsGet(), std::to_string(i) + " / 5");
        collectAny();
        for (s32 k = 0; k < FIND_FRAMES; ++k)
        {
            frame();
            most = std::max(most, activeCount());
        }
    }
    EXPECT_EQ(most, 2);
    EXPECT_EQ(mListEar.addedTake(), 3);
    EXPECT_EQ(countsGet(), "5 / 5");
    EXPECT_EQ(mListEar.take(), "add hogPickList; met hogPickList; ");
    EXPECT_TRUE(find("completeSprite")->activeGet());
    EXPECT_EQ(activeGet(), ""); // the sixth, and those of other types, were never on offer
}

TEST_F(znCPickListGuiTest, showsPriorityTypesFirst)
{
    const std::string types = "priorityEntityTypes = \"REQ- TSK-\" randomEntityTypes = PCK-";
    open(std::string(SIX) + "REQ-key.png,0,0\nTSK-lit,0,0\n", listText("hogPickList", Kind::single, 3, types));
    frame(2 * ADD_FRAMES);
    EXPECT_EQ(activeGet(), "REQ-key.png TSK-lit ");
    frame(ADD_FRAMES);
    EXPECT_EQ(activeCount(), 3);
    levelEnd();

    open(std::string(SIX) + "REQ-key.png,0,0\nTSK-lit,0,0\n", listText("hogPickList", Kind::single, 1, types));
    frame(40);
    EXPECT_EQ(errorsTake(), Errors{"Not enough slots in the pick list to handle all priority entity types."});
}

TEST_F(znCPickListGuiTest, endsWhenTheSceneHasNoMore)
{
    open("PCK-a.png,0,0\nPCK-b.png,0,0\n", listText("hogPickList", Kind::dropOff, 4, REQUIRED));
    frame(4 * ADD_FRAMES);
    EXPECT_EQ(activeCount(), 2);
    EXPECT_EQ(mListEar.take(), "add hogPickList; met hogPickList; ");
    EXPECT_EQ(errorsTake(), Errors{TOO_FEW});
    EXPECT_EQ(playToEnd(), "");
    EXPECT_EQ(countsGet(), "2 / 4");
}

TEST_F(znCPickListGuiTest, makesOneItemOfAllPlacementsOfAText)
{
    open(ROPES, listText("hogPickList", Kind::dropOff, 2, GROUPED));
    frame(2 * ADD_FRAMES);
    EXPECT_EQ(activeCount(), 4);
    const std::string slot = savedGet("pickItem0", 0) == "rope" ? "pickItem0" : "pickItem1";
    EXPECT_EQ(savedGet(slot, 3), "3");
    for (const char* rope : {"PCK-rope-m2.png", "PCK-coil.png"})
    {
        collect(rope);
        frame(FIND_FRAMES);
    }
    EXPECT_EQ(countsGet(), "0 / 2");
    EXPECT_EQ(savedGet(slot, 3), "1");
    collect("PCK-rope-m1.png");
    frame(FIND_FRAMES);
    EXPECT_EQ(countsGet(), "1 / 2");
    EXPECT_EQ(playToEnd(), "add hogPickList; met hogPickList; ");
}

// Each placement is an item of its own; finds go by text.
TEST_F(znCPickListGuiTest, countsOneFindForAllItemsOfItsText)
{
    for (const Kind kind : KINDS)
    {
        open("PCK-rope-m1.png,0,0\nPCK-rope-m2.png,0,0\nPCK-rope-m3.png,0,0\n",
             listText("hogPickList", kind, 2, REQUIRED));
        frame(2 * ADD_FRAMES);
        EXPECT_EQ(activeCount(), 2);
        collectAny();
        frame(FIND_FRAMES);
        EXPECT_EQ(countsGet(), "2 / 2");
        collectAny(); // on no list any more
        EXPECT_EQ(unlistedTake(), std::vector<std::string>{"rope"});
        frame(FIND_FRAMES);
        EXPECT_EQ(countsGet(), "2 / 2");
        EXPECT_EQ(mListEar.take(), "add hogPickList; met hogPickList; ");
        levelEnd();
    }
}

TEST_F(znCPickListGuiTest, choosesByTheSeed)
{
    std::vector<std::string> chosen;
    for (const uint32 seed : {5u, 5u, 6u, 7u, 8u})
    {
        znNCoreUtils::randomSeedSet(seed);
        open(SIX, listText("hogPickList", Kind::single, 3, PCK));
        frame(3 * ADD_FRAMES);
        chosen.push_back(activeGet() + savedGet("pickItem0", 0) + savedGet("pickItem1", 0));
        levelEnd();
    }
    EXPECT_EQ(chosen[0], chosen[1]);
    EXPECT_NE(std::count(chosen.begin(), chosen.end(), chosen[0]), 5);
}

TEST_F(znCPickListGuiTest, startsOverWhenTheLevelIsReset)
{
    open(std::string(SIX) + "BNSL-cup.png,0,0\n",
         listText("hogPickList", Kind::dropOff, 2, REQUIRED) +
             listText("lostList", Kind::dropOff, 1, "randomEntityTypes = BNSL-"),
         "numHogItems = \"3\",\r\n");
    frame(2 * ADD_FRAMES);
    EXPECT_EQ(activeCount(), 3);
    const std::string found = activeGet().substr(0, activeGet().find(' '));
    collect("BNSL-cup.png");
    collect(found);
    for (s32 i = 0; i < FIND_FRAMES && savedGet("pickItem0", 1) != "3" && savedGet("pickItem1", 1) != "3"; ++i)
        frame();
    frame(5); // an item is falling
    mListEar.take();
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    EXPECT_EQ(mListEar.take(), "clear hogPickList; ");
    EXPECT_EQ(activeGet(), "");
    EXPECT_EQ(countsGet(), "0 / 3");
    for (s32 i = 0; i < 2; ++i)
    {
        const znCEntity* slot = find("pickItem" + std::to_string(i));
        EXPECT_FALSE(slot->activeGet());
        EXPECT_EQ(slot->posGet(), znPoint(50, 20 * i + 20));
        EXPECT_EQ(slot->rotationGet(), 0.0f);
    }
    EXPECT_EQ(playToEnd(), "met hogPickList; ");
    EXPECT_EQ(countsGet(), "3 / 3");
    EXPECT_EQ(stateGet("BNSL-cup.png"), znICollectableComponent::STATE_COLLECTED);
}

TEST_F(znCPickListGuiTest, doesWhatTheAuthorsPageSays)
{
    std::ifstream page(PETREL_ROOT "/docs/pick-lists.md");
    std::string gui;
    for (std::string line; std::getline(page, line);)
        if (line.starts_with("    "))
            gui += line + "\n";
    for (std::size_t font = gui.find("fonts/clarendon.ttf"); font != std::string::npos;
         font = gui.find("fonts/clarendon.ttf"))
        gui.replace(font, 19, "f.ttf");
    open(std::string(SIX) + "HDN-bell.png,0,0\nREQ-key.png,0,0\nTSK-lit,0,0\n", gui, "numHogItems = \"12\",\r\n");
    EXPECT_EQ(countsGet(), "0 / 12");
    frame(2 * ADD_FRAMES);
    EXPECT_EQ(activeGet(), "REQ-key.png TSK-lit ");
    EXPECT_EQ(mListEar.take(), "add hogPickList; ");
}

// --- saved play ---

// Whatever the moment at which the player leaves: arrivals, departures and finds under way, grouped or not.
TEST_F(znCPickListGuiTest, goesOnAfterALoadAtAnyMoment)
{
    const char* const COORDS[] = {SIX, "PCK-rope-m1.png,-300,0\nPCK-rope-m2.png,-200,0\nPCK-lantern.png,-100,0\n"};
    for (const Kind kind : KINDS)
        for (const bool grouped : {false, true})
        {
            if (grouped && kind == Kind::silhouette)
                continue;
            for (s32 moment = 1; moment < 280; moment += 41)
            {
                SCOPED_TRACE(moment);
                const std::string total = grouped ? "2" : "4";
                open(COORDS[grouped ? 1 : 0], listText("hogPickList", kind, 2, grouped ? GROUPED : REQUIRED),
                     "numHogItems = \"" + total + "\",\r\n");
                for (s32 i = 0; i < moment; ++i)
                {
                    if (i % 20 == 10)
                        collectAny();
                    frame();
                }
                reopen();
                mListEar.take();
                reopen();
                EXPECT_EQ(playUntilMet(), "add hogPickList; met hogPickList; ");
                EXPECT_EQ(countsGet(), total + " / " + total);
                reopen();
                EXPECT_EQ(playUntilMet(), "add hogPickList; met hogPickList; ");
                levelEnd();
            }
        }
}

TEST_F(znCPickListGuiTest, bringsBackWhatItShowed)
{
    open("PCK-lantern.png,0,0\nPCK-bell.png,0,0\n", listText("hogPickList", Kind::dropOff, 2, REQUIRED));
    frame(60);
    reopen();
    std::string texts[] = {savedGet("pickItem0", 0), savedGet("pickItem1", 0)};
    std::sort(std::begin(texts), std::end(texts));
    EXPECT_EQ(texts[0], "bell");
    EXPECT_EQ(texts[1], "the \"old\" lantern, {lit}");
    EXPECT_EQ(activeCount(), 2);
    EXPECT_EQ(countsGet(), "0 / 2");
}

TEST_F(znCPickListGuiTest, endsItsLevelAgainAfterALoad)
{
    for (const char* number : {"1", "2", "3"})
        mPlatform.mFiles.fileSet(std::string("gui/welldone/welldone") + number + ".txt",
                                 "znCSpriteComponent {\n name = wellDone\n}\n");
    open(SIX, listText("hogPickList", Kind::dropOff, 2, REQUIRED));
    playUntilMet();
    mListEar.mLevelEnds = true;
    reopen();
    for (s32 i = 0; i < FIND_FRAMES && mListEar.heardGet().find("LevelComplete") == std::string::npos; ++i)
        frame();
    EXPECT_EQ(mListEar.take(), "add hogPickList; met hogPickList; LevelComplete; ");
}

// A list that ran out of objects has met its requirement, which no save holds.
TEST_F(znCPickListGuiTest, endsAgainAfterALoadIfTheSceneHadNoMore)
{
    open("PCK-a.png,0,0\nPCK-b.png,0,0\n", listText("hogPickList", Kind::dropOff, 4, REQUIRED));
    frame(4 * ADD_FRAMES);
    mListEar.take();
    reopen();
    frame(2 * ADD_FRAMES);
    EXPECT_EQ(mListEar.take(), "add hogPickList; met hogPickList; ");
    EXPECT_EQ(errorsTake(), (Errors{TOO_FEW, TOO_FEW}));
}

// The scene or its GUI has changed since it was saved.
TEST_F(znCPickListGuiTest, endsInASceneThatHasChanged)
{
    const struct
    {
        const char* mWhat;
        const char* mCoords;
        s32 mSlots;
        const char* mItems;
        const char* mCounts;
    } TESTS[] = {
        {"fewer objects", "PCK-e.png,0,0\nPCK-f.png,0,0\n", 3, "5", nullptr},
        {"fewer slots", SIX, 1, "5", "4 / 5"},
        {"fewer items", SIX, 3, "2", "4 / 4"},
        {"more items", SIX, 3, "6", "6 / 6"},
    };
    for (const auto& test : TESTS)
    {
        SCOPED_TRACE(test.mWhat);
        znNCoreUtils::randomSeedSet(1);
        open(SIX, listText("hogPickList", Kind::single, 3, REQUIRED), "numHogItems = \"5\",\r\n");
        frame(3 * ADD_FRAMES);
        collectAny();
        frame(FIND_FRAMES);
        EXPECT_EQ(countsGet(), "1 / 5");
        levelEnd(false);
        mListEar.take();
        open(test.mCoords, listText("hogPickList", Kind::single, test.mSlots, REQUIRED),
             std::string("numHogItems = \"") + test.mItems + "\",\r\n");
        EXPECT_EQ(playToEnd(), "add hogPickList; met hogPickList; ");
        if (test.mCounts != nullptr)
            EXPECT_EQ(countsGet(), test.mCounts);
        levelEnd();
        errorsTake(); // the scene has too few
    }
}

TEST_F(znCPickListGuiTest, endsWhateverNumbersADamagedSaveHolds)
{
    for (const char* numbers : {"2147483647,2147483647,2147483647,", "-5,-5,-5,", "3,2147483647,2,", "3,0,9,", ""})
    {
        SCOPED_TRACE(numbers);
        open(SIX, listText("hogPickList", Kind::single, 2, REQUIRED), "numHogItems = \"3\",\r\n");
        frame(2 * ADD_FRAMES);
        std::string saved = numbers;
        auto* list = find("hogPickList")->componentGet<znCPickListGui>();
        list->myLoad(saved);
        list->myPostLoad();
        send(znCHogMessageDispatcher::LEVEL_LOAD_COMP);
        EXPECT_EQ(playToEnd(), "add hogPickList; met hogPickList; ");
        levelEnd();
        errorsTake(); // the text breaks off
    }
}

// --- hints ---

TEST_F(znCPickListGuiTest, pointsAtEverythingInTurn)
{
    open("PCK-a.png,-300,-200\nPCK-b.png,300,-200\nINS-key.png,-300,200\nPCK-c.png,300,200\nHDN-bell.png,0,0\n"
         "BackgroundShelf.png,0,0\nHDN-key.png,0,0\n",
         listText("hogPickList", Kind::single, 3, REQUIRED));
    frame(3 * ADD_FRAMES);
    std::set<std::string> targets;
    for (s32 i = 0; i < 4; ++i)
        targets.insert(hintTargetGet());
    EXPECT_EQ(targets, (std::set<std::string>{"PCK-a.png", "PCK-b.png", "PCK-c.png", "INS-key.png"}));
    EXPECT_EQ(hintTargetGet(), "INS-key.png"); // a new round begins with the keys
    collect("PCK-a.png");
    targets.clear();
    for (s32 i = 0; i < 3; ++i)
        targets.insert(hintTargetGet());
    EXPECT_EQ(targets, (std::set<std::string>{"PCK-b.png", "PCK-c.png", "INS-key.png"}));
    s32 shelf = 1;
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::OPEN_SUB_SCENE, &shelf);
    EXPECT_EQ(hintTargetGet(), ""); // nothing here is listed
    levelEnd();
    open(SIX, listText("hogPickList", Kind::single, 3, PCK));
    frame(3 * ADD_FRAMES);
    EXPECT_EQ(hintTargetGet(), ""); // the level doesn't wait for it
}

// What could not be found must not be pointed at.
TEST_F(znCPickListGuiTest, pointsOnlyAtWhatIsOnOfferAfterALoad)
{
    open("PCK-rope-m1.png,-300,-200\nPCK-rope-m2.png,300,-200\nPCK-rope-m3.png,-300,200\n",
         listText("hogPickList", Kind::single, 1, REQUIRED));
    frame(ADD_FRAMES);
    reopen();
    for (s32 i = 0; i < 3; ++i)
        EXPECT_EQ(hintTargetGet() + " ", activeGet());
}

TEST_F(znCPickListGuiTest, asksForNoMemoryWhileItsSlotsAreTaken)
{
    std::string coords;
    for (s32 i = 0; i < 500; ++i)
        coords += "PCK-CMN-" + std::to_string(i % 10) + ".png," + std::to_string(i) + ",10\n";
    for (s32 i = 0; i < 10; ++i)
        imageSet("common/" + std::to_string(i) + ".png", 20, 20);
    open(coords,
         listText("hogPickList", Kind::dropOff, 6, "priorityEntityTypes = PCK-") +
             listText("otherList", Kind::silhouette, 6, PCK),
         "numHogItems = \"60\",\r\n");
    frame(100);
    errorsTake();
    EXPECT_EQ(activeCount(), 12);
    mPlatform.mDraw.mRecording = false;
    frame(3);
    const std::size_t before = allocationCountGet();
    frame(10);
    EXPECT_EQ(allocationCountGet() - before, 0u);
}
} // namespace
