#include "znhogcore/components/znCSubSceneViewComponent.h"

#include "tests/znhogcore/znCRoomTest.h"

namespace
{
class znCSubSceneViewComponentTest : public znCRoomTest
{
protected:
    void touchDevice()
    {
        programStop();
        mPlatform.mInput.mPointerType = S3E_POINTER_TYPE_STYLUS;
        mPlatform.mInput.mMultiTouch = true;
        programStart();
    }
    // Scene points, as for presses.
    void finger(s32 pId, bool pDown, s32 pX, s32 pY)
    {
        mPlatform.mInput.touchQueue(pId, pDown, pX + CANVAS_WIDTH / 2, pY + CANVAS_HEIGHT / 2);
        frame();
    }
    void fingerMove(s32 pId, s32 pX, s32 pY)
    {
        mPlatform.mInput.touchMotionQueue(pId, pX + CANVAS_WIDTH / 2, pY + CANVAS_HEIGHT / 2);
        frame();
    }
    void pinch(s32 pFrom, s32 pTo, s32 pY = 100)
    {
        finger(0, true, -pFrom / 2, pY);
        finger(1, true, pFrom / 2, pY);
        fingerMove(0, -pTo / 2, pY);
        fingerMove(1, pTo / 2, pY);
        finger(1, false, pTo / 2, pY);
        finger(0, false, -pTo / 2, pY);
    }
    float scale(const char* pName = "SubScene0") { return find(pName)->scaleGet(); }
    znPoint pos(const char* pName = "SubScene0") { return find(pName)->posGet(); }
    static bool handsFree() { return znIInputManager::instanceGet()->priorityListenerGet() == nullptr; }
};

TEST_F(znCSubSceneViewComponentTest, scalesByTheDistanceOfTwoFingers)
{
    touchDevice();
    openRoom("");
    struct Case
    {
        s32 mFrom;
        s32 mTo;
        float mScale;
    };
    for (const Case& c : {Case{100, 300, 1.5f}, Case{500, 240, 1.2f}, Case{200, 700, 2.0f}, Case{300, 100, 1.0f}})
    {
        pinch(c.mFrom, c.mTo);
        EXPECT_FLOAT_EQ(scale(), c.mScale) << c.mTo;
        EXPECT_TRUE(handsFree());
    }
}

TEST_F(znCSubSceneViewComponentTest, dragsHeavilyPastTheEdgeAndSpringsBack)
{
    touchDevice();
    openRoom("");
    finger(0, true, 0, 0);
    fingerMove(0, 100, 0);
    fingerMove(0, 200, 0);
    finger(0, false, 200, 0);
    EXPECT_EQ(pos(), znPoint(0, 0)) << "at scale 1 there is nothing to move";

    pinch(200, 400); // scale 2: the limit is half the canvas
    finger(0, true, -300, 0);
    fingerMove(0, -280, 0); // beyond the limit of a tap
    fingerMove(0, -180, 50);
    EXPECT_EQ(pos(), znPoint(100, 50)) << "with the finger";
    fingerMove(0, 120, 50);
    EXPECT_EQ(pos(), znPoint(400, 50)) << "at the edge";
    fingerMove(0, 150, 50);
    EXPECT_EQ(pos(), znPoint(430, 50)) << "past it, not yet heavy";
    fingerMove(0, 182, 50);
    EXPECT_EQ(pos(), znPoint(432, 50)) << "32 of the finger / (30 / 2 + 1)";
    finger(0, false, 182, 50);
    std::vector<s32> way;
    for (s32 last = pos().mX + 1; last != pos().mX; frame())
    {
        last = pos().mX;
        way.push_back(last);
    }
    EXPECT_EQ(way, (std::vector<s32>{416, 408, 404, 402, 401, 400}));
    EXPECT_EQ(pos().mY, 50);
    EXPECT_TRUE(handsFree());
}

TEST_F(znCSubSceneViewComponentTest, staysUnderTheFingerInAnyWindow)
{
    programStop();
    mPlatform.mWindow.sizeSet(1600, 1200);
    mPlatform.mInput.mPointerType = S3E_POINTER_TYPE_STYLUS;
    mPlatform.mInput.mMultiTouch = true;
    programStart();
    openRoom("");
    pinch(300, 400);
    const znPoint before = find("SubScene0")->worldPosGet();
    const znPoint press(800, 600);
    mPlatform.mInput.touchQueue(0, true, press.mX, press.mY);
    frame();
    for (s32 way : {20, 80, 120})
    {
        mPlatform.mInput.touchMotionQueue(0, press.mX + way, press.mY);
        frame();
    }
    EXPECT_NEAR(find("SubScene0")->worldPosGet().mX - before.mX, 100, 2) << "from where the drag began";
    mPlatform.mInput.touchQueue(0, false, press.mX + 120, press.mY);
    frame();
}

TEST_F(znCSubSceneViewComponentTest, takesASecondFingerFromAnObject)
{
    touchDevice();
    openRoom("HOT-bell.png,0,0\n");
    finger(0, true, 0, 0); // the bell has this one
    finger(1, true, 100, 0);
    EXPECT_FLOAT_EQ(scale(), 1.0f) << "where the first finger is nobody has said";
    fingerMove(0, -200, 0);
    EXPECT_FLOAT_EQ(scale(), 1.5f);
    finger(0, false, -200, 0);
    finger(1, false, 100, 0);
    EXPECT_EQ(stateGet("HOT-bell.png"), znICollectableComponent::STATE_ACTIVE);
    EXPECT_TRUE(handsFree());
    fingerMove(0, 0, 0);
    finger(0, true, 0, 0);
    finger(0, false, 0, 0);
    EXPECT_EQ(stateGet("HOT-bell.png"), znICollectableComponent::STATE_COLLECTING);
}

TEST_F(znCSubSceneViewComponentTest, movesACloseUpByItselfAndLeavesItInItsPlace)
{
    touchDevice();
    openRoom("");
    pinch(200, 300);
    subSceneOpen(1);
    pinch(100, 320, -50);
    EXPECT_FLOAT_EQ(scale(), 1.5f);
    EXPECT_FLOAT_EQ(scale("SubScene1"), 1.6f);
    EXPECT_EQ(pos("SubScene1"), znPoint(0, -50));
    finger(0, true, 390, 290); // beside it, but for its scale
    finger(0, false, 390, 290);
    EXPECT_EQ(openGet(), "0");
}

TEST_F(znCSubSceneViewComponentTest, goesBackWhenTheLevelIsWon)
{
    touchDevice();
    openRoom("");
    pinch(200, 400);
    finger(0, true, 0, 0);
    fingerMove(0, 100, 0);
    fingerMove(0, 150, 0);
    EXPECT_NE(pos(), znPoint(0, 0));
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    EXPECT_FLOAT_EQ(scale(), 1.0f);
    EXPECT_EQ(pos(), znPoint(0, 0));
    frame();
    finger(0, false, 150, 0);
    EXPECT_EQ(pos(), znPoint(0, 0));
}

TEST_F(znCSubSceneViewComponentTest, doesNothingForAMouse)
{
    openRoom("");
    press(0, 0);
    move(100, 0);
    move(200, 0);
    release(200, 0);
    send(znCHogMessageDispatcher::LEVEL_COMPLETE);
    frame();
    EXPECT_FLOAT_EQ(scale(), 1.0f);
    EXPECT_EQ(pos(), znPoint(0, 0));
    EXPECT_TRUE(handsFree());
}
} // namespace
