#ifndef TESTS_ZNHOGCORE_ZNCHOGTEST_H
#define TESTS_ZNHOGCORE_ZNCHOGTEST_H

// Plays scenes that lie in memory; see znCHogTestProgram.
//
// A test fails on any logged fault that it did not take.

#include "tests/support/znNTestImages.h"
#include "tests/znhogcore/znCHogTestProgram.h"
#include "znhogcore/components/znICollectableComponent.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

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
    static constexpr s32 CANVAS_WIDTH = znCHogTestProgram::CANVAS_WIDTH;
    static constexpr s32 CANVAS_HEIGHT = znCHogTestProgram::CANVAS_HEIGHT;
    static constexpr s32 FRAME_MS = znCHogTestProgram::FRAME_MS;

    void SetUp() override;
    void TearDown() override;

    void programStart();
    void programStop();

    // An image of pWidth x pHeight whose alpha follows pAlpha row by row, over and over: '.' 0, anything else 255.
    void imageSet(const std::string& pName, s32 pWidth, s32 pHeight, const std::string& pAlpha = "#");
    // An animation pName + ".xml" that stands still.
    void animationSet(const std::string& pName);
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
    // The display texts of things that were found and stood on no list, since the last call. Scenes without lists have
    // them, so they are no faults here.
    std::vector<std::string> unlistedTake();
    // The messages of all lines since the last call that are no assertion's.
    std::vector<std::string> linesTake();

    znCHogTestProgram mProgram;
    znCTestPlatform& mPlatform = mProgram.mPlatform;
    znCHogTestEar mEar;

private:
    void logRead();
    void lineKeep(bool pError, const std::string& pText);

    std::vector<std::string> mErrors;
    std::vector<std::string> mUnlisted;
    std::vector<std::string> mLines;
};

#endif
