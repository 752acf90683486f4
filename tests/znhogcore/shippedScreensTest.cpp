// The screens that ship, as a graph: every control of every screen is pressed, and from everywhere there is a way back
// to the main menu.

#include "tests/znhogcore/shippedGame.h"
#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/elements/znCCheckBoxComponent.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/components/znCTextEntryComponent.h"
#include "znappcore/src/znCProfileManager.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace
{
constexpr s32 SECOND = ShippedGame::SECOND;
constexpr char MAIN_MENU[] = "MainMenuGui";
constexpr char NAME_TYPED[] = "(a name is typed)";
constexpr char ASHORE[] = "(the game has ended)";

// Everything on view that bears a GUI, and the level's name: what a player would call the screen.
std::string screenGet()
{
    std::string screen = znIHogLevel::levelGet() != nullptr ? znIHogLevel::levelGet()->levelNameGet() : "";
    znINode* display = znCHogCoreMain::instanceGet()->appDisplayChildFind(
        znIHogLevel::levelGet() != nullptr ? znIHogLevel::NAME : MAIN_MENU);
    if (display == nullptr)
        return screen + " (nothing stands)";
    ShippedGame::nodesVisit(display->parentGet(),
                            [&](znCEntity& pEntity)
                            {
                                const std::string& name = pEntity.nameGet();
                                if (const auto* entry = pEntity.componentGet<znCTextEntryComponent>())
                                    screen += entry->textGet().empty() ? "" : " signed";
                                if (znIGuiComponent::guiComponentGet(&pEntity) == nullptr || name.empty() ||
                                    name.starts_with("pickItem") || name.starts_with("ChoosePlayerProfile") ||
                                    name == "NotificationsGui" || name.find("ickList") != std::string::npos)
                                    return;
                                screen += (screen.empty() ? "" : " ") + name;
                            });
    return screen;
}

// The controls that a press at their middle reaches.
std::vector<std::string> controlsGet()
{
    std::vector<std::string> controls;
    ShippedGame::nodesVisit(znIDisplay::instanceGet(),
                            [&](znCEntity& pEntity)
                            {
                                const bool control = pEntity.componentFind<znCButtonComponent>() != nullptr ||
                                                     pEntity.componentFind<znCCheckBoxComponent>() != nullptr;
                                if (pEntity.componentGet<znCTextEntryComponent>() != nullptr)
                                    controls.push_back(NAME_TYPED);
                                if (control && !pEntity.nameGet().empty())
                                    controls.push_back(pEntity.nameGet());
                            });
    return controls;
}

// A way to a screen: what to start from, then the controls to press.
struct Way
{
    std::function<void(ShippedGame&)> mStart;
    std::vector<std::string> mPresses;
};

void press(ShippedGame& pGame, const std::string& pControl)
{
    if (pControl == NAME_TYPED)
    {
        return pGame.type("Zoe");
    }
    pGame.press(pControl);
}

void walk(ShippedGame& pGame, const Way& pWay)
{
    pWay.mStart(pGame);
    for (const std::string& control : pWay.mPresses)
        press(pGame, control);
}

void playersMake(const char* pNames)
{
    for (; *pNames != 0; ++pNames)
    {
        znCProfileManager::instanceGet()->profileCreate(std::string(1, *pNames));
        znCUserSavedData::instanceGet()->boolSet(znCUserSavedData::FULL_SCREEN, false);
    }
}

Way levelWay(const std::string& pLevel, const std::string& pOffer = "")
{
    return {[=](ShippedGame& pGame)
            {
                playersMake("A");
                znCHogUserSavedData* user = znCHogUserSavedData::instanceGet();
                user->strSet(std::string(znCHogUserSavedData::LEVEL_STATE) + "quay", "");
                user->strSet(znCHogUserSavedData::MAP_LEVEL, pOffer);
                pGame.sceneOpen(pLevel);
            },
            {}};
}
} // namespace

TEST(shippedScreensTest, leadEverywhereAndBack)
{
    std::vector<Way> ways = {
        {[](ShippedGame& pGame) { pGame.menuOpen(); }, {}}, // nobody has signed on yet
        {[](ShippedGame& pGame)
         {
             playersMake("AB");
             pGame.menuOpen();
         },
         {}},
        {[](ShippedGame& pGame)
         {
             playersMake("ABCDE"); // as many as there can be, one of them with a game under way
             znCHogUserSavedData::instanceGet()->strSet(znCHogUserSavedData::CURRENT_LEVEL, "quay");
             pGame.menuOpen();
         },
         {}},
        levelWay("quay"),
        {[](ShippedGame& pGame)
         {
             levelWay("quay").mStart(pGame);
             std::string list = "hogPickList"; // as if it were done
             znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_MET,
                                                                 &list);
             pGame.framesRun(10 * SECOND);
         },
         {}},
    };
    for (const char* level : {"map", "end"})
        if (std::filesystem::exists(std::filesystem::path(PETREL_ROOT) / "data" / "scenes" / level))
            ways.push_back(levelWay(level, "quay"));
    std::map<std::string, std::set<std::string>> steps; // from a screen, to screens
    std::map<std::string, Way> known;
    std::vector<std::string> open;
    const auto screenNote = [&](const std::string& pScreen, const Way& pWay)
    {
        if (known.emplace(pScreen, pWay).second)
            open.push_back(pScreen);
    };
    std::size_t presses = 0;
    for (const Way& way : ways)
    {
        ShippedGame game(5);
        walk(game, way);
        screenNote(screenGet(), way);
    }
    while (!open.empty() && presses < 600)
    {
        const std::string screen = open.back();
        open.pop_back();
        if (screen == ASHORE)
            continue;
        std::vector<std::string> controls;
        {
            ShippedGame game(5);
            walk(game, known[screen]);
            controls = controlsGet();
        }
        for (const std::string& control : controls)
        {
            SCOPED_TRACE(screen + ": " + control);
            ShippedGame game(5);
            walk(game, known[screen]);
            press(game, control);
            ++presses;
            EXPECT_EQ(game.faultsTake(), std::vector<std::string>());
            const std::string next = control == "MainMenuQuitButton" ? ASHORE : screenGet();
            steps[screen].insert(next);
            Way way = known[screen];
            way.mPresses.push_back(control);
            screenNote(next, way);
        }
    }
    EXPECT_LT(presses, 600u);
    // From where the main menu or the shore can be reached.
    std::set<std::string> safe = {MAIN_MENU, ASHORE};
    for (std::size_t before = 0; before != safe.size();)
    {
        before = safe.size();
        for (const auto& [screen, nexts] : steps)
            if (std::any_of(nexts.begin(), nexts.end(),
                            [&](const std::string& pNext) { return safe.count(pNext) > 0; }))
                safe.insert(screen);
    }
    for (const auto& [screen, way] : known)
        EXPECT_EQ(safe.count(screen), 1u) << "no way back from: " << screen;
    EXPECT_GE(known.size(), 12u);
}
