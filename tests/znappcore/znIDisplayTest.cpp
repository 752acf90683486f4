#include "znappcore/znIDisplay.h"

#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIHardware.h"
#include "znappcore/znIInputManager.h"
#include "znappcore/znIMessageListener.h"

#include <gtest/gtest.h>

namespace
{
// Writes down the types it is registered for.
class Ear : public znIMessageListener
{
public:
    Ear(znIMessageDispatcher* pDispatcher, const std::vector<znCUniqueId>& pTypes)
        : mDispatcher(pDispatcher), mTypes(pTypes)
    {
        messagesRegister();
    }
    ~Ear() override { messagesDeregister(); }

    void messagesRegister() override
    {
        for (const znCUniqueId& type : mTypes)
            mDispatcher->listenerRegister(type, this);
    }
    void messagesDeregister() override
    {
        for (const znCUniqueId& type : mTypes)
            mDispatcher->listenerDeregister(type, this);
    }
    bool messageProcess(const znCUniqueId& pType, void* pData) override
    {
        EXPECT_NE(pData, nullptr);
        mHeard.push_back(pType);
        return false;
    }

    std::vector<znCUniqueId> mHeard;

private:
    znIMessageDispatcher* mDispatcher;
    std::vector<znCUniqueId> mTypes;
};

class znIDisplayTest : public testing::Test
{
protected:
    void SetUp() override
    {
        znINode::staticVectorsCreate();
        znCUserSavedData::create();
        znCGuiMessageDispatcher::create();
    }

    void TearDown() override
    {
        if (mUp)
            down();
        znCGuiMessageDispatcher::destroy();
        znCUserSavedData::destroy();
        znINode::staticVectorsDestroy();
    }

    znIDisplay& up(s32 pCanvasWidth, s32 pCanvasHeight)
    {
        mUp = true;
        mPlatform.mFiles.fileSet("appsettings.txt", "appCanvasW = \"" + std::to_string(pCanvasWidth) +
                                                        "\",\r\nappCanvasH = \"" + std::to_string(pCanvasHeight) +
                                                        "\",\r\n");
        znNGraphics::initialise();
        znIHardware::create();
        znCAppSettings::create();
        znIInputManager::create();
        znIDisplay::create();
        return *znIDisplay::instanceGet();
    }

    void down()
    {
        mUp = false;
        znIDisplay::destroy();
        znIInputManager::destroy();
        znCAppSettings::destroy();
        znIHardware::destroy();
        znNGraphics::terminate();
    }

    znCTestCore mCore;
    znCTestPlatform& mPlatform = mCore.mPlatform;
    bool mUp = false;
};

struct ModeCase
{
    const char* mWhat;
    s32 mCanvasWidth, mCanvasHeight;
    std::vector<s3eWindowMode> mModes;
    bool mFullScreen;
    s32 mVisibleWidth, mVisibleHeight;
    s32 mModeWidth, mModeHeight; // the surface in the end
    s32 mModeIndex;              // the loader's number of the mode; -1 for a window
    const char* mLogged;
};

s3eWindowMode mode(s32 pWidth, s32 pHeight, s32 pBpp, s32 pIndex)
{
    return {pWidth, pHeight, pBpp, 60, pIndex};
}
} // namespace

TEST_F(znIDisplayTest, choosesAModeAndMapsTheCanvasToIt)
{
    const std::vector<s3eWindowMode> narrow = {mode(1280, 1024, 32, 0), mode(800, 600, 32, 1), mode(1024, 768, 32, 2)};
    const std::vector<s3eWindowMode> wide = {mode(1920, 1080, 0, 0), mode(1280, 720, 0, 1), mode(1366, 768, 0, 2),
                                             mode(1600, 1200, 0, 3)};
    const ModeCase cases[] = {
        {"a wide canvas is cut to 4:3 where no wide screen is to be had", 1366, 768, narrow, true, 1024, 768, 1024, 768,
         2, "Setting best desktop res to:1024x768."},
        {"the smallest mode that shows it all wins", 1024, 768, narrow, true, 1024, 768, 1024, 768, 2,
         "Setting full screen resolution to 1024x768."},
        {"a wide canvas takes the smallest wide mode", 1366, 768, wide, true, 1366, 768, 1366, 768, 2, ""},
        {"a narrow canvas takes a narrow one from among wide ones", 1024, 768, wide, true, 1024, 768, 1600, 1200, 3,
         ""},
        {"a wide mode that is too small is no wide screen",
         1366,
         768,
         {mode(1280, 720, 32, 0), mode(1024, 768, 32, 1)},
         true,
         1024,
         768,
         1024,
         768,
         1,
         ""},
        {"the only mode decides alone",
         1366,
         768,
         {mode(1280, 720, 32, 4)},
         true,
         1366,
         768,
         1280,
         720,
         4,
         "Failed to find a screen mode big enough for the visible canvas."},
        {"shallow modes don't count",
         1024,
         768,
         {mode(1024, 768, 16, 0), mode(1024, 768, 32, 1), mode(1024, 768, 23, 2)},
         true,
         1024,
         768,
         1024,
         768,
         1,
         "SUPPORTED SCREEN MODE:1024,768 32bpp"},
        {"24 bits come before 32",
         1024,
         768,
         {mode(1024, 768, 32, 0), mode(1024, 768, 24, 1)},
         true,
         1024,
         768,
         1024,
         768,
         1,
         ""},
        {"an unknown depth counts as 24",
         1024,
         768,
         {mode(1024, 768, 32, 0), mode(1024, 768, 0, 1)},
         true,
         1024,
         768,
         1024,
         768,
         1,
         ""},
        {"a depth that has no pass stays in the window",
         1024,
         768,
         {mode(1024, 768, 30, 0), mode(800, 600, 30, 1)},
         true,
         1024,
         768,
         1024,
         768,
         -1,
         "No full screen mode of 1024x768."},
        {"the largest is used when none is large enough",
         1366,
         768,
         {mode(640, 480, 32, 0), mode(800, 600, 32, 1)},
         true,
         1024,
         768,
         800,
         600,
         1,
         "Failed to find a screen mode big enough for the visible canvas."},
        {"a window is as large as the visible canvas", 1366, 768, narrow, false, 1024, 768, 1024, 768, -1, ""},
        {"a desktop without modes has its window",
         1024,
         768,
         {},
         true,
         1024,
         768,
         1024,
         768,
         -1,
         "Failed to find a screen mode big enough for the visible canvas."},
    };
    for (const ModeCase& c : cases)
    {
        SCOPED_TRACE(c.mWhat);
        mPlatform.mWindow.modesSet(c.mModes);
        znCUserSavedData::instanceGet()->boolSet(znCUserSavedData::FULL_SCREEN, c.mFullScreen);
        mPlatform.logTake();
        znIDisplay& display = up(c.mCanvasWidth, c.mCanvasHeight);
        EXPECT_EQ(display.canvasWidthGet(), c.mCanvasWidth);
        EXPECT_EQ(display.visibleCanvasWidthGet(), c.mVisibleWidth);
        EXPECT_EQ(display.visibleCanvasHeightGet(), c.mVisibleHeight);
        EXPECT_EQ(mPlatform.mWindow.mWidth, c.mModeWidth);
        EXPECT_EQ(mPlatform.mWindow.mHeight, c.mModeHeight);
        EXPECT_EQ(display.isFullScreenGet(), c.mModeIndex >= 0);
        if (c.mModeIndex >= 0)
        {
            EXPECT_EQ(mPlatform.mWindow.mFullScreenModeIndex, c.mModeIndex);
        }
        EXPECT_EQ(display.posGet(), znPoint(c.mModeWidth / 2, c.mModeHeight / 2));
        display.treeUpdate(0);
        EXPECT_FLOAT_EQ(display.worldMatrixGet().m00,
                        static_cast<float>(c.mModeWidth) / static_cast<float>(c.mVisibleWidth));
        EXPECT_FLOAT_EQ(display.worldMatrixGet().m11,
                        static_cast<float>(c.mModeHeight) / static_cast<float>(c.mVisibleHeight));
        EXPECT_NE(mPlatform.logTake().find(c.mLogged), std::string::npos);
        down();
    }
}

TEST_F(znIDisplayTest, layesAFixedDisplayAcross)
{
    mPlatform.mWindow.fixedDisplaySet(480, 800);
    znIDisplay& display = up(1024, 768);
    EXPECT_FALSE(display.isDesktopGet());
    EXPECT_FALSE(display.isFullScreenGet());
    display.treeUpdate(0);
    EXPECT_FLOAT_EQ(display.worldMatrixGet().m00, 0.78125f);
    EXPECT_FLOAT_EQ(display.worldMatrixGet().m11, 0.625f);
    EXPECT_EQ(display.worldPosGet(), znPoint(400, 240));
    EXPECT_NE(mPlatform.logTake().find("Setting fixed display size:800,480"), std::string::npos);

    // The toggle belongs to desktops.
    display.fullScreenToggle();
    EXPECT_TRUE(znCUserSavedData::instanceGet()->boolGet(znCUserSavedData::FULL_SCREEN));
}

TEST_F(znIDisplayTest, togglesFullScreenAndTellsTheGui)
{
    znIDisplay& display = up(1024, 768);
    Ear ear(znCGuiMessageDispatcher::instanceGet(), {znIDisplay::FULL_SCREEN_TOGGLE});
    for (const bool fullScreen : {false, true})
    {
        display.fullScreenToggle();
        EXPECT_EQ(display.isFullScreenGet(), fullScreen);
        EXPECT_EQ(znCUserSavedData::instanceGet()->boolGet(znCUserSavedData::FULL_SCREEN), fullScreen);
    }
    EXPECT_EQ(ear.mHeard.size(), 2u);
}

TEST_F(znIDisplayTest, togglesFullScreenByAltWithEnterOnly)
{
    struct Case
    {
        s32 mHeld;
        s32 mKey;
        bool mToggles;
    };
    znIDisplay& display = up(1024, 768);
    for (const Case& c : {Case{S3E_KEY_ALT, S3E_KEY_ENTER, true}, Case{S3E_KEY_F4, S3E_KEY_ENTER, false},
                          Case{S3E_KEY_ENTER, S3E_KEY_ALT, false}})
    {
        const bool before = display.isFullScreenGet();
        for (const bool down : {true, false}) // the release toggles nothing
        {
            mPlatform.mInput.keyQueue(down ? c.mHeld : c.mKey, down);
            mPlatform.mInput.keyQueue(down ? c.mKey : c.mHeld, down);
            s3eKeyboardUpdate();
        }
        EXPECT_EQ(display.isFullScreenGet() != before, c.mToggles) << c.mHeld << " " << c.mKey;
    }
    // With the display gone there is nothing to toggle.
    znIDisplay::destroy();
    mPlatform.mInput.keyQueue(S3E_KEY_ALT, true);
    mPlatform.mInput.keyQueue(S3E_KEY_ENTER, true);
    s3eKeyboardUpdate();
    znIDisplay::create();
}

TEST_F(znIDisplayTest, takesTheWishOfWhoStartedTheProgram)
{
    mPlatform.configSet("s3e", "FullScreen", "0");
    EXPECT_FALSE(up(1024, 768).isFullScreenGet());
    EXPECT_FALSE(znCUserSavedData::instanceGet()->boolGet(znCUserSavedData::FULL_SCREEN));
    down();
    mPlatform.configSet("s3e", "FullScreen", "1");
    EXPECT_TRUE(up(1024, 768).isFullScreenGet());
}

TEST_F(znIDisplayTest, standsWithoutACanvasSize)
{
    for (const s32 size : {0, -5, 2147483647})
    {
        mPlatform.logTake();
        znIDisplay& display = up(size, size);
        display.treeUpdate(0);
        EXPECT_EQ(mPlatform.logTake().find("The canvas has no size") != std::string::npos, size <= 0);
        down();
    }
}

TEST_F(znIDisplayTest, tellsOnceWhenTheMouseComesAndGoes)
{
    znIDisplay& display = up(1024, 768);
    Ear ear(znIInputManager::instanceGet(), {znIInputManager::ENTER_CLIENT, znIInputManager::LEAVE_CLIENT});
    for (const bool inside : {true, false, false, true, true})
    {
        mPlatform.mWindow.mInClientArea = inside;
        display.treeUpdate(16);
    }
    EXPECT_EQ(ear.mHeard, (std::vector<znCUniqueId>{znIInputManager::LEAVE_CLIENT, znIInputManager::ENTER_CLIENT}));
}

TEST_F(znIDisplayTest, hidesTheCursorByTheMouseOrElseByTheWindow)
{
    for (const bool mouse : {true, false})
    {
        mPlatform.mWindow.mMousePresent = mouse;
        mPlatform.mWindow.mMouseCursorVisible = true;
        mPlatform.mWindow.mCursorVisible = true;
        znIHardware::create();
        znIHardware::instanceGet()->systemCursorVisibleSet(false);
        EXPECT_EQ(mPlatform.mWindow.mMouseCursorVisible, !mouse);
        EXPECT_EQ(mPlatform.mWindow.mCursorVisible, mouse);
        znIHardware::instanceGet()->urlOpen("https://example.org/");
        EXPECT_EQ(mPlatform.mUrlsOpened.back(), "https://example.org/");
        znIHardware::destroy();
    }
}

TEST_F(znIDisplayTest, staysWholeUntilItsTreeIsGone)
{
    // Asks for the display while it dies.
    struct Asker : znINode
    {
        Asker() : znINode("asker") {}
        ~Asker() override
        {
            *mWidth = znIDisplay::instanceGet()->isDesktopGet() ? znIDisplay::instanceGet()->canvasWidthGet() : 0;
        }
        s32* mWidth = nullptr;
    };
    s32 width = 0;
    auto* asker = new Asker();
    asker->mWidth = &width;
    up(1024, 768).childAdd(asker);
    down();
    EXPECT_EQ(width, 1024);
    EXPECT_EQ(znIDisplay::instanceGet(), nullptr);
    EXPECT_NE(mPlatform.logTake().find("Not created."), std::string::npos);
}
