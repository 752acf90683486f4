// The map: what shows follows from the player's data, and a press on a place leads on.

#include "znhogcore/src/znCHogMapLevel.h"
#include "znhogcore/src/znCHogUserSavedData.h"

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCBrush.h"
#include "znhogcore/components/gui/znCMapPopUpGui.h"
#include "znhogcore/components/znCNavigateComponent.h"

#include <set>

namespace
{
constexpr s32 FADE_FRAMES = 500 / 16 + 5;

class znCHogMapLevelTest : public znCHogTest
{
protected:
    znCHogMapLevelTest()
    {
        mPlatform.mFiles.fileSet("strings.txt",
                                 "numOfNum = \" of \",\r\ntrashInfo = \"litter \",\r\nlostFoundInfo = \"lost "
                                 "\",\r\nperfect = \"perfect\",\r\nquay = \"the quay\",\r\nshop = \"the "
                                 "shop\",\r\ncabin = \"the cabin\",\r\nquayRO = \"quay\",\r\nshopRO = "
                                 "\"shop\",\r\ncabinRO = \"cabin\",\r\nshopDesc = \"a shop\",\r\n");
    }

    static znCHogUserSavedData& user() { return *znCHogUserSavedData::instanceGet(); }

    // Places of the scenes quay (left), shop (middle) and cabin (right), each with its three masks.
    void mapSet(const std::string& pTable = "")
    {
        std::string coords = "Background.png,0,0\n";
        s32 x = -200;
        for (const char* scene : {"quay", "shop", "cabin"})
        {
            const std::string at = "," + std::to_string(x) + ",0\n";
            coords += std::string("MASK-") + scene + "-r.png" + at + "MASK-" + scene + "-p.png" + at + "MASK-" + scene +
                      "-g.png" + at + "NAV-" + scene + ".png" + at;
            x += 200;
        }
        sceneSet("map", coords, pTable);
        for (const char* medal : {"gold", "silver", "bronze"})
            imageSet(std::string("gui/maphud/mapstars/") + medal + ".png",
                     *medal == 'g'   ? 10
                     : *medal == 's' ? 8
                                     : 6,
                     6);
        const std::string button = "znCButtonComponent { buttonImage = \"button.png\" ";
        const std::string text = "znCTextSpriteComponent { font = f.ttf fontSize = 20 ";
        imageSet("button.png", 40, 20);
        for (const char* scene : {"quay", "shop", "cabin"})
            imageSet(std::string("gui/maphud/mapthumbs/") + scene + ".png", 16, 16);
        mPlatform.mFiles.fileSet("gui/maphud/firstvisitscenepopup/firstvisitscenepopup.txt",
                                 "znCMapPopUpFVGui {\n name = FirstVisit\n" + text + "name = GUIMapSceneNameText }\n" +
                                     button + "name = GUIMapContinueButton }\n}\n");
        mPlatform.mFiles.fileSet("gui/maphud/scenepopup/scenepopup.txt",
                                 "znCMapPopUpGui {\n name = Results\n" + text + "name = ScenePopupTrashText }\n" +
                                     text + "name = ScenePopupLostFoundText }\n" + text +
                                     "name = ScenePopupPerfectText }\n" + button + "name = ScenePopupGoButton }\n}\n");
    }

    void mapOpen()
    {
        sceneOpen("map");
        frame(FADE_FRAMES);
        linesTake();
    }

    bool shown(const std::string& pName) { return find(pName)->activeGet(); }

    // Of a scene: "N" for the place, then its masks that show.
    std::string shownGet(const std::string& pScene)
    {
        std::string all = shown("NAV-" + pScene + ".png") ? "N" : "";
        for (const char* tail : {"r", "p", "g"})
            if (shown("MASK-" + pScene + "-" + tail + ".png"))
                all += tail;
        return all;
    }

    void click(const char* pName)
    {
        dynamic_cast<znCEntity*>(level().childFind(pName))->componentGet<znCButtonComponent>()->actionPerform();
    }

    std::string textOf(const char* pName)
    {
        return dynamic_cast<znCEntity*>(level().childFind(pName))->componentFind<znCTextSpriteComponent>()->textGet();
    }

    // Plays a scene of one bonus item of each kind, of which the first pCollected are found, and leaves it.
    void sceneVisit(const std::string& pScene, s32 pCollected)
    {
        sceneSet(pScene, "Background.png,0,0\nBNS-can.png,-100,0\nBSL-glove.png,100,0\n");
        sceneOpen(pScene);
        const char* items[] = {"BNS-can.png", "BSL-glove.png"};
        for (s32 i = 0; i < pCollected; ++i)
        {
            activate(items[i]);
            collectable(items[i]).collectionProcessTrigger();
        }
        frame(3000 / FRAME_MS);
        levelEnd(false);
        errorsTake(); // scenes here have no lists for what is found to fly to
    }
};

TEST_F(znCHogMapLevelTest, showsWhatThePlayerHasReached)
{
    struct Case
    {
        const char* mVisited;
        const char* mOffer;
        const char* mShown; // quay, shop, cabin
    };
    const Case cases[] = {
        {"", "quay", "Ng,,"},
        {"quay", "shop", "Nrp,Ng,"},
        {"quay", "quay", "Nrpg,,"},
        {"quay", "", "Nrp,,"},
        {"quay", "thereAreNoMoreNewLevels", "Nrp,,"},
        {"", "revealAll", "Nrp,Nrp,Nrp"},
    };
    mapSet();
    for (const Case& c : cases)
    {
        SCOPED_TRACE(std::string(c.mVisited) + " " + c.mOffer);
        user().progressClear();
        if (*c.mVisited != 0)
            user().strSet(std::string("LevDat:") + c.mVisited, ""); // visited, whatever is stored
        user().strSet(znCHogUserSavedData::MAP_LEVEL, c.mOffer);
        mapOpen();
        EXPECT_EQ(shownGet("quay") + "," + shownGet("shop") + "," + shownGet("cabin"), c.mShown);
        for (const char* scene : {"quay", "shop", "cabin"})
            EXPECT_EQ(
                find(std::string("NAV-") + scene + ".png")->componentGet<znCNavigateComponent>()->navigateActiveGet(),
                shown(std::string("NAV-") + scene + ".png"));
        levelEnd();
    }
}

TEST_F(znCHogMapLevelTest, givesMedalsForBonusItems)
{
    const char* medals[] = {"bronze", "silver", "gold"};
    const s32 widths[] = {6, 8, 10};
    mapSet();
    for (s32 found = 0; found <= 2; ++found)
    {
        user().progressClear();
        sceneVisit("quay", found);
        EXPECT_EQ(znCHogMapLevel::medalGet("quay"), medals[found]);
        user().strSet(znCHogUserSavedData::MAP_LEVEL, "shop");
        mapOpen();
        EXPECT_EQ(find("MASK-quay-p.png")->componentGet<znCSpriteComponent>()->widthGet(), widths[found]);
        tap(-200, 0);
        ASSERT_NE(level().childFind("Results"), nullptr);
        EXPECT_EQ(textOf("ScenePopupTrashText"), "litter " + std::string(found > 0 ? "1" : "0") + " of 1");
        EXPECT_EQ(textOf("ScenePopupLostFoundText"), "lost " + std::string(found > 1 ? "1" : "0") + " of 1");
        EXPECT_EQ(textOf("ScenePopupPerfectText"), found == 2 ? "perfect" : "");
        linesTake();
        levelEnd();
    }
    EXPECT_EQ(znCHogMapLevel::medalGet("neverOpened"), "gold");
}

TEST_F(znCHogMapLevelTest, leadsIntoScenes)
{
    struct Case
    {
        const char* mOffer;
        const char* mTable;
        const char* mPopUp;
        const char* mButton;
        const char* mLevel;
        const char* mOfferThen;
    };
    const Case cases[] = {
        {"shop", "", "FirstVisit", "GUIMapContinueButton", "shop", ""},
        {"shop", "shopOverride = \"cabin\",\r\n", "FirstVisit", "GUIMapContinueButton", "cabin", ""},
        {"cabin", "", "Results", "ScenePopupGoButton", "shop", "cabin"},
        {"cabin", "shop = \"quay\",\r\n", "Results", "ScenePopupGoButton", "quay", "cabin"},
    };
    for (const char* scene : {"quay", "shop", "cabin"})
        sceneSet(scene, "Background.png,0,0\n");
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mLevel);
        mapSet(c.mTable);
        user().progressClear();
        if (c.mOffer != std::string("shop"))
            user().strSet("LevDat:shop", "");
        user().strSet(znCHogUserSavedData::MAP_LEVEL, c.mOffer);
        mapOpen();
        tap(0, 0);
        ASSERT_NE(level().childFind(c.mPopUp), nullptr);
        click(c.mButton);
        click(c.mButton); // a double press
        errorsTake();
        frame(2 * FADE_FRAMES);
        EXPECT_EQ(level().levelNameGet(), c.mLevel);
        EXPECT_EQ(user().strGet(znCHogUserSavedData::MAP_LEVEL), c.mOfferThen);
        levelEnd();
        linesTake();
    }
}

TEST_F(znCHogMapLevelTest, pulsesTheSceneOnOffer)
{
    mapSet();
    user().strSet(znCHogUserSavedData::MAP_LEVEL, "quay");
    mapOpen();
    // The only thing on a still map whose colour changes.
    std::set<u32> alphas;
    for (s32 i = 0; i < 50; ++i)
    {
        frame();
        for (const znCTestDraw::Run& run : mPlatform.mDraw.mPresented)
            for (const u32 colour : run.mColours)
                alphas.insert(colour >> 24);
    }
    EXPECT_GT(alphas.size(), 20u);
    EXPECT_NEAR(*alphas.begin(), 127, 3);
    levelEnd();
}
} // namespace
