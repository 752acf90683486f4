#ifndef TESTS_ZNHOGCORE_ZNCHOGTEST_H
#define TESTS_ZNHOGCORE_ZNCHOGTEST_H

// Brings up the whole program below the game on the test platform and plays scenes that lie in memory. The canvas is
// 800 x 600 in a window of that size, so the scene point (x, y) is the pixel (x + 400, y + 300).
//
// A test fails on any logged fault that it did not take.

#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "tests/support/znNTestImages.h"
#include "znhogcore/components/znICollectableComponent.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/znIHogLevel.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

class znCHogTestMain : public znCHogCoreMain
{
public:
    static void create()
    {
        auto* instance = new znCHogTestMain; // deleted by znCAppCoreMain::destroy()
        instanceSet(instance);
        instance->startUp();
    }
};

// Hears the game's messages and keeps them as texts.
class znCHogTestEar : public znIMessageListener
{
public:
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    std::string take() { return std::exchange(mHeard, ""); }

private:
    std::string mHeard;
};

class znCHogTest : public testing::Test
{
protected:
    static constexpr s32 CANVAS_WIDTH = 800;
    static constexpr s32 CANVAS_HEIGHT = 600;
    static constexpr s32 FRAME_MS = 16;

    void SetUp() override;
    void TearDown() override;

    void programStart();
    void programStop();

    // An image of pWidth x pHeight whose alpha follows pAlpha row by row, over and over: '.' 0, anything else 255.
    void imageSet(const std::string& pName, s32 pWidth, s32 pHeight, const std::string& pAlpha = "#");
    // Scene folder of that name: the list, and an image for every name in it that has none yet: 800 x 600 for a
    // background, 40 x 40 otherwise.
    void sceneSet(const std::string& pName, const std::string& pCoords, const std::string& pTable = "");
    // Runs frames until the level stands.
    void sceneOpen(const std::string& pName);
    // The end of a fade to black, and the frame behind it.
    void levelLeave();
    // The same with no screen to follow. pForget: what the level stored is cleared.
    void levelEnd(bool pForget = true);
    void frame(s32 pCount = 1);
    // The pointer message sequence of a press at the scene point, a frame between press and release.
    void tap(s32 pX, s32 pY);
    void press(s32 pX, s32 pY);
    void move(s32 pX, s32 pY);
    void release(s32 pX, s32 pY);

    znIHogLevel& level();
    znCEntity* find(const std::string& pName); // below the level; null if there is none
    znICollectableComponent& collectable(const std::string& pName);
    s32 stateGet(const std::string& pName); // of the collectable, by its saved text
    void activate(const std::string& pName) { collectable(pName).activate(); }
    void send(const znCUniqueId& pType); // on the game's dispatcher, without data

    // The messages of the assertions that failed since the last call.
    std::vector<std::string> errorsTake();
    // The messages of all lines since the last call that are no assertion's.
    std::vector<std::string> linesTake();

    znCTestPlatform mPlatform;
    znCHogTestEar mEar;

private:
    void logRead();

    std::vector<std::string> mErrors;
    std::vector<std::string> mLines;
};

#endif
