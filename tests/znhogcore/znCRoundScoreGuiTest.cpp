#include "znhogcore/components/gui/znCRoundScoreGui.h"

#include "tests/znhogcore/znCLevelEndTest.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCProfileManager.h"
#include "znhogcore/components/znCBonusEntityCountComponent.h"

namespace
{
constexpr s32 SHOW_DELAY_MS = 1100;

class znCRoundScoreGuiTest : public znCLevelEndTest
{
protected:
    static constexpr s32 REPLAY_X = -200;
    static constexpr s32 CONTINUE_X = 200;

    void SetUp() override
    {
        mPlatform.mFiles.fileSet("strings.txt", "numOfNum = \" of \",\r\nroundScoreCompletion = \"Solved\",\r\n"
                                                "roundScoreEagleEye = \"No hints\",\r\n");
        std::string elements;
        for (const char* row : {"0", "1", "2"})
            elements += textGet(std::string("Item") + row + "Text") + textGet(std::string("Item") + row + "Val");
        elements += "znCTextSpriteComponent { name = score font = f.ttf fontSize = 20 }\n" +
                    buttonGet("roundScoreReplayButton", REPLAY_X) + buttonGet("roundScoreContinueButton", CONTINUE_X);
        mPlatform.mFiles.fileSet("gui/score.txt", "znCRoundScoreGui {\n name = roundScoreGui\n" + elements + "}\n");
        znCLevelEndTest::SetUp();
    }
    static std::string textGet(const std::string& pName)
    {
        return "znCRevealingTextSpriteComponent { name = roundScoreWindow" + pName +
               " font = f.ttf fontSize = 20 delayedStart = true msPerChar = 10 }\n";
    }
    static std::string buttonGet(const std::string& pName, s32 pX)
    {
        return "znCButtonComponent { name = " + pName + " buttonImage = button.png posX = " + std::to_string(pX) +
               " }\n";
    }
    // A level with one piece and these other things.
    void open(const std::string& pLevel, const std::string& pThings = "")
    {
        sceneSet(pLevel, "Background.png,0,0\nTST-p0.png,0,100\n" + pThings,
                 "ACT1NextLev = \"shop\",\r\nrewardLayoutFile = \"gui/score.txt\",\r\n");
        sceneSet("shop", "Background.png,0,0\n");
        sceneOpen(pLevel);
    }
    void winAndWait()
    {
        win();
        framesRun(CELEBRATION_MS);
        ASSERT_NE(roundScore(), nullptr);
        errorsTake(); // of the font that the texts lack
    }
    static std::string shownGet(const std::string& pName) // what shows of a text; "-" if it is hidden
    {
        const auto* entity = dynamic_cast<const znCEntity*>(roundScore()->childFind(pName));
        return entity->activeGet() ? entity->componentFind<znCTextSpriteComponent>()->textGet() : "-";
    }
    // Labels and values of the three rows, as "Solved|500|No hints|100|-|-".
    static std::string rowsGet()
    {
        std::string rows;
        for (const char* item : {"0Text", "0Val", "1Text", "1Val", "2Text", "2Val"})
            rows += shownGet(std::string("roundScoreWindowItem") + item) + "|";
        rows.pop_back();
        return rows;
    }
    static s32 currencyGet() { return user().s32Get(znCHogUserSavedData::CURRENCY); }
    static void streakSet(s32 pLevels) { user().s32Set(znCHogUserSavedData::HINT_FREE_STREAK, pLevels); }
    void collect(const std::string& pName)
    {
        collectable(pName).activate();
        collectable(pName).collectionProcessTrigger();
    }
    // The stage of the celebration in a level's stored state.
    static std::string stageOf(std::string pState)
    {
        for (s32 field = 0; field < 7; ++field)
            znINode::strLoad(pState);
        return znINode::strLoad(pState);
    }
    // What the player has on the disk.
    znCVariableTable diskGet()
    {
        const std::string file = mPlatform.mFiles.fileGet("ram://user0.txt");
        znCVariableTable table;
        table.textParse(file.data(), file.data() + file.size());
        return table;
    }
};

TEST_F(znCRoundScoreGuiTest, booksTheRewardWhenItOpensAndTellsWhatItIs)
{
    struct Case
    {
        const char* mLevel;
        s32 mStreak;
        bool mHintButton;
        s32 mReward;
        const char* mRows;
    };
    const Case cases[] = {
        {"quay", 0, true, 0, "-|-|-|-||0"},
        {"quay", -1, true, 0, "-|-|-|-||0"},
        {"quay", 2, true, 100, "-|-|-|-||100"},
        {"quay", 2, false, 0, "-|-|-|-||0"},
        {"a_game", 0, true, 500, "Solved|500|No hints|0|-|-"},
        {"a_game", 1, true, 600, "Solved|500|No hints|100|-|-"},
        {"a_game", 1, false, 500, "Solved|500|-|-|-|-"},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mLevel);
        panelSet(c.mHintButton ? "znCSpriteComponent { name = gameGuiHintButton }\n" : "");
        open(c.mLevel);
        streakSet(c.mStreak);
        user().s32Set(znCHogUserSavedData::CURRENCY, 1000);
        winAndWait();
        EXPECT_EQ(currencyGet(), 1000 + c.mReward);
        framesRun(SHOW_DELAY_MS + 500);
        EXPECT_EQ(rowsGet(), c.mRows);
        const bool minigame = *c.mLevel == 'a';
        EXPECT_EQ(shownGet("score"), minigame ? "" : std::to_string(currencyGet()));
        EXPECT_EQ(roundScore()->childFind("roundScoreReplayButton")->activeGet(), !minigame);
        EXPECT_EQ(roundScore()->childFind("roundScoreContinueButton")->posGet().mX, minigame ? REPLAY_X : CONTINUE_X);
        levelEnd();
    }
}

TEST_F(znCRoundScoreGuiTest, countsTheBonusThingsThatWereFound)
{
    open("quay", "BNS-a.png,0,0\nBNS-b.png,50,0\nBNS-c.png,-50,0\nBSL-hat.png,0,-50\nBNSL-d.png,0,-100\n");
    collect("BNS-a.png");
    collect("BSL-hat.png");
    framesRun(2100);
    EXPECT_EQ(unlistedTake(), std::vector<std::string>{"hat"});
    EXPECT_EQ(currencyGet(), 20 + 50);
    collect("BNS-b.png");
    levelEnd(false); // on its way: counted when it has arrived
    sceneOpen("quay");
    framesRun(2100);
    EXPECT_EQ(currencyGet(), 20 + 50 + 20);
    winAndWait();
    framesRun(SHOW_DELAY_MS + 500);
    EXPECT_EQ(rowsGet(), "|2 of 3||1 of 1||0");
    tap(REPLAY_X, 0);
    frame();
    EXPECT_EQ(roundScore(), nullptr);
    EXPECT_EQ(stateGet("BNS-a.png"), znICollectableComponent::STATE_COLLECTED);
    winAndWait();
    framesRun(SHOW_DELAY_MS + 500);
    EXPECT_EQ(rowsGet(), "|2 of 3||1 of 1||0");
    std::string saved;
    level().componentGet<znCBonusEntityCountComponent>()->mySave(saved);
    EXPECT_EQ(saved, std::to_string(znCUniqueId("znCBonusEntityCountComponent").idGet()) + ",2,3,1,1,");
    levelEnd();
}

TEST_F(znCRoundScoreGuiTest, appearsAfterAWhileAndBehindAnAchievement)
{
    open("quay");
    winAndWait();
    EXPECT_FALSE(roundScore()->activeGet());
    auto* achievement = new znCEntity("achievementEffectScreenGui");
    znCAppCoreMain::instanceGet()->appDisplayChildAdd(achievement);
    framesRun(2 * SHOW_DELAY_MS);
    EXPECT_FALSE(roundScore()->activeGet());
    achievement->destroy();
    frame(SHOW_DELAY_MS / FRAME_MS - 2);
    EXPECT_FALSE(roundScore()->activeGet());
    frame(4);
    EXPECT_TRUE(roundScore()->activeGet());
}

TEST_F(znCRoundScoreGuiTest, revealsOneTextAfterTheOther)
{
    open("a_game");
    winAndWait();
    frame(SHOW_DELAY_MS / FRAME_MS);
    std::vector<std::string> seen;
    for (s32 i = 0; i < 60; ++i)
    {
        const std::string rows = rowsGet();
        if (seen.empty() || seen.back() != rows)
            seen.push_back(rows);
        frame();
    }
    ASSERT_GT(seen.size(), 4u);
    EXPECT_EQ(seen.front(), "||||-|-");
    EXPECT_EQ(seen.back(), "Solved|500|No hints|0|-|-");
    for (const std::string& rows : seen)
        EXPECT_TRUE(rows.starts_with("Solved|") || rows.find_first_of("05N") == std::string::npos) << rows;
}

TEST_F(znCRoundScoreGuiTest, leadsOnByItselfOutOfASkippedLevel)
{
    open("a_game");
    level().levelSkip();
    for (s32 i = 0; i < (CELEBRATION_MS + SHOW_DELAY_MS + 3 * znCHogCoreMain::SCREEN_FADE_MS) / FRAME_MS; ++i)
    {
        frame();
        EXPECT_FALSE(roundScore() != nullptr && roundScore()->activeGet());
    }
    errorsTake();
    ASSERT_NE(znIHogLevel::levelGet(), nullptr);
    EXPECT_EQ(level().levelNameGet(), "shop");
    EXPECT_EQ(currencyGet(), 500);
}

TEST_F(znCRoundScoreGuiTest, takesTheFirstPressOnly)
{
    open("quay");
    winAndWait();
    framesRun(SHOW_DELAY_MS);
    tap(CONTINUE_X, 0);
    tap(REPLAY_X, 0); // while the screen fades
    tap(CONTINUE_X, 0);
    framesRun(3 * znCHogCoreMain::SCREEN_FADE_MS);
    ASSERT_NE(znIHogLevel::levelGet(), nullptr);
    EXPECT_EQ(level().levelNameGet(), "shop");
    EXPECT_EQ(roundScore(), nullptr);
}

// Whenever the program ends without a word, the reward of a level and a level that can still be won for it never lie on
// the disk together, and neither is lost.
TEST_F(znCRoundScoreGuiTest, paysOnceWheneverTheProgramIsKilled)
{
    znCProfileManager::instanceGet()->profileCreate("Ann");
    open("a_game");
    user().s32Set(znCHogUserSavedData::CURRENCY, 7);
    frame(100);
    win();
    std::string former;
    s32 paidFiles = 0;
    for (s32 ms = 0; ms < CELEBRATION_MS + SHOW_DELAY_MS + 20000; ms += FRAME_MS)
    {
        if (ms / FRAME_MS == (CELEBRATION_MS + SHOW_DELAY_MS) / FRAME_MS + 20)
            tap(REPLAY_X, 0); // where the way on stands behind a minigame
        frame();
        const std::string file = mPlatform.mFiles.fileGet("ram://user0.txt");
        if (file == former)
            continue;
        former = file;
        const znCVariableTable disk = diskGet();
        const bool paid = disk.s32Get("currency") == 507;
        paidFiles += paid ? 1 : 0;
        EXPECT_TRUE(paid || disk.s32Get("currency") == 7 || disk.s32Get("currency") == 0) << disk.s32Get("currency");
        EXPECT_EQ(disk.strGet("CurrLev") == "shop", paid);
        if (!paid)
            continue;
        EXPECT_EQ(stageOf(disk.strGet("LevDat:a_game")), "0") << "no celebration is under way";
    }
    errorsTake();
    EXPECT_GT(paidFiles, 0);
    EXPECT_EQ(level().levelNameGet(), "shop");
}

TEST_F(znCRoundScoreGuiTest, paysOnceHoweverTheLevelIsLeft)
{
    struct Case
    {
        const char* mWhat;
        s32 mAtMs;  // behind the last report
        bool mQuit; // to the main menu, otherwise the program ends
        s32 mCurrency;
        const char* mScreen;
    };
    const s32 behind = CELEBRATION_MS + SHOW_DELAY_MS + 200;
    const Case cases[] = {
        {"in the sweep", 500, false, 0, "a_game"},
        {"in the sweep, to the menu", 500, true, 0, "a_game"},
        {"well done", 2000, false, 0, "a_game"},
        {"before the score shows", CELEBRATION_MS + 500, false, 500, "shop"},
        {"score on view", behind, false, 500, "shop"},
        {"score on view, to the menu", behind, true, 500, "shop"},
    };
    znCProfileManager::instanceGet()->profileCreate("Ann");
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mWhat);
        open("a_game");
        user().s32Set(znCHogUserSavedData::CURRENCY, 0);
        win();
        framesRun(c.mAtMs);
        if (c.mQuit)
        {
            mPlatform.mFiles.fileSet("gui/mainmenu/mainmenu.txt", "znCMainMenuGui { name = MainMenuGui }\n");
            level().levelQuit();
            framesRun(3 * znCHogCoreMain::SCREEN_FADE_MS);
        }
        errorsTake();
        restart();
        mPlatform.mFiles.fileRemove("gui/mainmenu/mainmenu.txt"); // it would hold up what follows
        EXPECT_EQ(currencyGet(), c.mCurrency);
        EXPECT_EQ(user().currentLevelGet(), c.mScreen);
        sceneOpen("a_game");
        framesRun(CELEBRATION_MS + 200);
        EXPECT_EQ(currencyGet(), 500) << "won before, or clean and not won again";
        EXPECT_EQ(roundScore() != nullptr, c.mCurrency == 0);
        errorsTake();
        if (roundScore() != nullptr)
        {
            send(znCHogMessageDispatcher::CONTINUE_GAME);
            levelLeave();
        }
        levelEnd();
        errorsTake(); // of the main menu that there isn't
    }
}

// A scene ends by its list, which reports itself anew when the scene comes back.
TEST_F(znCRoundScoreGuiTest, paysASceneWithAListOnceHoweverItIsLeft)
{
    constexpr s32 FIND_MS = 2000;    // the flight to the list
    constexpr s32 REWARD = 10 + 100; // the find, and no hint
    struct Case
    {
        const char* mWhat;
        s32 mAtMs; // behind the press on the last thing
        s32 mCurrency;
    };
    const Case cases[] = {
        {"on its way to the list", FIND_MS / 2, 0},
        {"in the sweep", FIND_MS + 500, 10},
        {"well done", FIND_MS + 2000, 10},
        {"score on view", FIND_MS + CELEBRATION_MS + SHOW_DELAY_MS + 500, REWARD},
    };
    panelSet("znCSpriteComponent { name = gameGuiHintButton posX = 100 posY = 50 }\n"
             "znCPickListGui { name = hogPickList requiredForActCompletion = true randomEntityTypes = PCK-\n"
             " znCSingleItemPickListEntryGui { name = pickItem0\n"
             "  znCTextSpriteComponent { name = pickListEntryText font = f.ttf fontSize = 20 }\n }\n}\n");
    sceneSet("quay", "Background.png,0,0\nPCK-can.png,0,100\n",
             "ACT1NextLev = \"shop\",\r\nrewardLayoutFile = \"gui/score.txt\",\r\n");
    sceneSet("shop", "Background.png,0,0\n");
    znCProfileManager::instanceGet()->profileCreate("Ann");
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mWhat);
        sceneOpen("quay");
        user().s32Set(znCHogUserSavedData::CURRENCY, 0);
        streakSet(1);
        framesRun(200);
        tap(0, 100);
        framesRun(c.mAtMs);
        EXPECT_EQ(roundScore() != nullptr, c.mCurrency == REWARD);
        errorsTake(); // of the font
        restart();
        EXPECT_EQ(currencyGet(), c.mCurrency);
        if (c.mCurrency == REWARD)
        {
            EXPECT_EQ(user().currentLevelGet(), "shop");
            continue;
        }
        sceneOpen("quay");
        framesRun(FIND_MS + CELEBRATION_MS + SHOW_DELAY_MS + 500);
        ASSERT_NE(roundScore(), nullptr);
        EXPECT_EQ(currencyGet(), REWARD);
        EXPECT_EQ(rowsGet(), "-|-|-|-||100");
        EXPECT_EQ(shownGet("score"), std::to_string(REWARD));
        // Played again, it is won again.
        tap(REPLAY_X, 0);
        framesRun(200);
        EXPECT_EQ(roundScore(), nullptr);
        tap(0, 100);
        framesRun(FIND_MS + CELEBRATION_MS + SHOW_DELAY_MS + 500);
        ASSERT_NE(roundScore(), nullptr);
        EXPECT_EQ(currencyGet(), 2 * REWARD);
        tap(CONTINUE_X, 0);
        framesRun(3 * znCHogCoreMain::SCREEN_FADE_MS);
        EXPECT_EQ(level().levelNameGet(), "shop");
        EXPECT_EQ(currencyGet(), 2 * REWARD);
        levelEnd();
        errorsTake(); // of the font
    }
}

TEST_F(znCRoundScoreGuiTest, isNotPaidTwiceForAFileThatGivesItAnotherName)
{
    open("a_game");
    mPlatform.mFiles.fileSet("gui/score.txt", "znCRoundScoreGui { name = score }\n");
    linesTake();
    winAndWait();
    const std::vector<std::string> lines = linesTake();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "The round score in gui/score.txt must be named roundScoreGui."),
              1);
    send(znCHogMessageDispatcher::CONTINUE_GAME);
    framesRun(3 * znCHogCoreMain::SCREEN_FADE_MS);
    EXPECT_EQ(level().levelNameGet(), "shop");
    EXPECT_EQ(currencyGet(), 500);
}
} // namespace
