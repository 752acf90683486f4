#include "znhogcore/components/znCLockComponent.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/components/gui/znCNotificationsGui.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIInputManager.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
constexpr s32 ACTIVE = znICollectableComponent::STATE_ACTIVE;
constexpr s32 COLLECTING = znICollectableComponent::STATE_COLLECTING;
constexpr s32 COLLECTED = znICollectableComponent::STATE_COLLECTED;
constexpr s32 SHOW_FRAMES = 2000 / 16 + 2; // longer than the show of a find

class znCLockComponentTest : public znCHogTest
{
protected:
    void open(const std::string& pCoords)
    {
        sceneSet("quay", "Background.png,0,0\n" + pCoords);
        sceneOpen("quay");
        mEar.take();
    }
    void drag(s32 pFromX, s32 pFromY, s32 pToX, s32 pToY)
    {
        press(pFromX, pFromY);
        move((pFromX + pToX) / 2, (pFromY + pToY) / 2);
        release(pToX, pToY);
    }
    bool shown(const std::string& pName) { return find(pName)->activeGet(); }
    static bool handsFree() { return znIInputManager::instanceGet()->priorityListenerGet() == nullptr; }
};

TEST_F(znCLockComponentTest, opensWithItsLastKey)
{
    open("PRE-oil-wick-lamp.png,200,0\nINS-oil.png,-200,0\nINS-wick.png,-200,100\nINS-rope.png,-200,200\n");
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), ACTIVE);
    tap(200, 0); // a tap collects nothing
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), ACTIVE);
    EXPECT_TRUE(shown("PRE-oil-wick-lamp.png"));

    drag(-200, 0, 300, 100); // misses
    EXPECT_TRUE(shown("INS-oil.png"));
    drag(-200, 200, 200, 0); // not one of its keys
    EXPECT_TRUE(shown("INS-rope.png"));
    drag(-200, 0, 239, 39); // touches with one pixel
    EXPECT_FALSE(shown("INS-oil.png"));
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), ACTIVE);
    drag(-200, 100, 200, 0);
    EXPECT_FALSE(shown("INS-wick.png"));
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), COLLECTING);
    EXPECT_EQ(find("INS-wick.pngDragDrop"), nullptr);
    EXPECT_TRUE(handsFree());
    frame(SHOW_FRAMES);
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), COLLECTED);
    EXPECT_EQ(mEar.take(), "CollectableEntityCollected PRE-oil-wick-lamp.png; ");

    // A new round needs the keys again.
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    EXPECT_TRUE(shown("INS-oil.png"));
    drag(-200, 100, 200, 0);
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), ACTIVE);
    drag(-200, 0, 200, 0);
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), COLLECTING);
}

TEST_F(znCLockComponentTest, sharesAKeyAmongLocks)
{
    open("PRE-oil-a.png,200,0\nPRE-oil-b.png,220,0\nPRE-oil-c.png,200,200\nINS-oil.png,-200,0\n");
    drag(-200, 0, 210, 0); // one drop serves both; the third still needs it
    EXPECT_EQ(stateGet("PRE-oil-a.png"), COLLECTING);
    EXPECT_EQ(stateGet("PRE-oil-b.png"), COLLECTING);
    EXPECT_EQ(stateGet("PRE-oil-c.png"), ACTIVE);
    EXPECT_TRUE(shown("INS-oil.png"));
    drag(-200, 0, 200, 200);
    EXPECT_EQ(stateGet("PRE-oil-c.png"), COLLECTING);
    EXPECT_FALSE(shown("INS-oil.png"));
}

TEST_F(znCLockComponentTest, completesItsTask)
{
    open("PRE-oil-light+lamp.png,200,0\nINS-oil.png,-200,0\nTSK-light,0,0\nTSK-dark,0,0\n");
    activate("TSK-light");
    activate("TSK-dark");
    drag(-200, 0, 200, 0);
    frame(2 * SHOW_FRAMES);                                           // of the lock, then of the task
    EXPECT_EQ(mEar.take(), "CollectableEntityCollected TSK-light; "); // stands in for the lock
    EXPECT_EQ(stateGet("PRE-oil-light+lamp.png"), COLLECTED);
    EXPECT_EQ(stateGet("TSK-light"), COLLECTED);
    EXPECT_EQ(stateGet("TSK-dark"), ACTIVE);
}

TEST_F(znCLockComponentTest, keepsOpeningThroughASave)
{
    open("PRE-oil-wick-lamp.png,200,0\nINS-oil.png,-200,0\nINS-wick.png,-200,100\n");
    drag(-200, 0, 200, 0);
    levelEnd(false);
    sceneOpen("quay");
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), ACTIVE);
    EXPECT_FALSE(shown("INS-oil.png"));
    drag(-200, 100, 200, 0);
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), COLLECTING);
    levelEnd(false);
    mEar.take();
    sceneOpen("quay");
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), COLLECTING);
    frame(SHOW_FRAMES);
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), COLLECTED);
    EXPECT_EQ(mEar.take(), "levelLoadComp; CollectableEntityCollected PRE-oil-wick-lamp.png; ");
    frame(SHOW_FRAMES); // no report is left
    EXPECT_EQ(mEar.take(), "");
    levelEnd(false);
    sceneOpen("quay");
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), COLLECTED);
    EXPECT_FALSE(shown("PRE-oil-wick-lamp.png"));
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}

TEST_F(znCLockComponentTest, putsAKeyBackThatWasBeingDragged)
{
    open("PRE-oil-lamp.png,200,0\nINS-oil.png,-200,0\n");
    press(-200, 0);
    move(0, 0);
    EXPECT_FALSE(shown("INS-oil.png"));
    EXPECT_EQ(find("INS-oil.pngDragDrop")->posGet(), znPoint(0, 0));
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    frame();
    EXPECT_TRUE(shown("INS-oil.png"));
    EXPECT_EQ(find("INS-oil.pngDragDrop"), nullptr);
    release(200, 0);
    EXPECT_EQ(stateGet("PRE-oil-lamp.png"), ACTIVE);

    press(-200, 0);
    levelEnd(false);
    sceneOpen("quay");
    EXPECT_TRUE(shown("INS-oil.png"));
    EXPECT_TRUE(handsFree());
    release(-200, 0);
    drag(-200, 0, 200, 0);
    EXPECT_EQ(stateGet("PRE-oil-lamp.png"), COLLECTING);
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}

TEST_F(znCLockComponentTest, takesLocksOfTheTopSubSceneOnly)
{
    imageSet("scenes/quay/background-near.png", 800, 600);
    open("PRE-oil-a.png,200,0\nBackground-near.png,0,0\nINS-oil.png,-200,0\nPRE-oil-b.png,200,0\n");
    s32 near = 1;
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::OPEN_SUB_SCENE, &near);
    EXPECT_EQ(mEar.take(), "SubExitButtonShow; ");
    drag(-200, 0, 200, 0);
    EXPECT_EQ(stateGet("PRE-oil-a.png"), ACTIVE);
    EXPECT_EQ(stateGet("PRE-oil-b.png"), COLLECTING);
    send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE);
    EXPECT_FALSE(shown("SubScene1"));
    EXPECT_TRUE(shown("SubScene0"));
}

TEST_F(znCLockComponentTest, showsAnIconUnderThePointer)
{
    imageSet("inventoryicons/oilc.png", 60, 60);
    imageSet("inventoryicons/oilc_hit.png", 4, 4);
    open("PRE-oil-lamp.png,200,0\nINS-oil.png,-200,0\n");
    press(-200, 0);
    EXPECT_EQ(find("INS-oil.pngDragDrop")->componentGet<znCSpriteComponent>()->widthGet(), 60);
    release(225, 0); // the icon touches the lock, its hit shape doesn't
    EXPECT_EQ(stateGet("PRE-oil-lamp.png"), ACTIVE);
    drag(-200, 0, 221, 0);
    EXPECT_EQ(stateGet("PRE-oil-lamp.png"), COLLECTING);
}

TEST_F(znCLockComponentTest, tellsWhatIsMissing)
{
    open("PRE-oil-wick-lamp.png,200,0\nPRE-oil-wick-lit+lamp.png,200,200\nINS-oil.png,-200,0\n");
    auto* text = dynamic_cast<znCEntity*>(znIDisplay::instanceGet()->childFind(znCNotificationsGui::TEXT_ENTITY));
    tap(200, 200); // there is no such string
    frame();
    EXPECT_EQ(text->componentFind<znCTextSpriteComponent>()->textGet(), "");
    tap(200, 0);
    frame();
    EXPECT_EQ(text->componentFind<znCTextSpriteComponent>()->textGet(), "It needs oil and a wick.");
    drag(-200, 0, 200, 200);
    tap(200, 200);
    frame(4000 / FRAME_MS);
    EXPECT_EQ(text->componentFind<znCTextSpriteComponent>()->textGet(), "A wick is missing.");
}

TEST_F(znCLockComponentTest, isForcedOnce)
{
    open("PRE-oil-wick-lamp.png,200,0\n");
    auto& lock = dynamic_cast<znCLockComponent&>(collectable("PRE-oil-wick-lamp.png"));
    lock.forceComplete();
    lock.forceComplete();
    EXPECT_EQ(stateGet("PRE-oil-wick-lamp.png"), COLLECTING);
    EXPECT_EQ(errorsTake(), std::vector<std::string>());
}

TEST_F(znCLockComponentTest, saysWhatItsNameLacks)
{
    open("PRE-lamp.png,200,0\n");
    EXPECT_EQ(errorsTake(), std::vector<std::string>{"Expected lock PRE-lamp to require keys to unlock."});
}
} // namespace
