// The scenes that ship, played to their ends by presses alone, as a player would who knows where everything lies; and
// by one who knows nothing and only follows hints.

#include "tests/znhogcore/shippedPlayer.h"

#include <gtest/gtest.h>

#include <optional>

namespace
{
constexpr s32 SECOND = ShippedGame::SECOND;
constexpr s32 PLAY_MAX = 900 * SECOND;   // in which a round must end
constexpr s32 HINTS_MAX = 2000 * SECOND; // the same by hints alone, which may lead through one door after the other
constexpr s32 HINT_PAUSE = 15 * SECOND;

// Where the sparkles of a hint end: in the middle of three rounds, the last of which take over a second.
std::optional<znPoint> hintPlaceWatch(ShippedGame& pGame)
{
    struct Box
    {
        s32 mLeft, mTop, mRight, mBottom;
    };
    constexpr s32 HINT_MS = 4000;
    constexpr s32 ROUNDS_MS = 2700;
    std::optional<Box> rounds;
    for (s32 ms = 0; ms < HINT_MS; ms += znCHogTestProgram::FRAME_MS)
    {
        pGame.framesRun(1);
        const auto* effect = dynamic_cast<znCEntity*>(ShippedGame::level().childFind("HintEffect"));
        if (effect == nullptr || ms < ROUNDS_MS)
            continue;
        const znPoint at = effect->posGet();
        if (!rounds)
            rounds = Box{at.mX, at.mY, at.mX, at.mY};
        rounds->mLeft = std::min(rounds->mLeft, at.mX);
        rounds->mTop = std::min(rounds->mTop, at.mY);
        rounds->mRight = std::max(rounds->mRight, at.mX);
        rounds->mBottom = std::max(rounds->mBottom, at.mY);
    }
    if (!rounds)
        return std::nullopt;
    return znPoint((rounds->mLeft + rounds->mRight) / 2, (rounds->mTop + rounds->mBottom) / 2);
}

} // namespace

TEST(shippedScenesTest, arePlayedToTheirEnds)
{
    for (const std::string& scene : scenesGet())
    {
        std::vector<std::vector<std::string>> rounds;
        for (const u32 seed : {7u, 7u, 8u})
        {
            SCOPED_TRACE(scene + " " + std::to_string(seed));
            ShippedGame game(seed);
            game.sceneOpen(scene);
            ASSERT_TRUE(ShippedGame::open());
            ShippedPlayer player(game);
            ASSERT_TRUE(player.roundPlay(PLAY_MAX));
            sailOn(game);
            rounds.push_back(player.mFound);
            EXPECT_EQ(game.faultsTake(), std::vector<std::string>());
        }
        EXPECT_EQ(rounds[0], rounds[1]) << scene << ": the same seed picks the same things";
        EXPECT_NE(rounds[0], rounds[2]) << scene << ": another seed picks others";
    }
}

TEST(shippedScenesTest, areFinishedByWhoFollowsHints)
{
    for (const std::string& scene : scenesGet())
        for (const u32 seed : {3u, 4u})
        {
            SCOPED_TRACE(scene + " " + std::to_string(seed));
            ShippedGame game(seed);
            game.sceneOpen(scene);
            ShippedPlayer player(game);
            s32 lastHint = game.mFrames;
            while (!ended() && game.mFrames < HINTS_MAX)
            {
                auto* button = dynamic_cast<znCEntity*>(ShippedGame::level().childFind("gameGuiHintButton"));
                game.tap(button->worldPosGet());
                auto* effect = dynamic_cast<znCEntity*>(ShippedGame::level().childFind("HintEffect"));
                if (effect == nullptr)
                {
                    // Nothing here: a player goes back to the room. At the end of a round nothing is left at all.
                    while (ShippedPlayer::subSceneIndexGet() > 0 && player.stepBack())
                    {
                    }
                    game.framesRun(SECOND / 2);
                    ASSERT_LT(game.mFrames - lastHint, HINT_PAUSE + 20 * SECOND);
                    continue;
                }
                lastHint = game.mFrames;
                const std::optional<znPoint> place = hintPlaceWatch(game);
                if (!ended() && !ShippedPlayer::celebrated() && place)
                    EXPECT_TRUE(player.hintFollow(*place)) << place->mX << "," << place->mY;
                game.framesRun(HINT_PAUSE);
            }
            EXPECT_TRUE(ended());
            EXPECT_EQ(game.faultsTake(), std::vector<std::string>());
        }
}

// Every thing can be found where it lies: enough of it is in sight, within a screen of 4:3, clear of the panel.
TEST(shippedScenesTest, showEnoughOfEveryThing)
{
    constexpr s32 STEP = 2;
    constexpr std::size_t PIXELS_MIN = 160; // of the canvas
    constexpr s32 HALF_NARROW = 512;
    for (const std::string& scene : scenesGet())
    {
        ShippedGame game(1);
        game.sceneOpen(scene);
        std::vector<znCEntity*> things = ShippedGame::level().entitiesWithKindGet<znCTappableCollectableComponent>();
        for (znCEntity* key : ShippedGame::level().entitiesWithKindGet<znCDraggableKeyComponent>())
            things.push_back(key);
        EXPECT_GE(things.size(), 15u) << scene;
        for (znCEntity* thing : things)
        {
            auto* subScene = dynamic_cast<znCEntity*>(thing->parentGet());
            subScene->activeSet(true);
            ShippedGame::level().treeUpdate(0);
            const std::vector<znPoint> pixels = pixelsInSight(thing, STEP);
            EXPECT_GE(pixels.size() * STEP * STEP, PIXELS_MIN) << scene << "/" << thing->nameGet();
            const auto inside =
                std::count_if(pixels.begin(), pixels.end(),
                              [](const znPoint& pPoint) { return std::abs(pPoint.mX - 683) < HALF_NARROW; });
            const std::string& name = thing->nameGet();
            if (name.starts_with("PCK-") || name.starts_with("REQ-") || name.starts_with("HDN-") ||
                name.starts_with("INS-") || name.starts_with("PRE-"))
                EXPECT_GE(static_cast<std::size_t>(inside) * STEP * STEP, PIXELS_MIN)
                    << scene << "/" << name << " can't be found on a screen of 4:3";
            if (subScene->componentGet<znCSubSceneComponent>()->indexGet() > 0)
                subScene->activeSet(false);
        }
    }
}
