// The menus around play and the list of players, by the presses of their buttons.

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCProfileManager.h"
#include "znappcore/src/znCScreenFade.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr s32 FADE_FRAMES = 500 / 16 + 5;

class menusTest : public znCHogTest
{
protected:
    menusTest() { mPlatform.mFiles.fileSet("strings.txt", "deleteprofilewarning = \"Strike %NAME off?\",\r\n"); }

    static std::string button(const std::string& pName)
    {
        return "znCButtonComponent { name = " + pName + " buttonImage = \"button.png\" }\n";
    }
    static std::string text(const std::string& pName)
    {
        return "znCTextSpriteComponent { name = " + pName + " font = f.ttf fontSize = 20 }\n";
    }

    znCEntity* guiOpen(const std::string& pText)
    {
        imageSet("button.png", 40, 20);
        mPlatform.mFiles.fileSet("gui/test.txt", pText);
        znCEntity* gui = znIGuiComponent::guiCreateFromFile(znCResourceName("gui/test.txt", znCResourceName::GAME_DATA),
                                                            nullptr, true);
        znCHogCoreMain::instanceGet()->appDisplayChildAdd(gui);
        mGui = gui;
        frame();
        return gui;
    }

    znCEntity* widget(const std::string& pName) { return dynamic_cast<znCEntity*>(mGui->childFind(pName)); }
    std::string textOf(const std::string& pName)
    {
        return widget(pName)->componentFind<znCTextSpriteComponent>()->textGet();
    }
    void click(const std::string& pName)
    {
        widget(pName)->componentGet<znCButtonComponent>()->actionPerform();
        frame();
    }
    static znCGlobalSavedData& global() { return *znCGlobalSavedData::instanceGet(); }
    static znCHogUserSavedData& user() { return *znCHogUserSavedData::instanceGet(); }

    znCEntity* mGui = nullptr;
};

class znCChoosePlayerGuiTest : public menusTest
{
protected:
    void open()
    {
        mPlatform.mFiles.fileSet("gui/confirmbox/confirmbox.txt",
                                 "znCConfirmBoxGui {\n name = Confirm\n" + text("ConfirmBoxMessageText") +
                                     button("ConfirmBoxYesButton") + button("ConfirmBoxNoButton") + "}\n");
        std::string slots;
        for (s32 i = 0; i < 3; ++i)
            slots += "znCPlayerSlotGui {\n name = ChoosePlayerProfile" + std::to_string(i) +
                     "\n posY = " + std::to_string(i * 40) + "\n" + text("PlayerSlotNameText") +
                     button("Slot" + std::to_string(i)) + "}\n";
        guiOpen("znCChoosePlayerGui {\n name = Choose\n znCSpriteComponent { name = ChoosePlayerHighlight image = "
                "\"button.png\" posX = 7 }\n" +
                slots + button("ChoosePlayerNewButton") + button("ChoosePlayerDeleteButton") +
                button("ChoosePlayerOKButton") + "}\n");
    }

    static void playersMake(const std::string& pNames)
    {
        for (const char name : pNames)
        {
            znCProfileManager::instanceGet()->profileCreate(std::string(1, name));
            user().boolSet(znCHogUserSavedData::FULL_SCREEN, false); // as the window is here
        }
    }

    // The names on the list, the current player's in capitals; then the buttons that show.
    std::string listGet()
    {
        std::string list;
        for (s32 i = 0; i < 3; ++i)
        {
            const auto* slot = widget("ChoosePlayerProfile" + std::to_string(i));
            if (!slot->activeGet())
                continue;
            const auto* name = dynamic_cast<znCEntity*>(const_cast<znCEntity*>(slot)->childFind("PlayerSlotNameText"));
            std::string shown = name->componentFind<znCTextSpriteComponent>()->textGet();
            if (i == global().currentProfileGet())
                shown[0] = static_cast<char>(std::toupper(shown[0]));
            list += shown;
        }
        list += ' ';
        for (const char* name : {"New", "Delete", "OK"})
            if (widget(std::string("ChoosePlayer") + name + "Button")->activeGet())
                list += name[0];
        const znCEntity* highlight = widget("ChoosePlayerHighlight");
        return list + (highlight->activeGet() ? " " + std::to_string(highlight->posGet().mY) : " -");
    }
};

TEST_F(znCChoosePlayerGuiTest, choosesAndDeletes)
{
    struct Case
    {
        const char* mPlayers; // in the order of their making; the last is the current one
        const char* mPress;   // slot, then "d" for delete and "y" or "n" for the answer
        const char* mList;
    };
    const Case cases[] = {
        {"", "", " N -"},           {"a", "", "A NDO 0"},       {"abc", "", "abC DO 80"},   {"abc", "0", "Abc DO 0"},
        {"abc", "dn", "abC DO 80"}, {"abc", "dy", "aB NDO 40"}, {"abc", "0dy", "Bc NDO 0"}, {"abc", "1dy", "aC NDO 40"},
        {"a", "dy", " N -"},        {"ab", "0dydy", " N -"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(std::string(c.mPlayers) + " " + c.mPress);
        playersMake(c.mPlayers);
        open();
        for (const char* press = c.mPress; *press != 0; ++press)
            click(*press == 'd'   ? "ChoosePlayerDeleteButton"
                  : *press == 'y' ? "ConfirmBoxYesButton"
                  : *press == 'n' ? "ConfirmBoxNoButton"
                                  : "Slot" + std::string(1, *press));
        EXPECT_EQ(listGet(), c.mList);
        mGui->destroy();
        frame();
        while (global().profileCountGet() > 0)
            znCProfileManager::instanceGet()->profileDelete(0);
    }
}

TEST_F(znCChoosePlayerGuiTest, keepsEveryPlayersProgressApart)
{
    playersMake("ab");
    user().strSet(znCHogUserSavedData::CURRENT_LEVEL, "quay");
    open();
    click("Slot0");
    EXPECT_EQ(user().strGet(znCHogUserSavedData::CURRENT_LEVEL), "");
    click("Slot1");
    EXPECT_EQ(user().strGet(znCHogUserSavedData::CURRENT_LEVEL), "quay");
    click("ChoosePlayerOKButton");
    EXPECT_EQ(znCHogCoreMain::instanceGet()->appDisplayChildFind("Choose"), nullptr);
    EXPECT_EQ(global().currentProfileGet(), 1);
}

TEST_F(znCChoosePlayerGuiTest, saysThatTheListIsTooShort)
{
    playersMake("abcd");
    open();
    EXPECT_EQ(errorsTake().front(), "Current profile number is higher than the number of profile slots.");
    EXPECT_EQ(listGet(), "abc DO -");
    EXPECT_EQ(global().currentProfileGet(), 3);
}

TEST_F(menusTest, leavesALevelForTheMainMenu)
{
    struct Case
    {
        const char* mComponent;
        const char* mButton;
        const char* mCurrentLevel; // then
    };
    const Case cases[] = {{"znCPauseMenuGui", "PauseQuitButton", "quay"},
                          {"znCEndMenuGui", "endScreenGUIContinueButton", "map->noMoreLevels"}};
    sceneSet("quay", "Background.png,0,0\n");
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mComponent);
        sceneOpen("quay");
        frame(FADE_FRAMES);
        user().strSet(znCHogUserSavedData::MAP_LEVEL, "shop");
        znCEntity* gui = guiOpen(c.mComponent + std::string(" {\n name = Menu\n") + button(c.mButton) + "}\n");
        click(c.mButton);
        frame(FADE_FRAMES);
        EXPECT_EQ(znIHogLevel::levelGet(), nullptr);
        EXPECT_NE(znCHogCoreMain::instanceGet()->appDisplayChildFind("Title"), nullptr);
        EXPECT_EQ(user().strGet(znCHogUserSavedData::CURRENT_LEVEL), c.mCurrentLevel);
        gui->destroy();
        frame();
    }
    EXPECT_EQ(user().strGet(znCHogUserSavedData::MAP_LEVEL), "");
}

// What the options write holds the points of a find already; without the find it could be won a second time.
TEST_F(menusTest, storesTheFindsWithTheOptions)
{
    const auto slider = [](const char* pName)
    {
        return std::string("znCSliderComponent { name = ") + pName + " sliderImage = button.png range = 100 }\n";
    };
    znCProfileManager::instanceGet()->profileCreate("Wren");
    imageSet("scenes/quay/hot-bell.png", 40, 40);
    sceneSet("quay", "Background.png,0,0\nHOT-bell.png,0,0\n");
    sceneOpen("quay");
    const std::string before = user().levelStateGet("quay");
    tap(0, 0);
    guiOpen("znCOptionsGui {\n name = Menu\n" + slider("OptionsSfxSlider") + slider("OptionsMusicSlider") +
            button("OptionsCloseButton") + "}\n");
    EXPECT_EQ(user().levelStateGet("quay"), before) << "nothing else has stored it yet";
    click("OptionsCloseButton");
    EXPECT_NE(user().levelStateGet("quay"), before);
}

TEST_F(menusTest, showsTheHighScores)
{
    programStop();
    mPlatform.mFiles.fileSet("appsettings.txt", std::string(znCHogTestProgram::SETTINGS) +
                                                    "highName0 = \"Ann\",\r\nhighScore0 = \"10\",\r\n"
                                                    "highName1 = \"Ben\",\r\nhighScore1 = \"30\",\r\n");
    programStart();
    guiOpen("znCHighScoresGui {\n" + text("HighScoresScore0") + text("HighScoresName0") + text("HighScoresScore1") +
            text("HighScoresName1") + "}\n");
    EXPECT_EQ(textOf("HighScoresName0") + textOf("HighScoresScore0"), "Ben30");
    EXPECT_EQ(textOf("HighScoresName1") + textOf("HighScoresScore1"), "Ann10");
    guiOpen("znCHighScoresGui {\n" + text("HighScoresScore0") + text("HighScoresName0") + "}\n");
    EXPECT_EQ(errorsTake().front(), "High score table has less entries than the saved data.");
}
} // namespace
