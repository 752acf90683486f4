#include "znhogcore/components/gui/znCRollOverSubSceneGui.h"

#include "tests/znhogcore/znCRoomTest.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znCEmptyMessageData.h"

#include <fstream>
#include <iterator>

namespace
{
class znCRollOverSubSceneGuiTest : public znCRoomTest
{
protected:
    void SetUp() override
    {
        std::ifstream font(PETREL_ROOT "/data/fonts/clarendon.ttf", std::ios::binary);
        mPlatform.mFiles.fileSet("f.ttf", {std::istreambuf_iterator<char>(font), {}});
        mPlatform.mFiles.fileSet("strings.txt", "quayTitle = \"Quay\",\r\nPRE-oil-lampRO = \"A lamp without oil\",\r\n"
                                                "SUB1-crateRO = \"The crate\",\r\nPCK-tinRO = \"Tin\",\r\n"
                                                "PCK-corkRO = \"Cork\",\r\n");
        znCRoomTest::SetUp();
        panelSet("znCRollOverSubSceneGui { name = Caption modal = false maxStr = \"A lamp without oil\"\n"
                 "znCSpriteComponent { name = Back image = button.png }\n" +
                 textGet("Words") + "}\n");
    }
    // What the caption says and where; "" if it isn't on view.
    std::string captionGet()
    {
        frame();
        const znPoint& pos = find("Caption")->posGet();
        return shown("Caption") ? panelTextGet("Words") + " " + std::to_string(pos.mX) + "," + std::to_string(pos.mY)
                                : "";
    }
    std::string captionAt(s32 pX, s32 pY)
    {
        move(pX, pY);
        return captionGet();
    }
};

TEST_F(znCRollOverSubSceneGuiTest, namesWhatThePointerIsOn)
{
    openRoom("PRE-oil-lamp.png,0,0\nPCK-rope.png,100,0\nPCK-tin-m1.png,200,0\nPCK-tin-m2.png,200,30\n"
             "SUB1-crate.png,-300,0\n",
             "PCK-cork.png,100,100\n");
    EXPECT_EQ(captionGet(), "");
    EXPECT_EQ(captionAt(10, 10), "A lamp without oil 0,-70");
    EXPECT_FLOAT_EQ(find("Back")->scaleGet(), 1.0f);
    EXPECT_EQ(captionAt(100, 0), "") << "nobody named it";
    EXPECT_EQ(captionAt(200, -10), "Tin 200,-70");
    znCEntity* back = find("Back");
    back->treeUpdate(0);
    const float narrow = back->worldMatrixGet().m00;
    EXPECT_GT(narrow, 0.1f);
    EXPECT_LT(narrow, 0.5f);
    EXPECT_FLOAT_EQ(back->scaleYGet(), 1.0f);
    EXPECT_EQ(captionAt(200, 45), "Tin 200,-40") << "another placement of it";
    EXPECT_EQ(captionAt(100, 100), "") << "its close-up isn't open";
    EXPECT_EQ(captionAt(-300, 0), "The crate -300,-70");
    tap(-300, 0);
    EXPECT_EQ(captionGet(), "") << "the door's own";
    EXPECT_EQ(captionAt(10, 10), "") << "behind the close-up";
    EXPECT_EQ(captionAt(100, 100), "Cork 100,30");
    send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE);
    EXPECT_EQ(captionGet(), "") << "it went with its object";
    EXPECT_EQ(captionAt(0, 0), "A lamp without oil 0,-70");
    znCGuiMessageDispatcher::instanceGet()->messageSend(znCRollOverGui::CLOSE_ROLL_OVER,
                                                        znCEmptyMessageData::sharedGet());
    EXPECT_EQ(captionGet(), "");
}

TEST_F(znCRollOverSubSceneGuiTest, goesWhenAKeyIsTakenThatLiesOnADoor)
{
    openRoom("PRE-oil-lamp.png,0,0\nSUB1-crate.png,100,0\nINS-oil.png,100,0\n", "PCK-cork.png,100,100\n");
    EXPECT_EQ(captionAt(100, 0), "The crate 100,-70");
    press(100, 0);
    EXPECT_EQ(captionGet(), "");
    release(100, 0);
    EXPECT_EQ(captionGet(), "");
}

TEST_F(znCRollOverSubSceneGuiTest, keepsCaptionsThatItWasGivenAndNoneFromASave)
{
    openRoom("PRE-oil-lamp.png,0,0\nPCK-rope.png,100,0\n");
    EXPECT_NE(captionAt(0, 0), "");
    levelEnd(false);
    openRoom("PRE-oil-lamp.png,0,0\nPCK-rope.png,100,0\n");
    EXPECT_EQ(captionGet(), "");
    auto* caption = find("Caption")->componentGet<znCRollOverSubSceneGui>();
    caption->rollOverEntriesSet({{"A rope", find("PCK-rope.png")}});
    send(znCHogMessageDispatcher::LEVEL_LOAD_COMP);
    EXPECT_EQ(captionAt(100, 0), "A rope 100,-70");
    EXPECT_EQ(captionAt(0, 0), "");
}
} // namespace
