#include "znhogcore/components/znCSubSceneComponent.h"

#include "tests/znhogcore/znCRoomTest.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znhogcore/components/znCNavigateComponent.h"
#include "znhogcore/components/znCSubSceneExitComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"

namespace
{
using Lines = std::vector<std::string>;

class znCSubSceneComponentTest : public znCRoomTest
{
};

TEST_F(znCSubSceneComponentTest, opensByItsDoorAndClosesByAPressBesideIt)
{
    openRoom("HOT-bell.png,150,0\nSUB1-crate.png,-300,0\n", "HOT-tin.png,-100,-50\n");
    tap(-300, 0);
    EXPECT_EQ(openGet(), "0 1");
    tap(150, 0); // on the picture's empty part, in front of the bell
    tap(-300, 0);
    EXPECT_EQ(openGet(), "0") << "that was beside it, where its own door lies";
    EXPECT_EQ(stateGet("HOT-bell.png"), znICollectableComponent::STATE_ACTIVE);
    tap(-300, 0);
    EXPECT_EQ(openGet(), "0 1");
    tap(-100, -50);
    EXPECT_EQ(stateGet("HOT-tin.png"), znICollectableComponent::STATE_COLLECTING);
    press(150, 0);
    release(350, 0); // pressed on it, released beside it
    EXPECT_EQ(openGet(), "0");
}

TEST_F(znCSubSceneComponentTest, isFullScreenFromThePlayableCanvasOn)
{
    struct Case
    {
        s32 mWidth;
        s32 mHeight;
        bool mFull;
    };
    for (const Case& c : {Case{800, 600, true}, Case{900, 700, true}, Case{799, 600, false}, Case{800, 599, false}})
    {
        SCOPED_TRACE(c.mWidth);
        imageSet("scenes/quay/backgroundcabin.png", c.mWidth, c.mHeight);
        openRoom("");
        EXPECT_EQ(find("SubScene2")->componentGet<znCSubSceneExitComponent>() == nullptr, c.mFull);
        subSceneOpen(2);
        EXPECT_EQ(mEar.take(), c.mFull ? "SubExitButtonShow; " : "");
        EXPECT_EQ(shown("GameGuiSubSceneExitButton"), c.mFull);
        levelEnd();
    }
}

TEST_F(znCSubSceneComponentTest, closesFromTheTopAndNeverTheRoom)
{
    openRoom("");
    subSceneOpen(1);
    subSceneOpen(2);
    for (const char* open : {"0 1", "0", "0"})
    {
        send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE);
        EXPECT_EQ(openGet(), open);
    }
    subSceneOpen(1);
    mEar.take();
    subSceneOpen(1);
    EXPECT_EQ(errorsTake(), Lines{"SubScene already open."});
    EXPECT_EQ(openGet(), "0 1");
    subSceneOpen(7); // nobody's
    EXPECT_EQ(openGet(), "0 1");
}

TEST_F(znCSubSceneComponentTest, showsDoorsWhereThereIsWork)
{
    openRoom("PCK-rope.png,0,0\nSUB1-crate.png,-300,0\nSUB2-cabin.png,-300,100\n", "PCK-tin.png,0,0\n",
             "PCK-map.png,0,0\n");
    activate("PCK-tin.png");
    addedEntrySend();
    EXPECT_TRUE(shown("SUB1-crate.png"));
    EXPECT_FALSE(shown("SUB2-cabin.png"));
    activate("PCK-map.png");
    addedEntrySend();
    EXPECT_TRUE(shown("SUB2-cabin.png"));
    subSceneOpen(1);
    collect("PCK-tin.png");
    EXPECT_FALSE(shown("SUB1-crate.png"));
    EXPECT_EQ(openGet(), "0") << "the last find closes it";
    EXPECT_TRUE(shown("SUB2-cabin.png"));
}

// What was found last is still on its way when the player leaves, or when the list shows its next item.
TEST_F(znCSubSceneComponentTest, waitsForAFindOnItsWay)
{
    openRoom("PCK-rope.png,0,0\nSUB1-crate.png,-300,0\n", "PCK-tin.png,0,0\n");
    activate("PCK-tin.png");
    addedEntrySend();
    subSceneOpen(1);
    tap(0, 0);
    ASSERT_EQ(stateGet("PCK-tin.png"), znICollectableComponent::STATE_COLLECTING);
    addedEntrySend();
    EXPECT_EQ(openGet(), "0 1");
    send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE);
    EXPECT_TRUE(shown("SUB1-crate.png"));
    effectsEnd();
    EXPECT_FALSE(shown("SUB1-crate.png"));
}

TEST_F(znCSubSceneComponentTest, leadsOnToACloseUpWithWork)
{
    openRoom("SUB1-crate.png,-300,0\n", "SUB2-box.png,-100,-50\n", "PCK-map.png,0,0\nPCK-pen.png,100,0\n");
    addedEntrySend();
    EXPECT_FALSE(shown("SUB1-crate.png"));
    activate("PCK-map.png");
    addedEntrySend();
    EXPECT_TRUE(shown("SUB2-box.png"));
    EXPECT_TRUE(shown("SUB1-crate.png")) << "the way there";
    tap(-300, 0);
    tap(-100, -50);
    EXPECT_EQ(openGet(), "0 1 2");
    collect("PCK-map.png");
    EXPECT_EQ(openGet(), "0");
    EXPECT_FALSE(shown("SUB2-box.png"));
    EXPECT_FALSE(shown("SUB1-crate.png"));
}

TEST_F(znCSubSceneComponentTest, staysOpenForAWayOutAndClosesWithAReset)
{
    openRoom("SUB1-crate.png,-300,0\n", "NAV-cellar.png,0,-50\n");
    addedEntrySend();
    EXPECT_TRUE(shown("SUB1-crate.png"));
    EXPECT_FALSE(find("NAV-cellar.png") == nullptr);
    subSceneOpen(1);
    subSceneOpen(2);
    send(znCHogMessageDispatcher::REPLAY_LEVEL);
    EXPECT_EQ(openGet(), "0");
    EXPECT_FALSE(shown("GameGuiSubSceneExitButton"));
    find("NAV-cellar.png")->componentGet<znCNavigateComponent>()->navigateActiveSet(false);
    addedEntrySend();
    EXPECT_FALSE(shown("SUB1-crate.png"));
}

TEST_F(znCSubSceneComponentTest, readsWhereADoorLeads)
{
    struct Case
    {
        const char* mName;
        s32 mTarget;
        bool mSparkles;
        Lines mErrors;
        Lines mLines;
    };
    const Case cases[] = {
        {"SUB1", 1, true, {}, {}},
        {"SUB2-crate-m3", 2, true, {}, {}},
        {"SUB1-NAV-crate", 1, false, {}, {}},
        {"SUB", 0, true, {"Expected a target index of 1 or above SUB."}, {}},
        {"SUB0-crate", 0, true, {"Expected a target index of 1 or above SUB0-crate."}, {}},
        {"SUB-1", 0, true, {"Expected a target index of 1 or above SUB-1."}, {}},
        {"SUB12", 12, true, {}, {"SUB12.png: there is no close-up 12."}},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mName);
        const std::string node = std::string(c.mName) + ".png";
        sceneSet("quay", "Background.png,0,0\n" + node + ",0,0\nBackgroundCrate.png,0,-50\nBackgroundCabin.png,0,0\n");
        linesTake();
        sceneOpen("quay");
        EXPECT_EQ(errorsTake(), c.mErrors);
        EXPECT_EQ(linesTake(), c.mLines);
        EXPECT_EQ(find(node)->componentGet<znCSubSceneNavigateComponent>()->targetIndexGet(), c.mTarget);
        EXPECT_EQ(find(node)->componentGet<znCParticleEmitterComponent>() != nullptr, c.mSparkles);
        tap(0, 0);
        levelEnd();
    }
    linesTake();
    openRoom("", "", "SUB1-crate.png,0,0\n");
    EXPECT_EQ(linesTake(),
              Lines{"SUB1-crate.png stands in close-up 2, which lies over close-up 1: a door leads on to a "
                    "later close-up only."});
}

TEST_F(znCSubSceneComponentTest, saysWhereAWayOutLeads)
{
    class Ear : public znIMessageListener
    {
    public:
        void messagesRegister() override { game().listenerRegister(znCHogMessageDispatcher::NAVIGATE_TAP, this); }
        void messagesDeregister() override { game().listenerDeregister(znCHogMessageDispatcher::NAVIGATE_TAP, this); }
        bool messageProcess(const znCUniqueId&, void* pData) override
        {
            mHeard += *static_cast<std::string*>(pData) + ";";
            return false;
        }
        std::string mHeard;

    private:
        static znCHogMessageDispatcher& game() { return *znCHogMessageDispatcher::instanceGet(); }
    };
    Ear ear;
    ear.messagesRegister();
    sceneSet("quay", "Background.png,0,0\nNAV-harbour.png,-100,0\nNAVP-NAV-pier.png,100,0\nNAVpier.png,0,100\n",
             "pier = \"the long pier\",\r\n");
    sceneOpen("quay");
    EXPECT_EQ(errorsTake(), Lines{"Expected NAV to be in my name NAVpier."});
    tap(-100, 0);
    tap(100, 0);
    EXPECT_EQ(ear.mHeard, "harbour;the long pier;");
    ear.messagesDeregister();
}

TEST_F(znCSubSceneComponentTest, darkensWhatLiesAround)
{
    openRoom("");
    subSceneOpen(1);
    frame();
    constexpr u32 SHADE = 0xaf000000u;
    bool found = false;
    for (const znCTestDraw::Run& run : mPlatform.mDraw.mPresented)
        for (std::size_t i = 0; i < run.mColours.size(); i += 4)
            found = found || (run.mColours[i] == SHADE && run.mTexture == 0 && run.mPositions[2 * i] == 0.0f &&
                              run.mPositions[2 * i + 1] == 0.0f && run.mPositions[2 * (i + 2)] == CANVAS_WIDTH &&
                              run.mPositions[2 * (i + 2) + 1] == CANVAS_HEIGHT);
    EXPECT_TRUE(found) << "one quad over the whole canvas";
}
} // namespace
