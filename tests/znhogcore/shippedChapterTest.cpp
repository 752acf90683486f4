// The voyage that ships, from the crew list to the last lamp and the map behind it, with a crash in every scene.

#include "tests/znhogcore/shippedPlayer.h"

#include <gtest/gtest.h>

#include <set>

namespace
{
constexpr s32 SECOND = ShippedGame::SECOND;
constexpr s32 SAVE_PAUSE = 15 * SECOND; // by then what was found has been written
constexpr s32 ROUND_MAX = 900 * SECOND;
constexpr s32 FINDS_BEFORE = 6; // before the crash

std::string levelNameGet()
{
    return ShippedGame::open() ? ShippedGame::level().levelNameGet() : "";
}

void crewSign(ShippedGame& pGame)
{
    pGame.menuOpen();
    pGame.type("Wren");
    pGame.press("NewPlayerOKButton");
}

void optionsLookAt(ShippedGame& pGame)
{
    pGame.press("GameGuiMenuButton");
    pGame.press("PauseOptionsButton");
    pGame.press("OptionsCloseButton");
}

// Plays half a round, is killed and plays on by the main menu; what was found stays so. What makes that sure is time,
// or a look at the options, which save too.
void sceneFinish(ShippedGame& pGame, u32 pSeed)
{
    std::vector<std::string> found;
    {
        ShippedPlayer player(pGame);
        for (s32 i = 0; i < FINDS_BEFORE; ++i)
            if (!player.step())
                pGame.framesRun(SECOND / 4);
        if (pSeed % 2 == 0)
            optionsLookAt(pGame);
        else
            pGame.framesRun(SAVE_PAUSE);
        found = player.mFound;
    }
    const std::string scene = levelNameGet();
    pGame.crash(pSeed);
    pGame.menuOpen();
    pGame.press("MainMenuContinueButton");
    ASSERT_EQ(levelNameGet(), scene);
    ShippedPlayer player(pGame);
    ASSERT_TRUE(player.roundPlay(ROUND_MAX));
    found.insert(found.end(), player.mFound.begin(), player.mFound.end());
    EXPECT_EQ(std::set<std::string>(found.begin(), found.end()).size(), found.size()) << "something was found twice";
    sailOn(pGame);
}

// Presses a place of the map, from the open chart or through the close-up that it may stand in.
void placePress(ShippedGame& pGame, const std::string& pScene)
{
    if (ShippedPlayer::subSceneIndexGet() > 0)
        ShippedPlayer(pGame).stepBack();
    const std::string place = "NAV-" + pScene + ".png";
    if (ShippedGame::shownFind(place) == nullptr)
        pGame.press("SUB1.png");
    pGame.press(place);
}
} // namespace

TEST(shippedChapterTest, isPlayedFromTheCrewListToTheLastLamp)
{
    const std::vector<std::string> scenes = scenesGet();
    for (const u32 seed : {21u, 22u, 23u})
    {
        SCOPED_TRACE(seed);
        ShippedGame game(seed);
        crewSign(game);
        std::set<std::string> visited;
        while (levelNameGet() != "end" && visited.size() <= scenes.size())
        {
            const std::string scene = levelNameGet();
            SCOPED_TRACE(scene);
            ASSERT_TRUE(ShippedGame::open());
            ASSERT_TRUE(visited.insert(scene).second) << "the voyage goes round in circles";
            sceneFinish(game, seed);
            if (levelNameGet() == "map")
            {
                const std::string next = znCHogUserSavedData::instanceGet()->strGet(znCHogUserSavedData::MAP_LEVEL);
                placePress(game, next);
                game.press("GUIMapContinueButton");
                ASSERT_EQ(levelNameGet(), next);
            }
            ASSERT_FALSE(HasFailure());
        }
        EXPECT_EQ(std::vector<std::string>(visited.begin(), visited.end()), scenes) << "a place that no mail reaches";

        game.press("endScreenGUIContinueButton");
        game.press("MainMenuContinueButton");
        ASSERT_EQ(levelNameGet(), "map");
        for (const std::string& scene : scenes)
        {
            SCOPED_TRACE(scene);
            placePress(game, scene);
            EXPECT_NE(ShippedGame::shownFind("ScenePopupGoButton"), nullptr);
            game.press("ScenePopupCloseButton");
        }
        // Once more from the map.
        placePress(game, scenes.front());
        game.press("ScenePopupGoButton");
        EXPECT_EQ(levelNameGet(), scenes.front());
        EXPECT_EQ(game.faultsTake(), std::vector<std::string>());
    }
}
