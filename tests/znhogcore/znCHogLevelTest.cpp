#include "znhogcore/src/znCHogLevel.h"

#include "tests/support/allocationCount.h"
#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIInputManager.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
constexpr char ROUND_SCORE[] = "znCSpriteComponent {\n name = roundScoreGui\n}\n";

class znCHogLevelTest : public znCHogTest
{
protected:
    void open(const std::string& pTable)
    {
        sceneSet("quay", "Background.png,0,0\nHOT-gull.png,0,0\n", "ACT1NextLev = \"shop\",\r\n" + pTable);
        sceneSet("shop", "Background.png,0,0\n");
        sceneOpen("quay");
    }
    static znINode* roundScoreFind() { return znCAppCoreMain::instanceGet()->appDisplayChildFind("roundScoreGui"); }
    static s3ePointerMotionEvent* motionAt(s32 pX)
    {
        static s3ePointerMotionEvent sEvent;
        sEvent = {pX, CANVAS_HEIGHT / 2};
        return &sEvent;
    }
    static std::string userGet(const std::string& pKey) { return znCHogUserSavedData::instanceGet()->strGet(pKey); }
    std::string nextGet() // the screen that follows
    {
        levelLeave();
        return znIHogLevel::levelGet() != nullptr ? level().levelNameGet() : "";
    }
};

TEST_F(znCHogLevelTest, showsTheRoundScoreOnce)
{
    mPlatform.mFiles.fileSet("gui/score.txt", ROUND_SCORE);
    open("rewardLayoutFile = \"gui/score.txt\",\r\n");
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    ASSERT_NE(roundScoreFind(), nullptr);
    EXPECT_EQ(roundScoreFind()->parentGet(), level().parentGet());
    send(znCHogMessageDispatcher::CONTINUE_GAME);
    roundScoreFind()->destroy();
    frame();
    EXPECT_EQ(roundScoreFind(), nullptr);
    EXPECT_EQ(nextGet(), "shop");
}

TEST_F(znCHogLevelTest, goesOnWithoutARoundScore)
{
    for (const char* table : {"", "rewardLayoutFile = \"gui/missing.txt\",\r\n"})
    {
        open(table);
        send(znCHogMessageDispatcher::LEVEL_COMPLETE);
        EXPECT_EQ(nextGet(), "shop") << table;
        levelEnd();
    }
    EXPECT_NE(errorsTake(), std::vector<std::string>()); // the file that is missing
}

TEST_F(znCHogLevelTest, saysThatNoScreenFollows)
{
    sceneSet("quay", "Background.png,0,0\n", "music = \"\",\r\n");
    sceneOpen("quay");
    linesTake();
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    EXPECT_EQ(linesTake(),
              std::vector<std::string>{"No screen follows: the table scenes/quay/quay.txt names none as ACT1NextLev."});
    EXPECT_EQ(nextGet(), "");
}

TEST_F(znCHogLevelTest, leavesACleanSceneBehindWhenItIsWon)
{
    open("");
    tap(0, 0);
    EXPECT_EQ(stateGet("HOT-gull.png"), znICollectableComponent::STATE_COLLECTING);
    send(znCHogMessageDispatcher::CONTINUE_GAME);
    EXPECT_EQ(nextGet(), "shop");
    levelEnd();
    sceneOpen("quay");
    EXPECT_EQ(stateGet("HOT-gull.png"), znICollectableComponent::STATE_ACTIVE);
    tap(0, 0);
    levelEnd(false); // not won: as it stood
    sceneOpen("quay");
    EXPECT_EQ(stateGet("HOT-gull.png"), znICollectableComponent::STATE_COLLECTING);
}

TEST_F(znCHogLevelTest, countsAsWonWhenTheProgramEndsAtTheRoundScore)
{
    mPlatform.mFiles.fileSet("gui/score.txt", ROUND_SCORE);
    open("rewardLayoutFile = \"gui/score.txt\",\r\n");
    tap(0, 0);
    level().levelStateStore();
    EXPECT_EQ(userGet("CurrLev"), "quay");
    EXPECT_EQ(stateGet("HOT-gull.png"), znICollectableComponent::STATE_COLLECTING);
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    level().levelStateStore();
    EXPECT_EQ(userGet("CurrLev"), "shop");
    EXPECT_EQ(stateGet("HOT-gull.png"), znICollectableComponent::STATE_ACTIVE);
    const std::string states = "{1,1,"; // on view, active
    EXPECT_NE(userGet("LevDat:quay").find(states), std::string::npos);
}

TEST_F(znCHogLevelTest, staysTheOneToGoOnWithIfNoScreenFollows)
{
    mPlatform.mFiles.fileSet("gui/score.txt", ROUND_SCORE);
    sceneSet("quay", "Background.png,0,0\n", "rewardLayoutFile = \"gui/score.txt\",\r\n");
    sceneOpen("quay");
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    level().levelStateStore();
    EXPECT_EQ(userGet("CurrLev"), "quay");
}

TEST_F(znCHogLevelTest, hasItsOwnGuiOrNone)
{
    mPlatform.mFiles.fileSet("gui/own.txt", "znCSpriteComponent {\n name = ownGui\n}\n");
    open("GUI = \"gui/own.txt\",\r\n");
    ASSERT_NE(find("ownGui"), nullptr);
    EXPECT_EQ(level().childrenGet().back(), find("ownGui"));
    tap(0, 0); // through the GUI
    EXPECT_EQ(stateGet("HOT-gull.png"), znICollectableComponent::STATE_COLLECTING);
    levelEnd();
    linesTake();
    open("GUI = \"gui/missing.txt\",\r\n");
    const std::vector<std::string> lines = linesTake();
    EXPECT_EQ(
        std::count(lines.begin(), lines.end(), "The level quay goes without a GUI: there is no file gui/missing.txt."),
        1);
}

TEST_F(znCHogLevelTest, putsItsHelpTextIntoItsGui)
{
    mPlatform.mFiles.fileSet(
        "gui/own.txt", "znCTextSpriteComponent {\n name = GUIMinigameHelpText\n font = f.ttf\n fontSize = 20\n}\n");
    open("GUI = \"gui/own.txt\",\r\nhelpText = \"PCK-lantern\",\r\n");
    EXPECT_EQ(find("GUIMinigameHelpText")->componentFind<znCTextSpriteComponent>()->textGet(), "the old lantern");
    levelEnd();
    errorsTake(); // of the font
    mPlatform.mFiles.fileSet("gui/own.txt", "znCSpriteComponent {\n name = ownGui\n}\n");
    open("GUI = \"gui/own.txt\",\r\nhelpText = \"PCK-lantern\",\r\n");
    EXPECT_EQ(errorsTake(),
              std::vector<std::string>{"Expected GUIMinigameHelpText entity to have a text sprite component."});
}

TEST_F(znCHogLevelTest, asksForNoMemoryWhileNothingHappens)
{
    std::string coords = "Background.png,0,0\n";
    for (s32 i = 0; i < 300; ++i)
        coords += "HOT-CMN-" + std::to_string(i % 10) + ".png," + std::to_string(i) + ",10\n";
    for (s32 i = 0; i < 10; ++i)
        imageSet("common/" + std::to_string(i) + ".png", 20, 20);
    sceneSet("quay", coords);
    sceneOpen("quay");
    frame(40);                  // the fade is over
    for (s32 i = 0; i < 2; ++i) // the first round may make room
    {
        const std::size_t before = allocationCountGet();
        for (s32 x = 0; x < 10; ++x)
        {
            mPlatform.mInput.mPointer.send(S3E_POINTER_MOTION_EVENT, motionAt(x * 20 + i));
            znIInputManager::instanceGet()->update();
            znIDisplay::instanceGet()->treeUpdate(FRAME_MS);
        }
        if (i > 0)
            EXPECT_EQ(allocationCountGet() - before, 0u);
    }
}

TEST_F(znCHogLevelTest, playsItsSound)
{
    open("music = \"audio/music/quay.ogg\",\r\nambient = \"audio/sfx/gulls.wav\",\r\n");
    EXPECT_EQ(std::count(mPlatform.mAudioCalls.begin(), mPlatform.mAudioCalls.end(), "play audio/music/quay.ogg 0"), 1);
}

TEST_F(znCHogLevelTest, opensAGuiFileAsAScreen)
{
    mPlatform.mFiles.fileSet("gui/title.txt", "znCSpriteComponent {\n name = titleGui\n}\n");
    znCHogCoreMain::instanceGet()->nextScreenSet("gui/title.txt");
    frame();
    EXPECT_EQ(znIHogLevel::levelGet(), nullptr);
    EXPECT_NE(znCAppCoreMain::instanceGet()->appDisplayChildFind("titleGui"), nullptr);
    open(""); // a GUI file other than the main menu doesn't hold the next screen up
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}
} // namespace
