#include "znhogcore/src/znCProgressSaver.h"

#include "tests/support/allocationCount.h"
#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCProfileManager.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <gmock/gmock.h>

namespace
{
constexpr s32 COLLECTED = znICollectableComponent::STATE_COLLECTED;
constexpr s32 ACTIVE = znICollectableComponent::STATE_ACTIVE;

// A level with things to find at x = 0, 100 and 200.
class znCProgressSaverTest : public znCHogTest
{
protected:
    void SetUp() override
    {
        znCHogTest::SetUp();
        sceneSet("quay", "Background.png,0,0\nHOT-gull.png,0,0\nHOT-lamp.png,100,0\nHOT-mug.png,200,0\n",
                 "ACT1NextLev = \"shop\",\r\n");
        sceneSet("shop", "Background.png,0,0\nHOT-till.png,0,0\n");
    }

    void play()
    {
        znCProfileManager::instanceGet()->profileCreate("Anna");
        sceneOpen("quay");
    }
    void seconds(s32 pCount) { frame((pCount * 1000 + FRAME_MS - 1) / FRAME_MS); }
    s32 userWritesGet() const { return mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::write); }

    // The program ends without a chance to write; the next one finds the files as they are.
    void kill()
    {
        std::map<std::string, std::string> files;
        for (const char* name : FILES)
            files[name] = mPlatform.mFiles.fileGet(name);
        programStop();
        for (const auto& [name, content] : files)
        {
            mPlatform.mFiles.fileRemove(name);
            mPlatform.mFiles.fileSet(name, content);
        }
        programStart();
    }
    void killAndGoOn()
    {
        kill();
        znCHogCoreMain::instanceGet()->nextScreenSet(user().currentLevelGet());
        frame();
    }
    static znCHogUserSavedData& user() { return *znCHogUserSavedData::instanceGet(); }

    static constexpr const char* FILES[] = {"ram://global.txt", "ram://user0.txt"};
};

TEST_F(znCProgressSaverTest, aCrashCostsSeconds)
{
    play();
    tap(0, 0);
    seconds(16);
    tap(100, 0); // lost: the round is too young
    frame();
    killAndGoOn();
    EXPECT_EQ(user().currentLevelGet(), "quay");
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
    EXPECT_EQ(stateGet("HOT-lamp.png"), ACTIVE);
    tap(100, 0);
    seconds(16);
    killAndGoOn();
    EXPECT_EQ(stateGet("HOT-lamp.png"), COLLECTED);
    EXPECT_EQ(stateGet("HOT-mug.png"), ACTIVE);
}

TEST_F(znCProgressSaverTest, writesWhatTheEndOfTheProgramWouldWrite)
{
    play();
    tap(100, 0);
    seconds(10);
    frame(60);
    tap(200, 0);
    seconds(12);
    znCAppCoreMain::instanceGet()->suspend();
    const std::string stored = user().levelStateGet("quay");
    const s32 time = user().s32Get(znCHogUserSavedData::PLAY_TIME);
    level().levelStateStore();
    EXPECT_EQ(user().levelStateGet("quay"), stored);
    // Counted once, though it was stored many times: every frame, and the step that placed the scene.
    EXPECT_EQ(user().s32Get(znCHogUserSavedData::PLAY_TIME) % FRAME_MS, 1);
    EXPECT_GE(time, 12000);
    EXPECT_LE(user().s32Get(znCHogUserSavedData::PLAY_TIME), 24000);
}

TEST_F(znCProgressSaverTest, writesAtMostEveryTenSeconds)
{
    play();
    seconds(30);
    const s32 before = userWritesGet();
    s32 taps = 0;
    for (; taps < 40; ++taps) // pressing all the time, hitting nothing but three things
    {
        tap(taps * 20, 0);
        seconds(1);
    }
    EXPECT_GE(userWritesGet() - before, 1);
    EXPECT_LE(userWritesGet() - before, 5);
}

TEST_F(znCProgressSaverTest, aStillSceneCostsNothing)
{
    play();
    tap(0, 0);
    seconds(60);
    const s32 writes = userWritesGet();
    const s32 reads = mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::open);
    znCProgressSaver saver; // beside the program's own: only what its rounds cost counts here
    saver.messagesRegister();
    const std::size_t allocations = allocationCountGet();
    for (s32 i = 0; i < 60000 / FRAME_MS; ++i)
        saver.update(FRAME_MS);
    EXPECT_EQ(allocationCountGet() - allocations, 0u);
    saver.messagesDeregister();
    seconds(60);
    EXPECT_EQ(userWritesGet(), writes);
    EXPECT_EQ(mPlatform.mFiles.operationCountGet(znCTestFiles::Operation::open), reads);
}

TEST_F(znCProgressSaverTest, suspensionSavesAtOnce)
{
    play();
    tap(0, 0);
    frame();
    znCAppCoreMain::instanceGet()->suspend();
    tap(100, 0);
    killAndGoOn();
    EXPECT_NE(stateGet("HOT-gull.png"), ACTIVE); // found, its effect under way again
    EXPECT_EQ(stateGet("HOT-lamp.png"), ACTIVE);
}

// The reward is booked when the round score opens: from there to the next screen nothing is stored, or a crash would
// pay it twice.
TEST_F(znCProgressSaverTest, aWonLevelIsStoredWhenItIsLeft)
{
    play();
    tap(0, 0);
    seconds(16);
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    user().s32Set(znCUserSavedData::CURRENCY, 500);
    tap(-300, -200); // the fade to the next screen runs
    znCAppCoreMain::instanceGet()->suspend();
    kill();
    EXPECT_EQ(user().s32Get(znCUserSavedData::CURRENCY), 0);
    EXPECT_EQ(user().currentLevelGet(), "quay");

    sceneOpen("quay");
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    user().s32Set(znCUserSavedData::CURRENCY, 500);
    levelLeave();
    seconds(16);
    kill();
    EXPECT_EQ(user().s32Get(znCUserSavedData::CURRENCY), 500);
    EXPECT_EQ(user().currentLevelGet(), "shop");
}

TEST_F(znCProgressSaverTest, aChangedSceneKeepsWhatItCan)
{
    play();
    tap(0, 0);
    tap(200, 0);
    seconds(3);
    levelEnd(false);
    linesTake();
    // In a later version: the gull behind, a new bell in the middle, no lamp.
    sceneSet("quay", "Background.png,0,0\nHOT-mug.png,200,0\nHOT-bell.png,-100,0\nHOT-gull.png,0,0\n");
    sceneOpen("quay");
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
    EXPECT_EQ(stateGet("HOT-mug.png"), COLLECTED);
    EXPECT_FALSE(find("HOT-gull.png")->activeGet());
    EXPECT_EQ(stateGet("HOT-bell.png"), ACTIVE);
    EXPECT_TRUE(find("HOT-bell.png")->activeGet());
    EXPECT_THAT(
        linesTake(),
        testing::Contains("The stored state of the level quay knows nothing of 1 of its things; they start afresh."));
    levelEnd(false);

    // A text that breaks off: what is there of it counts.
    const std::string state = user().levelStateGet("quay");
    user().levelStateSet("quay", state.substr(0, state.size() * 2 / 3));
    sceneOpen("quay");
    EXPECT_EQ(stateGet("HOT-mug.png"), COLLECTED);
    EXPECT_EQ(stateGet("HOT-gull.png"), ACTIVE);
    EXPECT_THAT(linesTake(),
                testing::Contains("The stored state of the level quay is damaged; what is lost of it starts afresh."));
    levelEnd(false);

    for (const char* rubbish : {"x", "c8e03bb6{", "{{{{{{{{{{", "c8e03bb6{1,}}}", "\x01\x02,,,"})
    {
        user().levelStateSet("quay", rubbish);
        sceneOpen("quay");
        EXPECT_EQ(stateGet("HOT-mug.png"), ACTIVE) << rubbish;
        tap(0, 0);
        EXPECT_NE(stateGet("HOT-gull.png"), ACTIVE) << rubbish;
        levelEnd(true);
    }
}

// Whatever goes wrong with the files while the game runs: it runs on, and the next start finds Anna as she was at one
// of the moments of saving.
TEST_F(znCProgressSaverTest, runsOnWhenFilesFail)
{
    using Operation = znCTestFiles::Operation;
    for (const Operation operation : {Operation::open, Operation::write, Operation::flush, Operation::close})
        for (const s32 count : {1, znCTestFiles::FOR_EVER})
            for (s32 nth = 1; nth <= (count == 1 ? 4 : 2); ++nth)
            {
                SCOPED_TRACE("operation " + std::to_string(static_cast<int>(operation)) + " no. " +
                             std::to_string(nth) + (count == 1 ? " once" : " for ever"));
                for (const char* name : FILES)
                    mPlatform.mFiles.fileRemove(name);
                programStop();
                for (const char* name : FILES)
                    mPlatform.mFiles.fileRemove(name);
                programStart();
                play();
                tap(0, 0);
                seconds(16);
                for (const char* name : {"ram://user0.txt"})
                    mPlatform.mFiles.faultSet(operation, nth, count, name);
                tap(100, 0);
                seconds(16);
                tap(200, 0);
                seconds(2);
                EXPECT_EQ(stateGet("HOT-mug.png"), COLLECTED);
                programStop();
                mPlatform.mFiles.faultsClear();
                programStart();
                EXPECT_EQ(user().currentLevelGet(), "quay");
                sceneOpen("quay");
                EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
                const s32 lamp = stateGet("HOT-lamp.png");
                const s32 mug = stateGet("HOT-mug.png");
                EXPECT_TRUE((lamp == COLLECTED || mug != COLLECTED) && (count != 1 || nth > 2 || lamp == COLLECTED));
                levelEnd();
                errorsTake(); // of the writes that failed
            }
}
} // namespace
