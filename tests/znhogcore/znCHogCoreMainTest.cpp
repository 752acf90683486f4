#include "znhogcore/src/znCHogCoreMain.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/src/znCScreenFade.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>

namespace
{
class znCHogCoreMainTest : public znCHogTest
{
protected:
    static znCHogUserSavedData& user() { return *znCHogUserSavedData::instanceGet(); }
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
        user().strSet(znCHogUserSavedData::MAP_LEVEL, c.mOffered);
        znCHogCoreMain::instanceGet()->nextScreenAndCurrLevSet(c.mScreen);
        EXPECT_EQ(user().strGet(znCHogUserSavedData::CURRENT_LEVEL), c.mStored) << c.mScreen;
        EXPECT_EQ(user().strGet(znCHogUserSavedData::MAP_LEVEL), c.mOfferedThen) << c.mScreen;
    }
    znCHogCoreMain::instanceGet()->nextScreenSet("");
}

TEST_F(znCHogCoreMainTest, opensAScreenWhenTheOneBeforeHasGone)
{
    constexpr s32 FADE_FRAMES = 500 / FRAME_MS + 5;
    sceneSet("quay", "Background.png,0,0\n", "ACT1NextLev = \"shop\",\r\n");
    sceneSet("shop", "Background.png,0,0\n");
    sceneOpen("quay");
    EXPECT_EQ(user().strGet(znCHogUserSavedData::CURRENT_LEVEL), "quay");
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
    EXPECT_EQ(user().strGet(znCHogUserSavedData::CURRENT_LEVEL), "shop");
    EXPECT_NE(user().strGet("LevDat:quay"), "");
}

// Ends the level "quay" as soon as it hears that it stands.
class Impatient : public znIMessageListener
{
public:
    Impatient() { messagesRegister(); }
    ~Impatient() override { messagesDeregister(); }
    void messagesRegister() override
    {
        znCHogMessageDispatcher::instanceGet()->listenerRegister(znCHogMessageDispatcher::LEVEL_LOAD_COMP, this);
    }
    void messagesDeregister() override
    {
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(znCHogMessageDispatcher::LEVEL_LOAD_COMP, this);
    }
    bool messageProcess(const znCUniqueId&, void*) override
    {
        if (znIHogLevel::levelGet()->levelNameGet() == "quay")
            znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::LEVEL_COMPLETE, nullptr);
        return false;
    }
};

TEST_F(znCHogCoreMainTest, goesOnFromALevelThatIsOverAsItOpens)
{
    sceneSet("quay", "Background.png,0,0\n", "ACT1NextLev = \"shop\",\r\n");
    sceneSet("shop", "Background.png,0,0\n");
    const Impatient impatient;
    sceneOpen("quay");
    frame(2 * 500 / FRAME_MS + 10);
    EXPECT_EQ(level().levelNameGet(), "shop");
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

// Every way to a screen that can't stand ends in the main menu, with the reason in the log.
TEST_F(znCHogCoreMainTest, neverLeavesThePlayerBeforeAnEmptyScreen)
{
    struct Case
    {
        const char* mScreen;
        const char* mLogged;
    };
    const Case cases[] = {
        {"nosuch", "The screen nosuch can't be opened: scenes/nosuch/coords.txt is missing or makes no scene."},
        {"empty", "The screen empty can't be opened: scenes/empty/coords.txt is missing or makes no scene."},
        {"headless", "The screen headless can't be opened: scenes/headless/coords.txt is missing or makes no scene."},
        {"gui/nosuch.txt", "The screen gui/nosuch.txt can't be opened: gui/nosuch.txt is missing or makes no scene."},
        {"gui/broken.txt", "The screen gui/broken.txt can't be opened: gui/broken.txt is missing or makes no scene."},
        {"", "No screen was asked for: the main menu opens."},
    };
    constexpr s32 FADE_FRAMES = 2 * 500 / FRAME_MS + 10;
    mPlatform.mFiles.fileSet("gui/mainmenu/mainmenu.txt", "znCMainMenuGui {\n name = MainMenuGui\n}\n");
    mPlatform.mFiles.fileSet("gui/newplayer/newplayer.txt", "znCNewPlayerGui {\n name = NewPlayerWindow\n}\n");
    mPlatform.mFiles.fileSet("gui/messagebox/messagebox.txt",
                             "znCMessageBoxGui {\n name = Box\n znCTextSpriteComponent {\n  name = "
                             "MessageBoxMessageText\n  font = \"fonts/test.ttf\"\n }\n}\n");
    sceneSet("quay", "Background.png,0,0\n");
    sceneSet("empty", "");
    mPlatform.mFiles.fileSet("gui/broken.txt", "}{ rubbish");
    sceneSet("headless", "HOT-bell.png,0,0\n");
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mScreen);
        sceneOpen("quay");
        frame(FADE_FRAMES);
        user().strSet(znCHogUserSavedData::CURRENT_LEVEL, c.mScreen);
        znCHogCoreMain::instanceGet()->nextScreenSet(c.mScreen);
        znCScreenFade::instanceGet()->fadeOut(znCHogCoreMain::SCREEN_FADE_MS);
        errorsTake();
        linesTake();
        frame(FADE_FRAMES);
        const std::vector<std::string> lines = linesTake();
        EXPECT_NE(std::find(lines.begin(), lines.end(), c.mLogged), lines.end());
        errorsTake(); // of the faulty folders themselves
        EXPECT_EQ(znIHogLevel::levelGet(), nullptr);
        znINode* menu = znCHogCoreMain::instanceGet()->appDisplayChildFind("MainMenuGui");
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(menu->childFind("Box") != nullptr, *c.mScreen != 0);
        EXPECT_EQ(user().strGet(znCHogUserSavedData::CURRENT_LEVEL), "") << "Continue must not lead there again";
        menu->destroy();
        frame();
    }
}
} // namespace
