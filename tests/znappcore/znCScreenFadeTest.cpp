#include "znappcore/src/znCScreenFade.h"

#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCSoftwareCursor.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "znappcore/znIInputManager.h"
#include "zncore/src/znCVariableTable.h"

#include <functional>

namespace
{
// The display with a canvas of 200 x 100 in a window, and all that fade and cursor talk to.
class znCScreenFadeTest : public znCPresentationTest, public znIMessageListener
{
protected:
    void SetUp() override
    {
        mCore.mPlatform.mFiles.fileSet("appsettings.txt", "appCanvasW = \"200\",\r\nappCanvasH = \"100\",\r\n");
        imageSet("cursors/software/default.png", 4, 4, "#");
        mCore.mPlatform.mFiles.fileSet("cursors/software/default.xml",
                                       "<sequence name=\"default\"><framelist><f w=\"4\" h=\"4\"/></framelist>"
                                       "<timeline name=\"main\"><key frame=\"1\"/></timeline></sequence>");
        znIHardware::create();
        znCAppSettings::create();
        znIAudioManager::create();
        znCUserSavedData::create();
        znCUserSavedData::instanceGet()->boolSet(znCUserSavedData::FULL_SCREEN, false);
        znCGuiMessageDispatcher::create();
        znIInputManager::create();
        znIDisplay::create();
        messagesRegister();
        logTake();
        mCore.mPlatform.mAudioCalls.clear();
    }

    void TearDown() override
    {
        messagesDeregister();
        znIDisplay::destroy();
        znIInputManager::destroy();
        znCGuiMessageDispatcher::destroy();
        znCUserSavedData::destroy();
        znIAudioManager::destroy();
        znCAppSettings::destroy();
        znIHardware::destroy();
        znCSoftwareCursor::enabledSet(false);
    }

    void messagesRegister() override
    {
        znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCScreenFade::FADE_OUT_COMPLETE, this);
        znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCScreenFade::FADE_IN_COMPLETE, this);
    }
    void messagesDeregister() override
    {
        znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCScreenFade::FADE_OUT_COMPLETE, this);
        znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCScreenFade::FADE_IN_COMPLETE, this);
    }
    bool messageProcess(const znCUniqueId& pType, void*) override
    {
        mHeard += pType == znCScreenFade::FADE_OUT_COMPLETE ? 'O' : 'I';
        return false;
    }

    // A frame; answers the alpha of the fade, 0 to 255, with a letter for each message.
    std::string frame(s32 pDeltaMs)
    {
        mHeard.clear();
        update(pDeltaMs);
        const auto& runs = draw();
        const u32 alpha = runs.empty() ? 0 : runs[0].mColours[0] >> 24;
        return std::to_string(alpha) + mHeard + " ";
    }

    std::string frames(s32 pCount, s32 pDeltaMs)
    {
        std::string alphas;
        for (s32 i = 0; i < pCount; ++i)
            alphas += frame(pDeltaMs);
        return alphas;
    }

    static void update(s32 pDeltaMs)
    {
        znIInputManager::instanceGet()->update();
        znIDisplay::instanceGet()->treeUpdate(pDeltaMs);
    }

    const std::vector<znCTestDraw::Run>& draw()
    {
        znIRenderer::instanceGet()->frameClear();
        znIRenderer::instanceGet()->frameBegin();
        znIDisplay::instanceGet()->treeRender();
        znIRenderer::instanceGet()->frameEnd();
        return mCore.mPlatform.mDraw.mPresented;
    }

    std::string mHeard;
};
} // namespace

TEST_F(znCScreenFadeTest, fadesAndHoldsTheLimitForThreeFrames)
{
    znCScreenFade::create();
    znCScreenFade& fade = *znCScreenFade::instanceGet();
    EXPECT_EQ(frames(2, 100), "255 255 "); // it starts covered, at rest
    fade.fadeIn(400);
    EXPECT_EQ(frame(0), "255 ");
    EXPECT_EQ(frames(7, 100), "191 127 63 0 0 0I 0 ");
    fade.fadeOut(400);
    EXPECT_EQ(frames(7, 100), "63 127 191 255 255 255O 255 ");
    fade.fadeIn(400);
    EXPECT_EQ(frames(2, 100), "191 127 ");
    fade.fadeOut(200); // turned round
    EXPECT_EQ(frames(5, 100), "255 255 255O 255 255 ");
    fade.fadeOut(0); // covered already, and no time at all
    EXPECT_EQ(frames(3, 1), "255 255 255O ");
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCScreenFadeTest, takesTheSoundAlongUnlessItIsMuted)
{
    znCScreenFade::create();
    znCScreenFade::instanceGet()->fadeIn(400);
    frame(300);
    EXPECT_FALSE(mCore.mPlatform.mAudioCalls.empty());
    EXPECT_EQ(mCore.mPlatform.mAudioCalls.back(), "set 0 192");
    mCore.mPlatform.mAudioCalls.clear();
    znCUserSavedData::instanceGet()->boolSet(znCUserSavedData::MUTE_ALL, true);
    frames(5, 100);
    EXPECT_TRUE(mCore.mPlatform.mAudioCalls.empty());
}

TEST_F(znCScreenFadeTest, coversTheWholeCanvas)
{
    znCScreenFade::create();
    update(0);
    EXPECT_EQ(draw()[0].mPositions, (std::vector<float>{0, 0, 0, 100, 200, 100, 200, 0}));
    EXPECT_EQ(draw()[0].mTexture, 0u);
    EXPECT_EQ(draw()[0].mBlend, 4u);
    EXPECT_EQ(draw()[0].mColours[0], 0xFF000000u);
    znCScreenFade::create();
    EXPECT_NE(logTake().find("Already created znCScreenFade."), std::string::npos);
}

TEST_F(znCScreenFadeTest, isAPlainRectangleOnAnyEntity)
{
    auto* entity = new znCEntity("cover");
    auto* cover = entity->componentAdd<znCScreenFadeComponent>();
    znIDisplay::instanceGet()->childAdd(entity);
    znCVariableTable table;
    table.strSet("name", "cover it");
    cover->initialiseFromVariableTable(table);
    EXPECT_NE(logTake().find("Expected a colourRGBA value for ScreenFadeComponent cover it."), std::string::npos);
    update(0);
    EXPECT_EQ(draw()[0].mColours[0], 0xFFFFFFFFu);
    table.strSet("colourRGBA", "00ff0080");
    cover->initialiseFromVariableTable(table);
    EXPECT_EQ(draw()[0].mColours[0], 0x8000FF00u);
    table.strSet("colourRGBA", "00ff0000");
    cover->initialiseFromVariableTable(table);
    EXPECT_TRUE(draw().empty()); // nothing to see, nothing to draw
}

TEST_F(znCScreenFadeTest, showsItsCursorInPlaceOfTheSystems)
{
    znCTestWindow& window = mCore.mPlatform.mWindow;
    znCSoftwareCursor::create();
    EXPECT_TRUE(window.mMouseCursorVisible);
    update(16);
    EXPECT_TRUE(draw().empty());

    znCSoftwareCursor::enabledSet(true);
    EXPECT_FALSE(window.mMouseCursorVisible);
    mCore.mPlatform.mInput.motionQueue(150, 20);
    s3ePointerUpdate();
    update(16);
    EXPECT_EQ(draw()[0].mPositions, (std::vector<float>{150, 20, 150, 24, 154, 24, 154, 20}));

    window.mInClientArea = false;
    update(16);
    EXPECT_TRUE(draw().empty());
    window.mInClientArea = true;
    update(16);
    EXPECT_EQ(draw().size(), 1u);

    znCSoftwareCursor::enabledSet(false);
    EXPECT_TRUE(window.mMouseCursorVisible);
    update(16);
    EXPECT_TRUE(draw().empty());
    EXPECT_EQ(logTake(), "");
}

TEST_F(znCScreenFadeTest, leavesTheSystemsCursorWithoutAPicture)
{
    mCore.mPlatform.mFiles.fileSet("cursors/software/default.xml", "<sequence/>");
    znCSoftwareCursor::create();
    znCSoftwareCursor::enabledSet(true);
    EXPECT_TRUE(mCore.mPlatform.mWindow.mMouseCursorVisible);
    update(16);
    EXPECT_TRUE(draw().empty());
}

TEST_F(znCScreenFadeTest, hasNoCursorWithoutAMouse)
{
    mCore.mPlatform.mInput.mPointerType = S3E_POINTER_TYPE_STYLUS;
    mCore.mPlatform.mWindow.mMouseCursorVisible = true;
    znCSoftwareCursor::create();
    znCSoftwareCursor::enabledSet(true);
    EXPECT_TRUE(mCore.mPlatform.mWindow.mMouseCursorVisible);
    EXPECT_TRUE(znIDisplay::instanceGet()->childrenGet().empty());
}
