#ifndef TESTS_ZNAPPCORE_ZNCGUITEST_H
#define TESTS_ZNAPPCORE_ZNCGUITEST_H

// Brings up what a GUI needs: display, input, sound and messages on top of what shows pictures. A canvas of 800 x 600
// in a window of that size. A test fails on any logged fault that it did not take.

#include "tests/support/znNTestLog.h"
#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "znappcore/znIInputManager.h"

#include <string>
#include <vector>

class znCGuiTest : public znCPresentationTest
{
protected:
    using Lines = std::vector<std::string>;

    znCGuiTest()
    {
        mCore.mPlatform.mFiles.fileSet("appsettings.txt", "appCanvasW = \"800\",\r\nappCanvasH = \"600\",\r\n");
        mCore.mPlatform.mWindow.modesSet({{800, 600, 32, 60, 0}});
        znIHardware::create();
        znCAppSettings::create();
        znIAudioManager::create();
        znCUserSavedData::create();
        znCUserSavedData::instanceGet()->boolSet(znCUserSavedData::FULL_SCREEN, false);
        znCGuiMessageDispatcher::create();
        znIDisplay::create();
        znIInputManager::create();
        imageSet("button.png", 40, 20, "#");
        imageSet("over.png", 40, 20, "#");
        errorsTake();
    }

    ~znCGuiTest() override
    {
        znIDisplay::destroy();
        znINode::flaggedNodesDestroy();
        znCUserSavedData::destroy();
        znIAudioManager::destroy();
        znIInputManager::destroy();
        znIHardware::destroy();
        znCAppSettings::destroy();
        EXPECT_EQ(errorsTake(), Lines()) << "faults that the test doesn't expect";
        znCGuiMessageDispatcher::destroy();
    }

    Lines errorsTake() { return znNTestLog::errorsTake(mCore.mPlatform); }

    void fileSet(const std::string& pName, const std::string& pText) { mCore.mPlatform.mFiles.fileSet(pName, pText); }

    // Builds a GUI of that text, the file "gui/test.txt", below the display or below nothing.
    znCEntity* guiCreate(const std::string& pText, bool pModal = false, bool pParent = true)
    {
        fileSet("gui/test.txt", pText);
        return znIGuiComponent::guiCreateFromFile(znCResourceName("gui/test.txt", znCResourceName::GAME_DATA),
                                                  pParent ? znIDisplay::instanceGet() : nullptr, pModal);
    }

    // One frame of the tree.
    static void frame(s32 pDeltaMs = 16)
    {
        znIDisplay::instanceGet()->treeUpdate(pDeltaMs);
        znINode::flaggedNodesDestroy();
        znINode::newNodesParent();
    }

    static void pictureDraw()
    {
        znIRenderer::instanceGet()->frameClear();
        znIRenderer::instanceGet()->frameBegin();
        znIDisplay::instanceGet()->treeRender();
        znIRenderer::instanceGet()->frameEnd();
    }

    // A pointer message at a point of the canvas; true if somebody claimed it.
    static bool pointerSend(const znCUniqueId& pType, s32 pX, s32 pY)
    {
        znCPointerMessage message(znPoint(pX + 400, pY + 300), 0, pType != znIInputManager::POINTER_UP);
        return znIInputManager::instanceGet()->messageSend(pType, &message);
    }
    static bool tap(s32 pX, s32 pY)
    {
        const bool claimed = pointerSend(znIInputManager::POINTER_DOWN, pX, pY);
        pointerSend(znIInputManager::POINTER_UP, pX, pY);
        return claimed;
    }

    template <class T>
    static T* find(const std::string& pName)
    {
        auto* entity = dynamic_cast<znCEntity*>(znIDisplay::instanceGet()->childFind(pName));
        return entity != nullptr ? entity->componentGet<T>() : nullptr;
    }
};

#endif
