#ifndef TESTS_ZNHOGCORE_ZNCHOGTESTPROGRAM_H
#define TESTS_ZNHOGCORE_ZNCHOGTESTPROGRAM_H

// The whole program below the game on the test platform, with no first screen: what tests, fuzz targets and benchmarks
// of this layer play scenes in. Scenes are folders that lie in the platform's files. The canvas is 800 x 600 in a
// window of that size, so the scene point (x, y) is the pixel (x + 400, y + 300).
//
// Files and settings are put in before start().

#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogUserSavedData.h"
#include "znhogcore/znIHogLevel.h"

#include <string>

class znCHogTestMain : public znCHogCoreMain
{
public:
    static void create()
    {
        auto* instance = new znCHogTestMain; // deleted by znCAppCoreMain::destroy()
        instanceSet(instance);
        instance->startUp();
    }

protected:
    void firstGuiLoad() override {}
};

class znCHogTestProgram
{
public:
    static constexpr s32 CANVAS_WIDTH = 800;
    static constexpr s32 CANVAS_HEIGHT = 600;
    static constexpr s32 FRAME_MS = 16;
    static constexpr const char* SETTINGS = "appCanvasW = \"800\",\r\nappCanvasH = \"600\",\r\n";

    znCHogTestProgram()
    {
        mPlatform.mFiles.fileSet("appsettings.txt", SETTINGS);
        mPlatform.mFiles.fileSet("strings.txt", "PCK-lantern = \"the old lantern\",\r\n"
                                                "HINT-oil-wick-lamp = \"It needs oil and a wick.\",\r\n"
                                                "HINT-wick-lit+lamp = \"A wick is missing.\",\r\n");
        mPlatform.mFiles.fileSet("gui/notificationsgui/notificationsgui.txt",
                                 "znCNotificationsGui {\n name = NotificationsGui\n modal = false\n"
                                 " znCSpriteComponent { name = NotificationsGuiBackground }\n"
                                 " znCTextSpriteComponent { name = NotificationsGuiText font = f.ttf fontSize = 20 }\n"
                                 "}\n");
        // What follows a level behind which no screen was asked for: nothing that stands in the next one's way.
        mPlatform.mFiles.fileSet("gui/mainmenu/mainmenu.txt", "znCSpriteComponent {\n name = Title\n}\n");
        mPlatform.configSet("s3e", "FullScreen", "0");
        znNGraphics::initialise();
    }
    ~znCHogTestProgram()
    {
        if (znCAppCoreMain::instanceGet() != nullptr)
            stop();
        znNGraphics::terminate();
    }

    void start() { znCHogTestMain::create(); }
    void stop() { znCAppCoreMain::destroy(); }

    static void frame()
    {
        s3ePointerUpdate();
        znCAppCoreMain::instanceGet()->frameUpdate(FRAME_MS);
    }

    // The end of a fade to black. The level is deleted in the first frame behind it; what follows opens by the second.
    static void screenLeave()
    {
        znCGuiMessageDispatcher::instanceGet()->messageSend(znCScreenFade::FADE_OUT_COMPLETE,
                                                            znCEmptyMessageData::sharedGet());
        frame();
        frame();
    }

    // What the level of that name has stored is cleared.
    static void savedStateForget(const std::string& pLevelName)
    {
        znCHogUserSavedData::instanceGet()->levelStateSet(pLevelName, "");
    }

    znCTestPlatform mPlatform;
};

#endif
