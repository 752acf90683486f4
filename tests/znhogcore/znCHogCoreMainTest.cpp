#include "znhogcore/src/znCHogCoreMain.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
class znCHogCoreMainTest : public znCHogTest
{
protected:
    static znCUserSavedData& user() { return *znCUserSavedData::instanceGet(); }
};

TEST_F(znCHogCoreMainTest, followsTheMapRule)
{
    struct Case
    {
        const char* mScreen;
        const char* mOffered; // before
        const char* mStored;
        const char* mOfferedThen;
    };
    const Case cases[] = {
        {"quay", "", "quay", ""},
        {"map", "", "map", ""},
        {"map->quay", "", "map", "quay"},
        {"map->quay", "shop", "map", "shop"}, // an offer stands
        {"quay", "quay", "quay", ""},         // arrived at what was offered
        {"shop", "quay", "shop", "quay"},
        {"map->", "", "map", ""},
        {"", "", "", ""},
    };
    for (const Case& c : cases)
    {
        user().strSet(znCHogCoreMain::MAP_LEVEL_KEY, c.mOffered);
        znCHogCoreMain::instanceGet()->nextScreenAndCurrLevSet(c.mScreen);
        EXPECT_EQ(user().strGet(znCHogCoreMain::CURRENT_LEVEL_KEY), c.mStored) << c.mScreen;
        EXPECT_EQ(user().strGet(znCHogCoreMain::MAP_LEVEL_KEY), c.mOfferedThen) << c.mScreen;
    }
    znCHogCoreMain::instanceGet()->nextScreenSet("");
}

TEST_F(znCHogCoreMainTest, opensAScreenWhenTheOneBeforeHasGone)
{
    constexpr s32 FADE_FRAMES = 500 / FRAME_MS + 5;
    sceneSet("quay", "Background.png,0,0\n", "ACT1NextLev = \"shop\",\r\n");
    sceneSet("shop", "Background.png,0,0\n");
    sceneOpen("quay");
    EXPECT_EQ(user().strGet(znCHogCoreMain::CURRENT_LEVEL_KEY), "quay");
    frame(FADE_FRAMES);
    mEar.take();
    send(znCHogMessageDispatcher::CONTINUE_GAME);
    frame(FADE_FRAMES - 10);
    EXPECT_EQ(level().levelNameGet(), "quay"); // the screen isn't dark yet
    EXPECT_EQ(mEar.take(), "");
    znIHogLevel::create("shop"); // there is never a second one
    EXPECT_EQ(errorsTake(), std::vector<std::string>{"Already created."});
    EXPECT_EQ(level().levelNameGet(), "quay");
    frame(FADE_FRAMES);
    EXPECT_EQ(mEar.take(), "resetLevel; postResetLevel; levelLoadComp; ");
    EXPECT_EQ(level().levelNameGet(), "shop");
    EXPECT_EQ(user().strGet(znCHogCoreMain::CURRENT_LEVEL_KEY), "shop");
    EXPECT_NE(user().strGet("LevDat:quay"), "");
}

TEST_F(znCHogCoreMainTest, storesALevelThatStandsAtTheEnd)
{
    sceneSet("quay", "Background.png,0,0\n");
    sceneOpen("quay");
    frame(10);
    level().levelStateStore();
    EXPECT_TRUE(user().strGet("LevDat:quay").starts_with("c8e03bb6{1,"));
    EXPECT_EQ(user().s32Get("time"), 10 * FRAME_MS + 1); // the step that places the scene counts
}

TEST_F(znCHogCoreMainTest, beginsWithTheFirstScene)
{
    programStop();
    mPlatform.mFiles.fileSet("appsettings.txt",
                             "appCanvasW = \"800\",\r\nappCanvasH = \"600\",\r\nfirstScene = \"quay\",\r\n");
    sceneSet("quay", "Background.png,0,0\n");
    programStart();
    znCHogCoreMain::instanceGet()->firstSceneSet();
    frame();
    EXPECT_EQ(level().levelNameGet(), "quay");
}
} // namespace
