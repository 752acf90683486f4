#include "znhogcore/components/gui/znCGameGui.h"

#include "tests/znhogcore/znCRoomTest.h"
#include "znappcore/components/gui/elements/znCButtonDelayComponent.h"
#include "znappcore/components/gui/elements/znCCommodityButtonComponent.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znNSpotTheDiff.h"
#include "znhogcore/znCScoreCollectionEffectData.h"

namespace
{
using Lines = std::vector<std::string>;

constexpr s32 CASUAL_MS = 320;
constexpr s32 CHALLENGE_MS = 640;
constexpr char NOTHING[] = "Nothing to point at.";

class znCGameGuiTest : public znCRoomTest
{
protected:
    void SetUp() override
    {
        mPlatform.mFiles.fileSet("strings.txt", "nothingToHintOn = \"Nothing to point at.\",\r\n"
                                                "quayTitle = \"The old quay\",\r\nfind = \"Find \",\r\n"
                                                "differenceSingle = \" difference\",\r\n"
                                                "differencePlural = \" differences\",\r\n"
                                                "inTheScene = \" here\",\r\n");
        mPlatform.mFiles.fileSet("appsettings.txt",
                                 std::string(znCHogTestProgram::SETTINGS) + "gameGuiHintFillBarDelayCasual = \"" +
                                     std::to_string(CASUAL_MS) + "\",\r\ngameGuiHintFillBarDelayChallenge = \"" +
                                     std::to_string(CHALLENGE_MS) + "\",\r\ndiffNotFoundMarker = \"marker.xml\",\r\n");
        znCRoomTest::SetUp();
        user().s32Set(znCHogUserSavedData::HINT_FREE_STREAK, 4);
    }
    void button(s32 pX) { tap(pX, BUTTONS_Y); }
    // The sub-scene in which a hint has begun to fly since the last call; -1 for none.
    s32 hintGet()
    {
        for (s32 index : {0, 1, 2})
        {
            auto* hint = dynamic_cast<znCEntity*>(find("SubScene" + std::to_string(index))->childFind("HintEffect"));
            if (hint == nullptr)
                continue;
            hint->destroy();
            frame();
            return index;
        }
        return -1;
    }
    // The middle of the rounds that it flies at the end.
    znPoint hintFollow()
    {
        std::vector<znPoint> way;
        for (auto* hint = find("HintEffect"); hint != nullptr; hint = find("HintEffect"))
        {
            way.push_back(hint->posRelativeToAncestorGet(&level()));
            frame();
        }
        if (way.empty())
            return znPoint(0, 0);
        znPoint least = way.back();
        znPoint most = way.back();
        for (std::size_t i = way.size() / 2; i < way.size(); ++i)
        {
            least = znPoint(std::min(least.mX, way[i].mX), std::min(least.mY, way[i].mY));
            most = znPoint(std::max(most.mX, way[i].mX), std::max(most.mY, way[i].mY));
        }
        return znPoint((least.mX + most.mX) / 2, (least.mY + most.mY) / 2);
    }
    bool charging(const char* pBar) { return find(pBar)->componentGet<znCButtonDelayComponent>()->isCharging(); }
    s32 streakGet() { return user().s32Get(znCHogUserSavedData::HINT_FREE_STREAK); }
};

TEST_F(znCGameGuiTest, leavesFullScreenCloseUpsByItsButton)
{
    openRoom("", "", "PCK-map.png,0,0\n");
    EXPECT_FALSE(shown("GameGuiSubSceneExitButton"));
    subSceneOpen(2);
    EXPECT_TRUE(shown("GameGuiSubSceneExitButton"));
    button(EXIT_X);
    EXPECT_EQ(openGet(), "0");
    EXPECT_FALSE(shown("GameGuiSubSceneExitButton"));

    activate("PCK-map.png");
    subSceneOpen(2);
    collect("PCK-map.png"); // its last find
    EXPECT_EQ(openGet(), "0");
    EXPECT_FALSE(shown("GameGuiSubSceneExitButton"));

    imageSet("scenes/quay/backgroundcrate.png", CANVAS_WIDTH, CANVAS_HEIGHT);
    levelEnd();
    openRoom("");
    subSceneOpen(1);
    subSceneOpen(2);
    button(EXIT_X);
    EXPECT_TRUE(shown("GameGuiSubSceneExitButton"));
    button(EXIT_X);
    EXPECT_EQ(openGet(), "0");
    EXPECT_FALSE(shown("GameGuiSubSceneExitButton"));
}

// The button leaves what is on top; a full-screen close-up below keeps it.
TEST_F(znCGameGuiTest, keepsTheWayOutOfAFullScreenCloseUpBelowASmallerOne)
{
    sceneSet("quay", "BackgroundQuay.png,0,0\nBackgroundCabin.png,0,0\nBackgroundCrate.png,0,0\n");
    sceneOpen("quay");
    subSceneOpen(1);
    subSceneOpen(2);
    button(EXIT_X); // beside the picture as well as on the button: only the button takes it
    EXPECT_EQ(openGet(), "0 1");
    EXPECT_TRUE(shown("GameGuiSubSceneExitButton"));
    button(EXIT_X);
    EXPECT_EQ(openGet(), "0");
    EXPECT_FALSE(shown("GameGuiSubSceneExitButton"));
}

TEST_F(znCGameGuiTest, goesOnWithAFullScreenCloseUpThatWasSavedOpen)
{
    for (const bool open : {true, false})
    {
        openRoom("SUB2-cabin.png,0,0\n", "", "PCK-map.png,0,0\n");
        if (open)
            subSceneOpen(2);
        levelEnd(false);
        openRoom("SUB2-cabin.png,0,0\n", "", "PCK-map.png,0,0\n");
        EXPECT_EQ(openGet(), open ? "0 2" : "0");
        EXPECT_EQ(shown("GameGuiSubSceneExitButton"), open);
        button(EXIT_X);
        EXPECT_EQ(openGet(), "0");
        EXPECT_FALSE(shown("GameGuiSubSceneExitButton"));
        levelEnd();
    }
}

TEST_F(znCGameGuiTest, hintsAtADoorThatLeadsToWork)
{
    openRoom("SUB1-crate.png,-300,0\nSUB2-cabin.png,300,0\n", "SUB2-box.png,0,0\nPCK-tin.png,0,0\n",
             "PCK-map.png,0,0\n");
    activate("PCK-map.png");
    addedEntrySend();
    button(HINT_X);
    const znPoint place = hintFollow();
    EXPECT_NEAR(std::abs(place.mX), 300, 10); // into the crate, which leads on, or straight into the cabin
    EXPECT_NEAR(place.mY, 0, 10);
    EXPECT_EQ(streakGet(), znCHogUserSavedData::HINT_USED);
}

TEST_F(znCGameGuiTest, hintsAtADoorBesideACloseUpWhereItLies)
{
    openRoom("SUB2-cabin.png,-300,0\n", "NAV-in.png,0,0\n", "PCK-map.png,0,0\n");
    activate("PCK-map.png");
    addedEntrySend();
    subSceneOpen(1);
    button(HINT_X);
    const znPoint place = hintFollow();
    EXPECT_NEAR(place.mX, -300, 10);
    EXPECT_NEAR(place.mY, 0, 10);
}

TEST_F(znCGameGuiTest, hintsOnlyAtWhatThePlayerCanPress)
{
    struct Case
    {
        const char* mWhat;
        const char* mRoom;
        const char* mCrate;
        bool mWork;
        std::vector<s32> mOpen;
        s32 mHint; // the sub-scene that it flies in, -1: none
    };
    const Case cases[] = {
        {"a door with work behind", "SUB1-crate.png,-300,0\n", "PCK-tin.png,0,0\n", true, {}, 0},
        {"a door without", "SUB1-crate.png,-300,0\n", "PCK-tin.png,0,0\n", false, {}, -1},
        {"no door", "", "PCK-tin.png,0,0\n", true, {}, -1},
        {"the door of what is open", "SUB1-crate.png,-300,0\n", "PCK-tin.png,0,0\n", true, {1}, -1},
        {"a door beside the open one", "SUB2-cabin.png,-300,0\n", "NAV-in.png,0,0\n", true, {1}, 1},
        {"a door behind the open one", "SUB2-cabin.png,0,0\n", "NAV-in.png,0,0\n", true, {1}, -1},
        {"a door in the open one", "SUB1-crate.png,0,0\n", "SUB2-box.png,0,-50\n", true, {1}, 1},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mWhat);
        openRoom(c.mRoom, c.mCrate, "PCK-map.png,0,0\n");
        for (const char* name : {"PCK-tin.png", "PCK-map.png"})
            if (c.mWork && find(name) != nullptr)
                activate(name);
        addedEntrySend();
        for (s32 index : c.mOpen)
            subSceneOpen(index);
        button(HINT_X);
        EXPECT_EQ(charging("gameGuiHintFillBar"), c.mHint >= 0);
        EXPECT_EQ(notificationGet() == NOTHING, c.mHint < 0);
        EXPECT_EQ(hintGet(), c.mHint);
        znCNotificationsGui::instanceGet()->update(100000);
        levelEnd();
        programStop(); // the strip keeps its words
        programStart();
    }
}

TEST_F(znCGameGuiTest, takesPressesWhileItRecharges)
{
    struct Case
    {
        bool mCasual;
        s32 mMs;
    };
    for (const Case& c : {Case{true, CASUAL_MS}, Case{false, CHALLENGE_MS}})
        for (const char* direction : {"up", "down", "left", "right"})
        {
            SCOPED_TRACE(direction);
            user().boolSet(znCHogUserSavedData::CASUAL, c.mCasual);
            panelSet(buttonGet("gameGuiHintButton", HINT_X) +
                     barGet("gameGuiHintFillBar", HINT_X, std::string("fillDirection = ") + direction));
            openRoom("SUB1-crate.png,-300,0\n", "PCK-tin.png,0,0\n");
            activate("PCK-tin.png");
            addedEntrySend();
            EXPECT_FALSE(shown("gameGuiHintFillBar")) << "it starts full";
            button(HINT_X);
            EXPECT_EQ(hintGet(), 0); // and a frame
            frame(c.mMs / FRAME_MS - 5);
            EXPECT_TRUE(shown("gameGuiHintFillBar"));
            button(HINT_X); // two frames
            EXPECT_EQ(hintGet(), -1);
            frame(3);
            EXPECT_FALSE(shown("gameGuiHintFillBar"));
            button(HINT_X);
            EXPECT_EQ(hintGet(), 0);
            levelEnd();
        }
}

TEST_F(znCGameGuiTest, countsTheRechargeDownWhereThereIsATimer)
{
    panelSet(buttonGet("gameGuiHintButton", HINT_X) + barGet("gameGuiHintFillBar", HINT_X) + textGet("gameGuiTimer"));
    mPlatform.mFiles.fileSet("appsettings.txt", std::string(znCHogTestProgram::SETTINGS) +
                                                    "gameGuiHintFillBarDelayCasual = \"75000\",\r\n");
    programStop();
    programStart();
    openRoom("SUB1-crate.png,-300,0\n", "PCK-tin.png,0,0\n");
    button(HINT_X);
    EXPECT_EQ(panelTextGet("gameGuiTimer"), "1:14");
    frame(11000 / FRAME_MS);
    EXPECT_EQ(panelTextGet("gameGuiTimer"), "1:03");
}

TEST_F(znCGameGuiTest, sellsHints)
{
    panelSet("znCCommodityButtonComponent { name = gameGuiHintButton buttonImage = button.png buttonDisabledImage = "
             "off.png commodity = hints" +
             placeGet(HINT_X) + " znCTextSpriteComponent { name = commodityCount font = f.ttf fontSize = 20 } }\n");
    imageSet("off.png", 40, 40);
    user().s32Set("hints", 1);
    openRoom("SUB1-crate.png,-300,0\n", "PCK-tin.png,0,0\n");
    subSceneOpen(1);
    button(HINT_X);
    EXPECT_EQ(notificationGet(), NOTHING);
    EXPECT_EQ(panelTextGet("commodityCount"), "1") << "nothing was given for it";
    send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE);
    button(HINT_X);
    EXPECT_EQ(hintGet(), 0);
    EXPECT_EQ(panelTextGet("commodityCount"), "0");
    button(HINT_X);
    EXPECT_EQ(hintGet(), -1);
    EXPECT_EQ(user().s32Get("hints"), 0);
    user().s32Set("hints", -5); // of a file that somebody has written
    button(HINT_X);
    EXPECT_EQ(hintGet(), -1);
    user().s32Set("hints", 3);
    znCGuiMessageDispatcher::instanceGet()->messageSend(znCCommodityButtonComponent::ITEM_PURCHASED,
                                                        znCEmptyMessageData::sharedGet());
    EXPECT_EQ(panelTextGet("commodityCount"), "3");
    button(HINT_X);
    EXPECT_EQ(user().s32Get("hints"), 2);
}

TEST_F(znCGameGuiTest, showsTitleAndFortune)
{
    panelSet(textGet("GUIMinigameTitleText") + textGet("currency"));
    user().s32Set(znCUserSavedData::CURRENCY, 999990);
    openRoom("");
    EXPECT_EQ(panelTextGet("GUIMinigameTitleText"), "The old quay");
    EXPECT_EQ(panelTextGet("currency"), "999990");
    znCScoreCollectionEffectData data;
    data.mPoints = 250;
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::SCORE_COLLECTION_EFFECT_COMPLETE,
                                                        &data);
    EXPECT_EQ(panelTextGet("currency"), "1000240");
    EXPECT_EQ(user().s32Get(znCUserSavedData::CURRENCY), 1000240);
    user().s32Set(znCUserSavedData::CURRENCY, 7);
    znCGuiMessageDispatcher::instanceGet()->messageSend(znCCommodityButtonComponent::ITEM_PURCHASED,
                                                        znCEmptyMessageData::sharedGet());
    EXPECT_EQ(panelTextGet("currency"), "7");
}

TEST_F(znCGameGuiTest, waitsForThePlayerAtTheEnd)
{
    panelSet(buttonGet("playerControlledContinueBtn", CONTINUE_X));
    std::string requirement = "test";
    openRoom("");
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->messageSend(znCHogMessageDispatcher::COMPLETION_REQUIREMENT_ADD, &requirement);
    EXPECT_FALSE(shown("playerControlledContinueBtn"));
    send(znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING);
    EXPECT_TRUE(shown("playerControlledContinueBtn"));
    button(CONTINUE_X);
    EXPECT_TRUE(shown("playerControlledContinueBtn")) << "something is missing";
    levelEnd(false);
    openRoom(""); // saved with the button on view
    EXPECT_FALSE(shown("playerControlledContinueBtn"));
}

// A piece of a picture with differences, as far as the panel looks at it.
class Piece : public znIComponent
{
public:
    using znIComponent::znIComponent;
    static znIComponent* create(znCEntity* pEntity) { return new Piece(pEntity); }
};

TEST_F(znCGameGuiTest, countsDifferencesAndMarksMissedTaps)
{
    panelSet(textGet("GameGuiDifferencesText"));
    animationSet("marker");
    znCComponentFactory::instanceGet()->componentRegister(znNSpotTheDiff::PIECE_TYPE, Piece::create);
    openRoom("DIF-a.png,-300,0\nDIF-b.png,300,0\nDIF-c.png,-300,100\nDIF-d.png,300,100\n");
    errorsTake(); // of the animations that the pieces lack
    EXPECT_EQ(panelTextGet("GameGuiDifferencesText"), "Find 2 differences here");
    send(znCHogMessageDispatcher::STD_DIFFERENCE_FOUND);
    EXPECT_EQ(panelTextGet("GameGuiDifferencesText"), "Find 1 difference here");
    send(znCHogMessageDispatcher::STD_DIFFERENCE_FOUND);
    EXPECT_EQ(panelTextGet("GameGuiDifferencesText"), "");
    tap(20, 30);
    ASSERT_NE(find("MissedSTDClick"), nullptr);
    EXPECT_EQ(find("MissedSTDClick")->posGet(), znPoint(20, 30));
    tap(60, 60); // the marker takes it
    frame(200);
    EXPECT_EQ(find("MissedSTDClick"), nullptr);
    errorsTake();
}

TEST_F(znCGameGuiTest, ghostsRechargeAndEndTheStreak)
{
    openRoom("HOT-bell.png,0,0\nHOT-rope.png,100,0\n");
    button(GHOST_X);
    EXPECT_EQ(streakGet(), znCHogUserSavedData::HINT_USED);
    EXPECT_TRUE(charging("gameGuiGhostModeFillBar"));
}

// Taps where the hints point, opens and closes what is needed, and knows nothing else of the scene.
TEST_F(znCGameGuiTest, letsAPlayerFinishAListByHintsAlone)
{
    panelSet("znCPickListGui { name = hogPickList modal = false requiredForActCompletion = true randomEntityTypes = "
             "\"PCK- HDN-\" priorityEntityTypes = REQ- collectAllEntities = true\n"
             "znCSingleItemPickListEntryGui { name = pickItem0 znCTextSpriteComponent { font = f.ttf fontSize = 9 } }\n"
             "znCSingleItemPickListEntryGui { name = pickItem1 znCTextSpriteComponent { font = f.ttf fontSize = 9 } }\n"
             "}\n" +
             buttonGet("GameGuiSubSceneExitButton", EXIT_X) + buttonGet("gameGuiHintButton", HINT_X));
    openRoom("PCK-rope.png,200,0\nPCK-bell.png,200,100\nSUB1-crate.png,-300,0\n",
             "PCK-tin.png,-100,0\nSUB2-box.png,100,-50\nHDN-cork.png,-100,-100\n",
             "REQ-map.png,-100,-100\nPCK-pen.png,100,-100\n");
    constexpr s32 ITEMS = 6;
    const char* items[ITEMS] = {"PCK-rope.png", "PCK-bell.png", "PCK-tin.png",
                                "HDN-cork.png", "REQ-map.png",  "PCK-pen.png"};
    frame(20);
    s32 found = 0;
    for (s32 hints = 0; hints < 40 && found < ITEMS; ++hints)
    {
        button(HINT_X);
        if (find("HintEffect") == nullptr)
        {
            send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE);
            continue;
        }
        const znPoint place = hintFollow();
        tap(place.mX, place.mY);
        frame(2000 / FRAME_MS);
        found = 0;
        for (const char* item : items)
            found += stateGet(item) == znICollectableComponent::STATE_COLLECTED ? 1 : 0;
    }
    EXPECT_EQ(found, ITEMS);
    EXPECT_EQ(openGet(), "0");
    errorsTake(); // of strings and fonts that this scene lacks
}
} // namespace
