#include "znhogcore/components/gui/znIPickListEntryGui.h"

#include "tests/znhogcore/znCPickListTest.h"
#include "znappcore/src/znCEntity.h"

namespace
{
using Errors = std::vector<std::string>;

constexpr char ROPES[] = "PCK-rope-m1.png,-300,0\nPCK-rope-m2.png,-200,0\nPCK-rope-m3.png,-100,0\n";
constexpr char LIST[] = "randomEntityTypes = PCK-";
constexpr char GROUPED[] = "groupEntries = true randomEntityTypes = PCK-";
constexpr s32 ADD_FRAMES = 7;

class znIPickListEntryGuiTest : public znCPickListTest
{
protected:
    znIPickListEntryGui& slot() { return *find("pickItem0")->componentFind<znIPickListEntryGui>(); }
    std::string stateOfSlot() { return savedGet("pickItem0", 1); }
    void until(const std::string& pState)
    {
        for (s32 i = 0; i < FIND_FRAMES && stateOfSlot() != pState; ++i)
            frame();
        EXPECT_EQ(stateOfSlot(), pState);
    }
};

TEST_F(znIPickListEntryGuiTest, textSwellsUpCountsDownAndFalls)
{
    open(ROPES, listText("hogPickList", Kind::dropOff, 1, GROUPED));
    const znCEntity& entity = *find("pickItem0");
    EXPECT_FALSE(entity.activeGet());
    frame(ADD_FRAMES);
    EXPECT_TRUE(entity.activeGet());
    EXPECT_EQ(textGet("PickListEntryText"), "rope(3)");
    float largest = 0.0f;
    for (s32 ms = 0; stateOfSlot() == "1" && ms < 1000; ms += FRAME_MS)
    {
        EXPECT_LE(ms, 600);
        largest = std::max(largest, entity.scaleGet());
        frame();
    }
    EXPECT_NEAR(largest, 1.2f, 0.05f);
    EXPECT_EQ(entity.scaleGet(), 1.0f);
    for (const char* left : {"rope(2)", "rope"})
    {
        collectAny();
        frame(FIND_FRAMES);
        EXPECT_EQ(textGet("PickListEntryText"), left);
        EXPECT_EQ(stateOfSlot(), "2");
    }
    collectAny();
    until("3");
    znPoint last(50, 20);
    s32 frames = 0;
    for (; stateOfSlot() == "3" && frames < FIND_FRAMES; ++frames)
    {
        EXPECT_LE(entity.posGet().mX, last.mX); // to the left, since it stands on the right
        EXPECT_GE(entity.posGet().mY, last.mY);
        EXPECT_LT(entity.posGet().mY, 20 + 120);
        last = entity.posGet();
        frame();
    }
    EXPECT_NEAR(frames, 25, 2); // 0.4 units a frame faster each frame, down to 120
    EXPECT_LT(last.mX, 50 - 20);
    EXPECT_FALSE(entity.activeGet());
    EXPECT_EQ(entity.posGet(), znPoint(50, 20));
    EXPECT_EQ(entity.rotationGet(), 0.0f);
}

TEST_F(znIPickListEntryGuiTest, textFallsFromItsPlaceAfterALoad)
{
    open("PCK-a.png,0,0\n", listText("hogPickList", Kind::dropOff, 1, LIST));
    frame(60);
    collectAny();
    until("3");
    frame(10);
    EXPECT_NE(find("pickItem0")->posGet(), znPoint(50, 20));
    reopen();
    EXPECT_EQ(stateOfSlot(), "3");
    until("0");
    EXPECT_EQ(find("pickItem0")->posGet(), znPoint(50, 20));
    EXPECT_FALSE(find("pickItem0")->activeGet());
}

TEST_F(znIPickListEntryGuiTest, shapeFitsItsSlotHoldsAndFades)
{
    open("PCK-a.png,0,0\n", listText("hogPickList", Kind::silhouette, 1, LIST));
    frame(ADD_FRAMES);
    EXPECT_EQ(find("pickItem0")->scaleGet(), 0.5f); // 40 x 40 into 20 x 80
    frame(250 / FRAME_MS - 1);
    EXPECT_EQ(stateOfSlot(), "1");
    until("2");
    collectAny();
    until("3");
    frame(2484 / FRAME_MS);
    EXPECT_EQ(stateOfSlot(), "3");
    until("0");
    reopen(); // the slot stays empty
    EXPECT_EQ(find("pickItem0")->scaleGet(), 1.0f);
}

TEST_F(znIPickListEntryGuiTest, sentenceCountsDown)
{
    for (const bool visible : {true, false})
    {
        std::string gui = listText("hogPickList", Kind::single, 1, GROUPED);
        if (!visible)
            gui.insert(gui.find(" name = pickItem0"), " visible = false\n");
        open(ROPES, gui);
        frame(ADD_FRAMES);
        EXPECT_EQ(find("pickListEntryText")->activeGet(), visible);
        for (const char* sentence :
             {"Find 3 ropePlural in the scene", "Find 2 ropePlural in the scene", "Find 1 ropeSingle in the scene", ""})
        {
            EXPECT_EQ(textGet("pickListEntryText"), visible ? sentence : "");
            reopen();
            EXPECT_EQ(textGet("pickListEntryText"), visible ? sentence : "");
            collectAny();
            frame(FIND_FRAMES);
        }
        levelEnd();
    }
}

TEST_F(znIPickListEntryGuiTest, namesWhatItCannotShow)
{
    const struct
    {
        Kind mKind;
        const char* mSettings;
        const char* mCut; // from the GUI file
        const char* mError;
    } TESTS[] = {
        {Kind::silhouette, GROUPED, "", "Not expecting grouped entities for a znCSilhouettePickListEntry."},
        {Kind::silhouette, LIST, "height = 80", "Slot dimensions not set."},
        {Kind::dropOff, LIST, "PickListEntryText", "Expected a znCTextSpriteComponent named 'PickListEntryText'."},
        {Kind::single, LIST, "pickListEntryText", "Expected a text entity in a znCSingleItemPickListEntryGui"},
    };
    for (const auto& test : TESTS)
    {
        SCOPED_TRACE(test.mError);
        std::string gui = listText("hogPickList", test.mKind, 1, test.mSettings);
        const std::string cut = test.mCut;
        if (!cut.empty())
            gui.replace(gui.find(cut), cut.size(), cut.size() > 11 ? "other" : "");
        open(ROPES, gui);
        frame(ADD_FRAMES);
        const Errors errors = errorsTake();
        ASSERT_FALSE(errors.empty());
        EXPECT_TRUE(errors.front().starts_with(test.mError)) << errors.front();
        EXPECT_EQ(playToEnd(), ""); // and goes on
        EXPECT_EQ(countsGet(), "1 / 1");
        levelEnd();
        errorsTake();
    }
}

TEST_F(znIPickListEntryGuiTest, refusesWhatIsNoItem)
{
    open(ROPES, listText("hogPickList", Kind::dropOff, 1, LIST));
    slot().activate({});
    EXPECT_EQ(errorsTake(), Errors{"Expected at least one entity in the vector."});
    EXPECT_TRUE(slot().freeGet());
    slot().activate({find("SubScene0")});
    EXPECT_EQ(errorsTake(), Errors{"Expected entity SubScene0 to have a collectable component."});
    slot().activate({find("PCK-rope-m1.png")});
    EXPECT_EQ(errorsTake(), Errors{"Already active."});
}
} // namespace
