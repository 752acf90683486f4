#include "znhogcore/components/znICollectableComponent.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
constexpr s32 INACTIVE = znICollectableComponent::STATE_INACTIVE;
constexpr s32 ACTIVE = znICollectableComponent::STATE_ACTIVE;
constexpr s32 COLLECTING = znICollectableComponent::STATE_COLLECTING;
constexpr s32 COLLECTED = znICollectableComponent::STATE_COLLECTED;
constexpr s32 SHOW_FRAMES = 2000 / 16 + 2; // longer than the show of a find

// A 40 x 40 object at (0, 0) with a transparent left half, and a full one at (200, 0).
class znICollectableComponentTest : public znCHogTest
{
protected:
    void SetUp() override
    {
        znCHogTest::SetUp();
        imageSet("scenes/quay/pck-half.png", 40, 40, std::string(20, '.') + std::string(20, '#'));
        sceneSet("quay", "Background.png,0,0\nPCK-half.png,0,0\nHOT-gull.png,200,0\nBNS-cup.png,-200,0\n"
                         "TSK-light,0,0\nBNSL-can.png,-200,100\nBSL-hat.png,-200,200\n");
    }
    void open()
    {
        sceneOpen("quay");
        mEar.take();
    }
    static bool pointerSend(const znCUniqueId& pType, s32 pId, s32 pX, s32 pY,
                            znIMessageListener** pCaptureHolder = nullptr)
    {
        const bool down = pType != znIInputManager::POINTER_UP;
        znCPointerMessage message(znPoint(pX + CANVAS_WIDTH / 2, pY + CANVAS_HEIGHT / 2), pId, down);
        const bool claimed = znIInputManager::instanceGet()->messageSend(pType, &message);
        if (pCaptureHolder != nullptr)
            *pCaptureHolder = message.mCaptureHolder;
        return claimed;
    }
    static znIMessageListener* priorityGet() { return znIInputManager::instanceGet()->priorityListenerGet(); }
};

TEST_F(znICollectableComponentTest, isFoundByATapThatStartsAndEndsOnIt)
{
    struct Case
    {
        const char* mWhat;
        znPoint mPress;
        znPoint mRelease;
        bool mFound;
    };
    const Case cases[] = {
        {"on it", {10, 5}, {10, 5}, true},
        {"on its transparent half", {-10, 5}, {-10, 5}, false},
        {"from one side of it to the other", {0, -20}, {19, 19}, true},
        {"on it, ends beside it", {10, 5}, {60, 5}, false},
        {"on it, ends on its transparent half", {10, 5}, {-1, 5}, false},
        {"beside it, ends on it", {60, 5}, {10, 5}, false},
        {"past its right edge", {20, 0}, {20, 0}, false},
    };
    for (const Case& c : cases)
    {
        open();
        activate("PCK-half.png");
        press(c.mPress.mX, c.mPress.mY);
        release(c.mRelease.mX, c.mRelease.mY);
        EXPECT_EQ(stateGet("PCK-half.png"), c.mFound ? COLLECTING : ACTIVE) << c.mWhat;
        EXPECT_EQ(find("PCK-half.png")->activeGet(), !c.mFound) << c.mWhat;
        EXPECT_EQ(priorityGet(), nullptr) << c.mWhat;
        EXPECT_EQ(mEar.take(), "");
        frame(SHOW_FRAMES);
        EXPECT_EQ(stateGet("PCK-half.png"), c.mFound ? COLLECTED : ACTIVE) << c.mWhat;
        EXPECT_EQ(mEar.take(), c.mFound ? "CollectableEntityCollected PCK-half.png; " : "") << c.mWhat;
        levelEnd();
    }
}

TEST_F(znICollectableComponentTest, isFoundAlsoBesideOneOfItsName)
{
    sceneSet("quay", "Background.png,0,0\nHOT-gull.png,0,0\nHOT-gull.png,200,0\n");
    open();
    tap(0, 0);
    frame(SHOW_FRAMES);
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
    EXPECT_EQ(stateGet("HOT-gull.png#2"), ACTIVE);
    tap(200, 0);
    frame(SHOW_FRAMES);
    EXPECT_EQ(stateGet("HOT-gull.png#2"), COLLECTED);
}

TEST_F(znICollectableComponentTest, waitsUntilItIsActivated)
{
    open();
    EXPECT_EQ(stateGet("HOT-gull.png"), ACTIVE); // from the first moment
    tap(10, 5);
    EXPECT_EQ(stateGet("PCK-half.png"), INACTIVE);
    activate("PCK-half.png");
    find("SubScene0")->activeSet(false);
    tap(10, 5);
    EXPECT_EQ(stateGet("PCK-half.png"), ACTIVE);
    activate("PCK-half.png");
    EXPECT_EQ(errorsTake(), std::vector<std::string>{"Already activated."});
}

TEST_F(znICollectableComponentTest, isCancelledByASecondFinger)
{
    open();
    activate("PCK-half.png");
    znIMessageListener* holder = nullptr;
    pointerSend(znIInputManager::POINTER_DOWN, 1, 100, 100, &holder);
    EXPECT_EQ(holder, nullptr); // nothing is pressed
    EXPECT_TRUE(pointerSend(znIInputManager::POINTER_DOWN, 0, 10, 5));
    EXPECT_TRUE(pointerSend(znIInputManager::POINTER_DOWN, 1, 10, 10, &holder)); // on it: claimed, no offer
    EXPECT_EQ(holder, nullptr);
    pointerSend(znIInputManager::POINTER_DOWN, 1, 100, 100, &holder);
    ASSERT_EQ(holder, &collectable("PCK-half.png"));
    holder->pointerCaptureCancel();
    EXPECT_EQ(priorityGet(), nullptr);
    pointerSend(znIInputManager::POINTER_UP, 0, 10, 5);
    EXPECT_EQ(stateGet("PCK-half.png"), ACTIVE);
}

TEST_F(znICollectableComponentTest, letsGoOfAPressWhenItIsReset)
{
    open();
    press(200, 0);
    EXPECT_NE(priorityGet(), nullptr);
    send(znCHogMessageDispatcher::RESET_LEVEL);
    EXPECT_EQ(priorityGet(), nullptr);
    release(200, 0);
    EXPECT_EQ(stateGet("HOT-gull.png"), INACTIVE);
}

TEST_F(znICollectableComponentTest, endsWithTheLevel)
{
    // The score holds the level back.
    mPlatform.mFiles.fileSet("gui/score.txt", "znCSpriteComponent { name = roundScoreGui }\n");
    mPlatform.mFiles.fileSet("scenes/quay/quay.txt", "rewardLayoutFile = \"gui/score.txt\",\r\n");
    open();
    tap(200, 0);
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTING);
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
    EXPECT_EQ(mEar.take(), "CollectableEntityCollected HOT-gull.png; ");
    frame(SHOW_FRAMES); // the report that comes now counts for nothing
    EXPECT_EQ(mEar.take(), "");
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}

TEST_F(znICollectableComponentTest, comesBackAfterAResetUnlessItIsABonus)
{
    open();
    const char* names[] = {"PCK-half.png", "BNS-cup.png", "BNSL-can.png", "BSL-hat.png", "HOT-gull.png"};
    for (const char* name : names)
    {
        if (collectable(name).inactiveGet())
            activate(name);
        collectable(name).collectionProcessTrigger();
    }
    frame(SHOW_FRAMES);
    mEar.take();
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    EXPECT_EQ(mEar.take(), "resetLevel; postResetLevel; ");
    const s32 states[] = {INACTIVE, COLLECTED, COLLECTED, COLLECTED, ACTIVE};
    for (std::size_t i = 0; i < std::size(names); ++i)
    {
        EXPECT_EQ(stateGet(names[i]), states[i]) << names[i];
        EXPECT_EQ(find(names[i])->activeGet(), states[i] != COLLECTED) << names[i];
    }
    // A bonus that isn't collected yet starts over.
    levelEnd();
    open();
    activate("BNS-cup.png");
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    EXPECT_EQ(stateGet("BNS-cup.png"), INACTIVE);
}

TEST_F(znICollectableComponentTest, staysOnViewWhereTheLevelSaysSo)
{
    sceneSet("quay", mPlatform.mFiles.fileGet("scenes/quay/coords.txt"), "postCollectionVisible = \"true\",\r\n");
    open();
    for (const auto& [name, visible] :
         {std::pair("PCK-half.png", true), std::pair("HOT-gull.png", false), std::pair("BNS-cup.png", false),
          std::pair("BNSL-can.png", true), std::pair("BSL-hat.png", false), std::pair("TSK-light", true)})
    {
        if (collectable(name).inactiveGet())
            activate(name);
        collectable(name).collectionProcessTrigger();
        EXPECT_EQ(find(name)->activeGet(), visible) << name;
    }
}

TEST_F(znICollectableComponentTest, leavesAMarkerAndParticlesBehind)
{
    animationSet("gui/found");
    mPlatform.mFiles.fileSet("particles/par-half-post.txt",
                             "maxParticles = 1 ;\nimageFileName = particles/star.png ;\n");
    imageSet("particles/star.png", 8, 8);
    sceneSet("quay", mPlatform.mFiles.fileGet("scenes/quay/coords.txt"),
             "postCollectionVisible = \"true\",\r\npostCollectionVisibleMarker = \"gui/found.xml\",\r\n");
    open();
    const char* left[] = {"halfPostMarker", "particles/PAR-half-post.txt"};
    activate("PCK-half.png");
    tap(10, 5);
    for (const char* name : left)
        EXPECT_EQ(find(name), nullptr) << name;
    frame(SHOW_FRAMES);
    for (const char* name : left)
    {
        ASSERT_NE(find(name), nullptr) << name;
        EXPECT_EQ(find(name)->posGet(), find("PCK-half.png")->posGet());
        EXPECT_EQ(find(name)->parentGet(), find("SubScene0"));
    }
    levelEnd(false);
    open();
    for (const char* name : left)
        EXPECT_NE(find(name), nullptr) << name;
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    for (const char* name : left)
        EXPECT_EQ(find(name), nullptr) << name;
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}

TEST_F(znICollectableComponentTest, saysWhenItIsTriggeredOutOfTurn)
{
    open();
    collectable("BNSL-can.png").collectionProcessTrigger(); // goes on all the same
    EXPECT_EQ(stateGet("BNSL-can.png"), COLLECTING);
    collectable("BNSL-can.png").collectionProcessTrigger();
    frame(SHOW_FRAMES); // the other show's report is a stray
    EXPECT_EQ(stateGet("BNSL-can.png"), COLLECTED);
    EXPECT_EQ(mEar.take(), "CollectableEntityCollected BNSL-can.png; ");
    EXPECT_EQ(errorsTake(),
              (std::vector<std::string>{"This entity has not been activated for collection.",
                                        "Collection process already triggered on this entity (BNSL-can.png).",
                                        "Collection process already triggered on this entity (BNSL-can.png).",
                                        "Not expecting a collection effect complete message (BNSL-can.png)."}));
}

TEST_F(znICollectableComponentTest, isRestoredAsItWas)
{
    open();
    activate("PCK-half.png");
    activate("BNS-cup.png");
    tap(200, 0);
    frame(SHOW_FRAMES);
    tap(-200, 0);
    EXPECT_EQ(stateGet("BNS-cup.png"), COLLECTING);
    mEar.take();
    levelEnd(false);
    sceneOpen("quay");
    EXPECT_EQ(stateGet("PCK-half.png"), ACTIVE);
    EXPECT_EQ(stateGet("HOT-gull.png"), COLLECTED);
    EXPECT_FALSE(find("HOT-gull.png")->activeGet());
    // The show that the save cut off starts again.
    EXPECT_EQ(stateGet("BNS-cup.png"), COLLECTING);
    EXPECT_EQ(mEar.take(), "levelLoadComp; ");
    frame(SHOW_FRAMES);
    EXPECT_EQ(stateGet("BNS-cup.png"), COLLECTED);
    EXPECT_EQ(mEar.take(), "CollectableEntityCollected BNS-cup.png; ");
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}

TEST_F(znICollectableComponentTest, takesNoStateThatIsNone)
{
    open();
    const std::pair<const char*, s32> cases[] = {
        {"2,", COLLECTING}, {"7,", COLLECTED}, {"-3,", INACTIVE}, {"x,", INACTIVE}};
    for (const auto& [saved, state] : cases)
    {
        std::string text = saved;
        collectable("PCK-half.png").myLoad(text);
        EXPECT_EQ(stateGet("PCK-half.png"), state) << saved;
    }
}

// A finger hits everything under a 20 x 20 mask.
class znCTouchTest : public znICollectableComponentTest
{
protected:
    void SetUp() override
    {
        mPlatform.mInput.mPointerType = S3E_POINTER_TYPE_STYLUS;
        mPlatform.mInput.mMultiTouch = true;
        imageSet("cursors/software/touchhitmask.png", 20, 20);
        znICollectableComponentTest::SetUp();
    }
    void touch(s32 pX, s32 pY)
    {
        for (const bool down : {true, false})
        {
            mPlatform.mInput.touchQueue(0, down, pX + CANVAS_WIDTH / 2, pY + CANVAS_HEIGHT / 2);
            frame();
        }
    }
};

TEST_F(znCTouchTest, hitsWhatLiesUnderTheFinger)
{
    const std::pair<znPoint, bool> cases[] = {
        {{-9, 0}, true}, {{-10, 0}, false}, {{29, 0}, true}, {{30, 0}, false}, {{10, -29}, true}, {{10, -30}, false},
    };
    for (const auto& [point, found] : cases)
    {
        open();
        activate("PCK-half.png");
        touch(point.mX, point.mY);
        EXPECT_EQ(stateGet("PCK-half.png"), found ? COLLECTING : ACTIVE) << point.mX << " " << point.mY;
        levelEnd();
    }
    open();
    activate("PCK-half.png");
    find("PCK-half.png")->activeSet(false);
    touch(10, 0);
    EXPECT_EQ(stateGet("PCK-half.png"), ACTIVE); // not on view
}
} // namespace
