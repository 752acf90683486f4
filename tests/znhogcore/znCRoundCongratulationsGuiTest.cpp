#include "znhogcore/components/gui/znCRoundCongratulationsGui.h"

#include "tests/znhogcore/znCLevelEndTest.h"
#include "znappcore/components/znCParticleEmitterComponent.h"

#include <set>

namespace
{
constexpr s32 SWEEP_DELAY_MS = 1000;
constexpr s32 SWEEP_STEP_MS = 75;
constexpr s32 WELL_DONE_MS = 3000;

class znCRoundCongratulationsGuiTest : public znCLevelEndTest
{
protected:
    // Advances the level alone by exactly this time.
    void levelRun(s32 pMs) { level().update(pMs); }
    bool wellDoneStands() { return find("wellDone") != nullptr; }
    void roundScoreClose()
    {
        if (roundScore() != nullptr)
            roundScore()->destroy();
        frame();
    }
    // Pieces with sparkles, by their numbers.
    std::set<s32> sparklingGet()
    {
        std::set<s32> found;
        for (const znCEntity* entity : level().entitiesWithComponentsGet({&typeid(znCParticleEmitterComponent)}))
            found.insert(std::stoi(entity->nameGet().substr(5))); // behind "TST-p"
        return found;
    }
    // A level of that many pieces, in a row from left to right but for the first, which is the rightmost.
    void rowOpen(s32 pCount)
    {
        std::vector<znPoint> places{{300, 0}};
        for (s32 i = 1; i < pCount; ++i)
            places.emplace_back(-300 + i, 0);
        piecesSet("a_game", places);
        sceneOpen("a_game");
        level().levelSkip();
    }
};

TEST_F(znCRoundCongratulationsGuiTest, celebratesForFourSecondsBeforeTheEnd)
{
    piecesSet("quay", {{0, 0}});
    sceneOpen("quay");
    win();
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats ");
    levelRun(SWEEP_DELAY_MS - 1);
    EXPECT_FALSE(wellDoneStands());
    levelRun(1);
    EXPECT_TRUE(wellDoneStands());
    EXPECT_EQ(find("wellDone")->parentGet(), &level());
    levelRun(WELL_DONE_MS - 1);
    EXPECT_EQ(mEndEar.take(), "");
    levelRun(1);
    EXPECT_EQ(mEndEar.take(), "LevelComplete ");
    frame();
    EXPECT_FALSE(wellDoneStands());
    levelRun(WELL_DONE_MS);
    EXPECT_EQ(mEndEar.take(), "");
}

TEST_F(znCRoundCongratulationsGuiTest, sweepsThePiecesFromBothSides)
{
    struct Case
    {
        s32 mPieces;
        std::vector<std::set<s32>> mSteps; // which sparkle after each
    };
    const Case cases[] = {
        {1, {}},
        {2, {{0, 1}}},
        {3, {{0, 1}}}, // a lone one in the middle goes without
        {4, {{0, 1}, {0, 1, 2, 3}}},
        {5, {{0, 1}, {0, 1, 2, 4}}},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mPieces);
        rowOpen(c.mPieces);
        levelRun(SWEEP_DELAY_MS - 1);
        EXPECT_EQ(sparklingGet(), std::set<s32>());
        levelRun(1);
        for (const std::set<s32>& step : c.mSteps)
        {
            EXPECT_FALSE(wellDoneStands());
            EXPECT_EQ(sparklingGet(), step);
            levelRun(SWEEP_STEP_MS);
        }
        EXPECT_TRUE(wellDoneStands());
        levelEnd();
    }
}

TEST_F(znCRoundCongratulationsGuiTest, leavesOutEveryOtherPieceOfVeryMany)
{
    const std::pair<s32, std::size_t> cases[] = {{50, 50}, {51, 24}, {52, 26}}; // 25 of 51: the middle one goes without
    for (const auto& [pieces, sparkling] : cases)
    {
        rowOpen(pieces);
        levelRun(SWEEP_DELAY_MS);
        while (!wellDoneStands())
            levelRun(SWEEP_STEP_MS);
        EXPECT_EQ(sparklingGet().size(), sparkling) << pieces;
        EXPECT_EQ(sparklingGet().count(1), pieces > 50 ? 0u : 1u) << "the leftmost";
        levelEnd();
    }
}

TEST_F(znCRoundCongratulationsGuiTest, leavesTheLastWordToThePlayer)
{
    panelSet("znCButtonComponent { name = playerControlledContinueBtn buttonImage = button.png }\n");
    piecesSet("quay", {{100, 0}});
    sceneOpen("quay");
    EXPECT_FALSE(find("playerControlledContinueBtn")->activeGet());
    win();
    framesRun(CELEBRATION_MS);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteWaitingCongrats LevelCompleteWaiting ");
    framesRun(CELEBRATION_MS);
    tap(0, 0);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteWaitingCongrats LevelComplete ");
}

TEST_F(znCRoundCongratulationsGuiTest, beginsItsStageAnewWhenItsLevelComesBack)
{
    struct Case
    {
        bool mWait;
        s32 mSavedMs; // behind the last report
        s32 mLeftMs;  // to the announcement when the level is back, within a frame or two
    };
    const Case cases[] = {
        {false, SWEEP_DELAY_MS / 2, SWEEP_DELAY_MS + WELL_DONE_MS},
        {false, SWEEP_DELAY_MS + 2000, WELL_DONE_MS},
        {false, CELEBRATION_MS, 0},
        {true, SWEEP_DELAY_MS / 2, SWEEP_DELAY_MS + WELL_DONE_MS},
        {true, SWEEP_DELAY_MS + 2000, WELL_DONE_MS},
        {true, CELEBRATION_MS, 0},
    };
    constexpr s32 SLACK_MS = 3 * FRAME_MS;
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mSavedMs);
        panelSet(c.mWait ? "znCButtonComponent { name = playerControlledContinueBtn buttonImage = button.png }\n" : "");
        piecesSet("quay", {{100, 0}}, "rewardLayoutFile = \"gui/score.txt\",\r\n");
        mPlatform.mFiles.fileSet("gui/score.txt", "znCSpriteComponent { name = roundScoreGui }\n");
        sceneOpen("quay");
        win();
        framesRun(c.mSavedMs);
        // The state as it stands, whatever the level does with it when it is left.
        std::string saved;
        level().treeSave(saved);
        roundScoreClose();
        levelEnd();
        user().levelStateSet("quay", saved);
        mEndEar.take();
        sceneOpen("quay");
        const std::string report = c.mWait ? "LevelCompleteWaitingCongrats " : "LevelCompleteCongrats ";
        const std::string end = c.mWait ? "LevelCompleteWaiting " : "LevelComplete ";
        if (c.mLeftMs > 0)
        {
            frame((c.mLeftMs - SLACK_MS) / FRAME_MS);
            EXPECT_EQ(mEndEar.take(), report);
            frame(2 * SLACK_MS / FRAME_MS);
            EXPECT_EQ(mEndEar.take(), end);
        }
        else
            EXPECT_EQ(mEndEar.take(), report + end);
        EXPECT_EQ(roundScore() != nullptr, !c.mWait);
        framesRun(CELEBRATION_MS);
        EXPECT_EQ(mEndEar.take(), "");
        if (c.mWait)
        {
            tap(0, 0);
            EXPECT_EQ(mEndEar.take(), report + "LevelComplete ");
        }
        roundScoreClose();
        levelEnd();
    }
}

// Sparkles stand beside the pieces, under the pieces' names.
TEST_F(znCRoundCongratulationsGuiTest, itsSparklesLeaveThePiecesAloneInASave)
{
    rowOpen(4);
    framesRun(SWEEP_DELAY_MS + 4 * SWEEP_STEP_MS);
    EXPECT_EQ(sparklingGet(), (std::set<s32>{0, 1, 2, 3}));
    for (s32 i = 0; i < 2; ++i)
    {
        levelEnd(false);
        mEndEar.take();
        sceneOpen("a_game");
        for (const char* name : {"TST-p0.png", "TST-p1.png", "TST-p2.png", "TST-p3.png"})
            EXPECT_EQ(piece(name).completeStateGet(), znIMinigameComponent::eComplete) << name;
        EXPECT_TRUE(wellDoneStands());
    }
    framesRun(WELL_DONE_MS);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats LevelComplete ");
}

TEST_F(znCRoundCongratulationsGuiTest, startsOverBehindAReset)
{
    piecesSet("quay", {{0, 0}});
    sceneOpen("quay");
    win();
    framesRun(SWEEP_DELAY_MS + 100);
    EXPECT_TRUE(wellDoneStands());
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    frame();
    EXPECT_FALSE(wellDoneStands());
    framesRun(CELEBRATION_MS);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats ");
    win();
    framesRun(CELEBRATION_MS);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats LevelComplete ");
}

// Also where no round score asks the player to go on.
TEST_F(znCRoundCongratulationsGuiTest, isNotRepeatedInALevelThatWasLeft)
{
    piecesSet("quay", {{0, 0}});
    sceneOpen("quay");
    win();
    framesRun(CELEBRATION_MS + 3 * znCHogCoreMain::SCREEN_FADE_MS);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats LevelComplete ");
    EXPECT_EQ(level().levelNameGet(), "shop");
    levelEnd();
    sceneOpen("quay");
    framesRun(CELEBRATION_MS);
    EXPECT_EQ(mEndEar.take(), "");
    EXPECT_EQ(piece("TST-p0.png").completeStateGet(), znIMinigameComponent::eIncomplete);
}

TEST_F(znCRoundCongratulationsGuiTest, celebratesAlsoWithoutItsFiles)
{
    for (const char* number : {"1", "2", "3"})
        mPlatform.mFiles.fileRemove(std::string("gui/welldone/welldone") + number + ".txt");
    mPlatform.mFiles.fileRemove("particles/pminigamecompleteeffect.txt");
    rowOpen(2);
    framesRun(CELEBRATION_MS + 2 * SWEEP_STEP_MS);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats LevelComplete ");
    EXPECT_EQ(errorsTake().size(), 2u); // the screen's file, and that it made nothing
}
} // namespace
