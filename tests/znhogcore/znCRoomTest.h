#ifndef TESTS_ZNHOGCORE_ZNCROOMTEST_H
#define TESTS_ZNHOGCORE_ZNCROOMTEST_H

// A room with close-ups and a panel. The scene "quay": the room, BackgroundCrate (index 1, 400 x 300 at (0, -50)) and
// BackgroundCabin (index 2, the whole screen); openRoom() puts objects and doors into them. The panel has all of
// znCGameGui's buttons in a row at the bottom, 60 apart from (-300, 270) on.

#include "tests/znhogcore/znCHogTest.h"
#include "znappcore/components/gui/znCNotificationsGui.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znIInputManager.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"

class znCRoomTest : public znCHogTest
{
protected:
    static constexpr s32 BUTTONS_Y = 270;
    static constexpr s32 EXIT_X = -300;
    static constexpr s32 HINT_X = -240;
    static constexpr s32 GHOST_X = -180;
    static constexpr s32 SKIP_X = -120;
    static constexpr s32 CONTINUE_X = -60;

    void SetUp() override
    {
        for (const char* particles : {"subscene", "phint", "ppicklistcollecttrail", "pscorecollecttrail"})
            mPlatform.mFiles.fileSet(std::string("particles/") + particles + ".txt",
                                     "maxParticles = 1 ;\nimageFileName = particles/p.png ;\n");
        imageSet("particles/p.png", 8, 8);
        imageSet("button.png", 40, 40);
        imageSet("scenes/quay/backgroundcrate.png", 400, 300);
        imageSet("scenes/quay/backgroundcabin.png", CANVAS_WIDTH, CANVAS_HEIGHT);
        panelSet(buttonGet("GameGuiSubSceneExitButton", EXIT_X) + buttonGet("gameGuiHintButton", HINT_X) +
                 barGet("gameGuiHintFillBar", HINT_X) + buttonGet("gameGuiGhostModeButton", GHOST_X) +
                 barGet("gameGuiGhostModeFillBar", GHOST_X) + buttonGet("gameGuiSkipButton", SKIP_X));
        znCHogTest::SetUp();
    }

    static std::string placeGet(s32 pX)
    {
        return " posX = " + std::to_string(pX) + " posY = " + std::to_string(BUTTONS_Y);
    }
    static std::string buttonGet(const std::string& pName, s32 pX)
    {
        return "znCButtonComponent { name = " + pName + " buttonImage = button.png" + placeGet(pX) + " }\n";
    }
    static std::string barGet(const std::string& pName, s32 pX, const std::string& pMore = "")
    {
        return "znCButtonDelayComponent { name = " + pName +
               " disabledImage = button.png fillImage = button.png startsFull = true" + placeGet(pX) + " " + pMore +
               " }\n";
    }
    static std::string textGet(const std::string& pName)
    {
        return "znCTextSpriteComponent { name = " + pName + " font = f.ttf fontSize = 20 }\n";
    }
    void panelSet(const std::string& pElements)
    {
        mPlatform.mFiles.fileSet("gui/hoggui/hoggui.txt",
                                 "znCGameGui {\n name = GameGui\n modal = false\n" + pElements + "}\n");
    }

    void openRoom(const std::string& pRoom, const std::string& pCrate = "", const std::string& pCabin = "")
    {
        sceneSet("quay",
                 "BackgroundQuay.png,0,0\n" + pRoom + "BackgroundCrate.png,0,-50\n" + pCrate +
                     "BackgroundCabin.png,0,0\n" + pCabin,
                 "quayTitle = \"unused\",\r\n");
        sceneOpen("quay");
        errorsTake(); // of the font that the texts lack
        mEar.take();
    }

    bool shown(const std::string& pName) { return find(pName)->activeGet(); }
    // Which of the sub-scenes are open, as "0 1".
    std::string openGet()
    {
        std::string open;
        for (const char* index : {"0", "1", "2", "3"})
        {
            znCEntity* subScene = find(std::string("SubScene") + index);
            if (subScene != nullptr && subScene->activeInTreeGet())
                open += std::string(open.empty() ? "" : " ") + index;
        }
        return open;
    }
    void subSceneOpen(s32 pIndex)
    {
        znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::OPEN_SUB_SCENE, &pIndex);
        frame();
    }
    // What it shows runs to its end.
    void collect(const std::string& pName)
    {
        collectable(pName).collectionProcessTrigger();
        effectsEnd();
        EXPECT_EQ(stateGet(pName), znICollectableComponent::STATE_COLLECTED) << pName;
    }
    void effectsEnd()
    {
        frame(2500 / FRAME_MS);
        errorsTake(); // of the list that there is none of
    }
    void addedEntrySend() { send(znCHogMessageDispatcher::ADDED_ENTRY); }
    std::string panelTextGet(const std::string& pName)
    {
        return find(pName)->componentGet<znCTextSpriteComponent>()->textGet();
    }
    static std::string notificationGet()
    {
        const auto* strip = znCNotificationsGui::instanceGet()->entityGet();
        const auto* entity =
            dynamic_cast<const znCEntity*>(const_cast<znCEntity*>(strip)->childFind(znCNotificationsGui::TEXT_ENTITY));
        return entity->componentGet<znCTextSpriteComponent>()->textGet();
    }
    static znCHogUserSavedData& user() { return *znCHogUserSavedData::instanceGet(); }
};

#endif
