#include "znhogcore/components/znIMinigameComponent.h"

#include "tests/znhogcore/znCLevelEndTest.h"

namespace
{
constexpr s32 EFFECT_MS = 2000;
using State = znIMinigameComponent::CompleteState;

class znIMinigameComponentTest : public znCLevelEndTest
{
protected:
    // Two pieces, (0, 0) and (200, 0).
    void open()
    {
        sceneSet("a_game", "Background.png,0,0\nTST-p0.png,0,0\nTST-p1.png,200,0\n",
                 "ACT1NextLev = \"shop\",\r\npieces = \"two \",\r\n");
        sceneOpen("a_game");
        mEndEar.take();
    }
    State stateOf(const char* pName) { return piece(pName).completeStateGet(); }
};

TEST_F(znIMinigameComponentTest, reportsItselfThroughOneGate)
{
    struct Case
    {
        State mFrom;
        bool mComplete;
        bool mWithEffect;
        State mTo;
        bool mMet; // afterwards, as the level sees it: with the other piece done it ends
    };
    const State none = State::eIncomplete;
    const State collecting = State::eCollecting;
    const State done = State::eComplete;
    const Case cases[] = {
        {none, true, true, collecting, false},
        {none, true, false, done, true},
        {collecting, true, true, collecting, false},
        {collecting, true, false, collecting, false},
        {done, true, true, done, true},
        {done, true, false, done, true},
        {done, false, false, none, false},
        {done, false, true, none, false},
        {none, false, false, none, false},
        {collecting, false, true, collecting, false},
    };
    s32 row = 0;
    for (const Case& c : cases)
    {
        SCOPED_TRACE(row++);
        open();
        if (c.mFrom != none)
            piece("TST-p0.png").completeStateSet(true, c.mFrom == collecting);
        EXPECT_EQ(stateOf("TST-p0.png"), c.mFrom);
        piece("TST-p0.png").completeStateSet(c.mComplete, c.mWithEffect);
        EXPECT_EQ(stateOf("TST-p0.png"), c.mTo);
        piece("TST-p1.png").completeStateSet(true, false);
        EXPECT_EQ(mEndEar.take(), c.mMet ? "LevelCompleteCongrats " : "");
        levelEnd();
    }
}

TEST_F(znIMinigameComponentTest, isDoneWhenItsEffectHasBeenSeen)
{
    open();
    piece("TST-p1.png").completeStateSet(true, false);
    tap(0, 0);
    EXPECT_EQ(stateOf("TST-p0.png"), State::eCollecting);
    std::string other = "TST-p9.png";
    EXPECT_FALSE(znCHogMessageDispatcher::instanceGet()->messageSend(
        znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE, &other));
    EXPECT_EQ(stateOf("TST-p0.png"), State::eCollecting);
    EXPECT_EQ(mEndEar.take(), "");
    framesRun(EFFECT_MS);
    EXPECT_EQ(stateOf("TST-p0.png"), State::eComplete);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats ");
    std::string own = "TST-p1.png";
    EXPECT_TRUE(
        znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::COLLECTION_EFFECT_COMPLETE, &own));
    EXPECT_EQ(errorsTake(),
              (std::vector<std::string>{"Unexpected state.", "Requirement TST-p1.png already flagged as complete."}));
}

TEST_F(znIMinigameComponentTest, readsANumberOutOfItsName)
{
    const std::pair<const char*, s32> cases[] = {
        {"TST-7.png", 7},
        {"TST-a1b2c.png", 12},
        {"TST-9-x03.png", 3},                      // of the key alone
        {"TST-99999999999999999.png", 2147483647}, // hostile
        {"TST-12-m3.png", 12},
    };
    for (const auto& [name, index] : cases)
    {
        sceneSet("a_game", std::string("Background.png,0,0\n") + name + ",0,0\n");
        sceneOpen("a_game");
        EXPECT_EQ(piece(name).indexCalculate(), index) << name;
        levelEnd();
    }
    sceneSet("a_game", "Background.png,0,0\nTST-none.png,0,0\n");
    sceneOpen("a_game");
    EXPECT_EQ(piece("TST-none.png").indexCalculate(), 0);
    EXPECT_EQ(errorsTake(), std::vector<std::string>{"Minigame entity has no numbers in its name:TST-none.png"});
}

TEST_F(znIMinigameComponentTest, isSetUpByItsLevelAndAgainBehindAReset)
{
    open();
    EXPECT_EQ(piece("TST-p0.png").mSetUp, "two ");
    level().levelSkip();
    EXPECT_EQ(stateOf("TST-p0.png"), State::eComplete);
    EXPECT_EQ(stateOf("TST-p1.png"), State::eComplete);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats ");
    level().levelSkip(); // another press
    EXPECT_EQ(mEndEar.take(), "");
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    EXPECT_EQ(piece("TST-p1.png").mSetUp, "two two ");
    EXPECT_EQ(stateOf("TST-p0.png"), State::eIncomplete);
    piece("TST-p0.png").doneSet(false);
    EXPECT_EQ(mEndEar.take(), "");
    piece("TST-p1.png").doneSet(false);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats ");
}

TEST_F(znIMinigameComponentTest, restsWhileThePlayerIsToLeaveTheLevel)
{
    for (const znCUniqueId& type :
         {znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING, znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING_CONGRATS})
    {
        open();
        piece("TST-p0.png").doneSet(false);
        send(type);
        tap(200, 0);
        EXPECT_EQ(stateOf("TST-p1.png"), State::eIncomplete);
        piece("TST-p1.png").doneSet(false);
        send(znCHogMessageDispatcher::REPLAY_LEVEL);
        tap(200, 0);
        EXPECT_EQ(stateOf("TST-p1.png"), State::eCollecting);
        levelEnd();
    }
}

TEST_F(znIMinigameComponentTest, showsAnEffectOfItsOwnKindIfThereIsOne)
{
    mPlatform.mFiles.fileSet("particles/pminigamecollecteffect.txt",
                             "imageFileName = particles/p.png ; maxParticles = 4 ; particleLifeMs = 300 ; "
                             "emitterLifeMs = 100 ; emitSpeed = 40 ;");
    open();
    tap(0, 0);
    framesRun(EFFECT_MS / 4);
    EXPECT_EQ(stateOf("TST-p0.png"), State::eComplete);
}

TEST_F(znIMinigameComponentTest, isFoundAsItStoodWhenTheLevelComesBack)
{
    open();
    tap(0, 0);
    levelEnd(false);
    sceneOpen("a_game");
    EXPECT_EQ(stateOf("TST-p0.png"), State::eComplete); // its effect isn't shown once more
    EXPECT_EQ(stateOf("TST-p1.png"), State::eIncomplete);
    EXPECT_EQ(mEndEar.take(), "");
    piece("TST-p1.png").doneSet(false);
    EXPECT_EQ(mEndEar.take(), "LevelCompleteCongrats ");
}
} // namespace
