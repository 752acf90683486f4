#include "znhogcore/components/znCGhostSpriteComponent.h"

#include "tests/znhogcore/znCRoomTest.h"

#include <set>

namespace
{
class znCGhostSpriteComponentTest : public znCRoomTest
{
protected:
    static constexpr u32 GREEN_MASK = 0xFFFF00FFu; // alpha, blue and red of a colour
    static constexpr u32 GHOST = 0x80000000u;

    void ghosts() { tap(GHOST_X, BUTTONS_Y); }
    // The scene's places, in the order of x, that show a mask.
    std::vector<s32> masksGet()
    {
        frame();
        std::set<s32> places;
        for (const znCTestDraw::Run& run : mPlatform.mDraw.mPresented)
            for (std::size_t i = 0; i < run.mColours.size(); i += 4)
                if ((run.mColours[i] & GREEN_MASK) == GHOST && run.mTexture != 0)
                    places.insert(static_cast<s32>(run.mPositions[2 * i] + run.mPositions[2 * i + 4]) / 2 -
                                  CANVAS_WIDTH / 2);
        return {places.begin(), places.end()};
    }
    u32 greenGet()
    {
        for (const znCTestDraw::Run& run : mPlatform.mDraw.mPresented)
            for (const u32 colour : run.mColours)
                if ((colour & GREEN_MASK) == GHOST)
                    return colour >> 8 & 0xFFu;
        return 0;
    }
};

TEST_F(znCGhostSpriteComponentTest, masksExactlyWhatCanBeFound)
{
    openRoom("HOT-bell.png,-350,0\nPCK-rope.png,-250,0\nPCK-tin.png,-150,0\nINS-oil.png,-50,0\n"
             "PRE-oil-wick-lamp.png,50,0\nlamp.png,150,0\nSUB1-crate.png,250,0\n",
             "HOT-cork.png,350,0\n");
    activate("PCK-tin.png");
    EXPECT_EQ(masksGet(), std::vector<s32>());
    ghosts();
    EXPECT_EQ(masksGet(), (std::vector<s32>{-350, -150, -50, 50}));
    activate("PCK-rope.png"); // comes on offer while ghosts show
    EXPECT_EQ(masksGet(), (std::vector<s32>{-350, -250, -150, -50, 50}));
    subSceneOpen(1);
    EXPECT_EQ(masksGet(), (std::vector<s32>{-350, -250, -150, -50, 50, 350}));
    send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE);
    press(-50, 0); // the key is in the hand
    EXPECT_EQ(masksGet(), (std::vector<s32>{-350, -250, -150, 50}));
    release(0, 200);
    tap(-350, 0);
    EXPECT_EQ(masksGet(), (std::vector<s32>{-250, -150, -50, 50})) << "taken, not yet found";
    effectsEnd();
    EXPECT_EQ(masksGet(), std::vector<s32>()) << "until the next find";
}

TEST_F(znCGhostSpriteComponentTest, leavesWhatStaysOnViewWhenFound)
{
    for (const bool reload : {false, true})
    {
        sceneSet("quay", "Background.png,0,0\nPCK-rope.png,-100,0\nPCK-tin.png,100,0\n",
                 "postCollectionVisible = \"true\",\r\n");
        sceneOpen("quay");
        activate("PCK-rope.png");
        activate("PCK-tin.png");
        collect("PCK-rope.png");
        if (reload)
        {
            levelEnd(false);
            sceneOpen("quay");
        }
        ghosts();
        EXPECT_EQ(masksGet(), std::vector<s32>{100});
        send(znCHogMessageDispatcher::REPLAY_LEVEL);
        EXPECT_EQ(masksGet(), std::vector<s32>());
        errorsTake();
        levelEnd();
    }
}

TEST_F(znCGhostSpriteComponentTest, pulses)
{
    openRoom("HOT-bell.png,0,0\n");
    find("GameGui")->activeSet(true);
    ghosts();
    u32 least = 255;
    u32 most = 0;
    for (s32 i = 0; i < 1100 / FRAME_MS; ++i)
    {
        frame();
        least = std::min(least, greenGet());
        most = std::max(most, greenGet());
    }
    EXPECT_NEAR(least, 0x60u, 3);
    EXPECT_NEAR(most, 0xb0u, 3);
    // Once a second, without a jump.
    constexpr u32 STEP = 2 + 0x30 * FRAME_MS / 250;
    for (s32 i = 0; i < 1100 / FRAME_MS; ++i)
    {
        const u32 before = greenGet();
        frame();
        EXPECT_LE(greenGet() > before ? greenGet() - before : before - greenGet(), STEP) << i;
    }
}
} // namespace
