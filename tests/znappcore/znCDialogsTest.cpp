#include "tests/znappcore/znCGuiTest.h"
#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znCConfirmBoxGui.h"
#include "znappcore/components/gui/znCMessageBoxGui.h"
#include "znappcore/components/gui/znCNotificationsGui.h"
#include "znappcore/components/gui/znCSplashScreenGui.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCAppCoreMain.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znIMessageListener.h"

#include <fstream>
#include <gmock/gmock.h>
#include <iterator>

namespace
{
// Hears the answers of a confirm box, and sees whether the box still stands then.
class Asker : public znIMessageListener
{
public:
    Asker() { messagesRegister(); }
    ~Asker() override { messagesDeregister(); }
    void messagesRegister() override
    {
        znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCConfirmBoxGui::YES_RESPONSE, this);
        znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCConfirmBoxGui::NO_RESPONSE, this);
    }
    void messagesDeregister() override
    {
        znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCConfirmBoxGui::YES_RESPONSE, this);
        znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCConfirmBoxGui::NO_RESPONSE, this);
    }
    bool messageProcess(const znCUniqueId& pType, void*) override
    {
        mAnswer = pType == znCConfirmBoxGui::YES_RESPONSE ? "yes" : "no";
        mBoxStood = znIDisplay::instanceGet()->childFind("Box") != nullptr;
        return true;
    }

    std::string mAnswer;
    bool mBoxStood = false;
};

// Takes the screen that follows the splash.
class Main : public znCAppCoreMain
{
public:
    Main()
    {
        instanceSet(this);
        appDisplayNodeCreate();
    }
    ~Main() override { instanceSet(nullptr); }
};

class znCDialogsTest : public znCGuiTest
{
protected:
    void SetUp() override
    {
        std::ifstream file(PETREL_ROOT "/data/fonts/clarendon.ttf", std::ios::binary);
        fileSet("fonts/clarendon.ttf", {std::istreambuf_iterator<char>(file), {}});
    }

    // A text element of that name.
    static std::string textElement(const std::string& pName)
    {
        return "znCTextSpriteComponent { name = \"" + pName + "\" font = \"fonts/clarendon.ttf\" fontSize = 20 }\n";
    }

    static std::string shownText(const std::string& pName) { return find<znCTextSpriteComponent>(pName)->textGet(); }

    void notificationsCreate()
    {
        imageSet("strip.png", 400, 60, "#");
        fileSet("gui/notificationsgui/notificationsgui.txt",
                "znCNotificationsGui { name = \"Strip\" modal = false\n"
                "znCSpriteComponent { name = \"NotificationsGuiBackground\" image = \"strip.png\" }\n" +
                    textElement("NotificationsGuiText") + "}");
        znCNotificationsGui::create();
    }
};
} // namespace

TEST_F(znCDialogsTest, MessageBoxShowsItsTextInFront)
{
    fileSet("gui/messagebox/messagebox.txt", "znCMessageBoxGui { name = \"Box\"\n" +
                                                 textElement("MessageBoxMessageText") +
                                                 "znCButtonComponent { buttonImage = \"button.png\" action = "
                                                 "\"closeGui Box\" } }");
    znCEntity* below = guiCreate("znCButtonComponent { buttonImage = \"button.png\" action = \"doIt\" }");
    znCEntity* box = znCMessageBoxGui::messageBoxCreate(znIDisplay::instanceGet(), "The lamp is out.");
    frame();
    EXPECT_EQ(shownText("MessageBoxMessageText"), "The lamp is out.");
    EXPECT_EQ(znIDisplay::instanceGet()->childrenGet(), (std::vector<znINode*>{below, box}));
    tap(0, 0);
    frame();
    EXPECT_EQ(znIDisplay::instanceGet()->childrenGet(), (std::vector<znINode*>{below}));
}

TEST_F(znCDialogsTest, DialogsWithoutTheirTextStillStand)
{
    struct Case
    {
        const char* mFile;
        const char* mError;
    };
    const Case cases[] = {
        {"znCMessageBoxGui { }", "Expected to find a child entity called 'MessageBoxMessageText'."},
        {"znCMessageBoxGui { znCSpriteComponent { name = \"MessageBoxMessageText\" } }",
         "Expected an znCTextSpriteComponent on the MessageBoxMessageText entity."},
    };
    for (const Case& test : cases)
    {
        fileSet("gui/messagebox/messagebox.txt", test.mFile);
        EXPECT_NE(znCMessageBoxGui::messageBoxCreate(znIDisplay::instanceGet(), "x"), nullptr);
        EXPECT_EQ(errorsTake(), (Lines{test.mError}));
    }
    EXPECT_EQ(znCConfirmBoxGui::confirmBoxCreate(znIDisplay::instanceGet(), "x"), nullptr);
    EXPECT_EQ(errorsTake(), (Lines{"File gui/confirmbox/confirmbox.txt does not exist.",
                                   "No GUI elements created from file gui/confirmbox/confirmbox.txt"}));
}

TEST_F(znCDialogsTest, ConfirmBoxAnswersAndGoes)
{
    fileSet("gui/confirmbox/confirmbox.txt",
            "znCConfirmBoxGui { name = \"Box\"\n" + textElement("ConfirmBoxMessageText") +
                "znCButtonComponent { name = \"ConfirmBoxYesButton\" posX = -100 buttonImage = \"button.png\" }\n"
                "znCButtonComponent { name = \"ConfirmBoxNoButton\" posX = 100 buttonImage = \"button.png\" }\n"
                "znCButtonComponent { name = \"Else\" buttonImage = \"button.png\" } }");
    struct Case
    {
        s32 mX;
        const char* mAnswer;
        Lines mErrors;
    };
    const Case cases[] = {
        {-100, "yes", {}},
        {100, "no", {}},
        {0, "", {"Action has not been set for button Else and its parent gui did not handle the event."}},
    };
    for (const Case& test : cases)
    {
        const Asker asker;
        znCEntity* box = znCConfirmBoxGui::confirmBoxCreate(znIDisplay::instanceGet(), "Sure?");
        EXPECT_EQ(shownText("ConfirmBoxMessageText"), "Sure?");
        frame();
        tap(test.mX, 0);
        EXPECT_EQ(asker.mAnswer, test.mAnswer);
        EXPECT_EQ(asker.mBoxStood, *test.mAnswer != '\0');
        frame();
        EXPECT_EQ(znIDisplay::instanceGet()->childFind("Box"), *test.mAnswer != '\0' ? nullptr : box);
        EXPECT_EQ(errorsTake(), test.mErrors);
    }
}

// --- notifications ---

TEST_F(znCDialogsTest, NotificationsSlideOneAfterTheOther)
{
    notificationsCreate();
    znCNotificationsGui* strip = znCNotificationsGui::instanceGet();
    const znINode* node = strip->entityGet();
    EXPECT_EQ(node->posGet().mY, -330) << "above the canvas of 600 by half the strip of 60";
    strip->notificationAdd("one");
    strip->notificationAdd("one");
    strip->notificationAdd("two");
    frame(100);
    EXPECT_EQ(shownText("NotificationsGuiText"), "one");
    EXPECT_EQ(node->posGet().mY, -330) << "the frame that sets the text moves nothing";
    struct Case
    {
        s32 mDelta;
        s32 mY;
    };
    const Case cases[] = {{100, -300}, {100, -270}, {2900, -270}, {100, -270}, {100, -300}, {99, -329}};
    for (const Case& test : cases)
    {
        frame(test.mDelta);
        EXPECT_EQ(node->posGet().mY, test.mY);
    }
    EXPECT_FALSE(strip->messageIsUniqueGet("one"));
    EXPECT_FALSE(strip->messageIsUniqueGet("two"));
    frame(1);
    EXPECT_TRUE(strip->messageIsUniqueGet("one")) << "it has slid away";
    EXPECT_EQ(shownText("NotificationsGuiText"), "one");
    frame(16);
    EXPECT_EQ(shownText("NotificationsGuiText"), "two");
    strip->notificationAdd("one");
    frame(3400);
    frame(16);
    EXPECT_EQ(shownText("NotificationsGuiText"), "one");
    EXPECT_FALSE(tap(0, -270)) << "the strip takes no presses";
}

TEST_F(znCDialogsTest, NotificationsFileWithoutTheComponentIsLogged)
{
    EXPECT_EQ(znCNotificationsGui::instanceGet(), nullptr);
    fileSet("gui/notificationsgui/notificationsgui.txt", "znCSpriteComponent { }");
    znCNotificationsGui::create();
    EXPECT_EQ(errorsTake(), (Lines{"Not created.", "Expect to find a znCNotificationsGui after loading "
                                                   "notificationsGui.txt"}));
    fileSet("gui/notificationsgui/notificationsgui.txt", "znCNotificationsGui { }");
    znCNotificationsGui::create();
    znCNotificationsGui::instanceGet()->notificationAdd("one");
    frame();
    EXPECT_EQ(errorsTake(), (Lines{"Expected znCNotificationsGui to have a text box called 'NotificationsGuiText'."}));
}

// --- splash ---

namespace
{
class znCSplashTest : public znCDialogsTest
{
protected:
    void SetUp() override
    {
        mMain = std::make_unique<Main>();
        znCScreenFade::create();
        fileSet("gui/next.txt", "znCSpriteComponent { name = \"Next\" }");
        for (const char* image : {"one.png", "two.png"})
            imageSet(image, 800, 600, "#");
    }

    void splashCreate(const std::string& pScreens)
    {
        fileSet("gui/splash.txt",
                "znCSplashScreenGui { name = \"Splash\" nextGui = \"gui/next.txt\" " + pScreens + " }");
        mMain->appDisplayChildAdd(
            znIGuiComponent::guiCreateFromFile(znCResourceName("gui/splash.txt", 0), nullptr, true));
    }

    // "one.png", "two.png", "next" or nothing.
    static std::string shown()
    {
        if (znIDisplay::instanceGet()->childFind("Next") != nullptr)
            return znIDisplay::instanceGet()->childFind("Splash") == nullptr ? "next" : "both";
        const auto* sprite = find<znCSpriteComponent>("Splash");
        if (sprite == nullptr)
            return "";
        return sprite->brushGet() == brushGet("one.png") ? "one.png" : "two.png";
    }

    std::unique_ptr<Main> mMain;
};
} // namespace

TEST_F(znCSplashTest, PicturesGoByTimeAndByPress)
{
    struct Case
    {
        const char* mScreens;
        std::vector<s32> mSteps; // milliseconds of a frame; -1: a press
        const char* mShown;
    };
    const char* two = "screen0 = \"one.png\" screen1 = \"two.png\"";
    const Case cases[] = {
        {two, {16}, "one.png"},
        {two, {16, 9999}, "one.png"},
        {two, {16, 10000}, "two.png"},
        {two, {16, 10000, 10000}, "next"},
        {two, {16, 999, -1, 0}, "one.png"},
        {two, {16, 1000, -1, 0}, "two.png"},
        {two, {16, 1000, -1, 999, -1, 0}, "two.png"},
        {two, {16, 1000, -1, 1000, -1, 0}, "next"},
        {two, {16, 1000, -1, 1000, -1, 10000}, "next"}, // both ways out in one frame
        {"", {16}, "next"},
        {"screen1 = \"two.png\"", {16}, "next"},
        {"screen0 = \"one.png\" minDurationMs = 0 maxDurationMs = 50", {16, -1, 0}, "next"},
        {"screen0 = \"one.png\" minDurationMs = 0 maxDurationMs = 50", {16, 50}, "next"},
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.mScreens);
        splashCreate(test.mScreens);
        for (const s32 step : test.mSteps)
        {
            if (step < 0)
                EXPECT_TRUE(tap(0, 0)) << "nothing below gets it";
            else
                frame(step);
        }
        EXPECT_EQ(shown(), test.mShown);
        for (const char* name : {"Next", "Splash"})
            if (znINode* node = znIDisplay::instanceGet()->childFind(name))
                node->destroy();
        frame();
        EXPECT_EQ(znIDisplay::instanceGet()->childFind("Next"), nullptr) << "once";
    }
}

TEST_F(znCSplashTest, TheNextPictureIsLoadedAhead)
{
    splashCreate("screen0 = \"one.png\" screen1 = \"two.png\"");
    frame();
    const std::size_t textures = mCore.mPlatform.mDraw.mTextures.size();
    frame(10000);
    EXPECT_EQ(shown(), "two.png");
    EXPECT_EQ(mCore.mPlatform.mDraw.mTextures.size(), textures);
}
