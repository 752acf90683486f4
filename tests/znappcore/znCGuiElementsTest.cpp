#include "tests/support/allocationCount.h"
#include "tests/znappcore/znCGuiTest.h"
#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/elements/znCButtonDelayComponent.h"
#include "znappcore/components/gui/elements/znCCheckBoxComponent.h"
#include "znappcore/components/gui/elements/znCSliderComponent.h"
#include "znappcore/components/gui/znCModalGuiComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/znIMessageListener.h"
#include "zncore/src/znCVariableTable.h"

#include <gmock/gmock.h>

namespace
{
constexpr znCUniqueId ACTION{"doIt"};

// Writes down the messages of the GUI.
class Ear : public znIMessageListener
{
public:
    Ear() { messagesRegister(); }
    ~Ear() override { messagesDeregister(); }
    void messagesRegister() override
    {
        for (const znCUniqueId& type : TYPES)
            znCGuiMessageDispatcher::instanceGet()->listenerRegister(type, this);
    }
    void messagesDeregister() override
    {
        for (const znCUniqueId& type : TYPES)
            znCGuiMessageDispatcher::instanceGet()->listenerDeregister(type, this);
    }
    bool messageProcess(const znCUniqueId& pType, void* pData) override
    {
        if (pType == ACTION)
            mHeard += "action(" + static_cast<znCButtonActionData*>(pData)->mParam + ") ";
        else if (pType == znCCheckBoxComponent::TOGGLED)
        {
            const auto* state = static_cast<znCCheckBoxComponent::State*>(pData);
            mHeard += *state->mName + (state->mChecked ? " on " : " off ");
        }
        else if (pType == znCGuiMessageDispatcher::TUTORIAL_BUTTON_PRESSED)
            mHeard += "tutorial(" + *static_cast<std::string*>(pData) + ") ";
        else
        {
            const auto* state = static_cast<znCSliderComponent::State*>(pData);
            mHeard += *state->mName + (pType == znCSliderComponent::MOVED ? " at " : " let go at ") +
                      std::to_string(static_cast<s32>(state->mValue * 100.0f)) + " ";
        }
        return false;
    }
    std::string take()
    {
        std::string heard;
        heard.swap(mHeard);
        return heard;
    }

private:
    static constexpr znCUniqueId TYPES[] = {ACTION, znCCheckBoxComponent::TOGGLED, znCSliderComponent::MOVED,
                                            znCSliderComponent::RELEASED,
                                            znCGuiMessageDispatcher::TUTORIAL_BUTTON_PRESSED};
    std::string mHeard;
};

// A GUI that takes the clicks of the buttons whose name begins with "own".
class Screen : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"Screen"};

    using znIGuiComponent::znIGuiComponent;
    bool onButtonClicked(znCButtonComponent* pButton) override
    {
        sClicked = pButton->entityGet()->nameGet();
        return sClicked.starts_with("own");
    }

    static inline std::string sClicked;
};

class znCGuiElementsTest : public znCGuiTest
{
protected:
    void SetUp() override
    {
        znCComponentFactory::instanceGet()->componentRegister<Screen>();
        Screen::sClicked.clear();
    }

    static std::string pictureGet(const std::string& pEntity)
    {
        for (const char* image : {"button.png", "over.png", "off.png", "on.png"})
            if (find<znCSpriteComponent>(pEntity)->brushGet() == brushGet(image))
                return image;
        return "";
    }

    Ear mEar;
};
} // namespace

TEST_F(znCGuiElementsTest, ButtonsAct)
{
    guiCreate(R"(Screen {
        znCButtonComponent { name = "a" posX = -100 buttonImage = "button.png" action = "doIt some thing" }
        znCButtonComponent { name = "b" posX = -50 buttonImage = "button.png" action = "doIt" }
        znCButtonComponent { name = "own" posX = 0 buttonImage = "button.png" }
        znCSpriteComponent {
            znCButtonComponent { name = "other" posX = 50 buttonImage = "button.png" }
        }
        znCButtonComponent { name = "tight" posX = 100 buttonImage = "button.png" action = "doIt   x" }
    })");
    frame();
    EXPECT_TRUE(tap(-100, 0));
    EXPECT_EQ(mEar.take(), "action(some thing) ");
    tap(-50, 0);
    EXPECT_EQ(mEar.take(), "action() ");
    tap(100, 0);
    EXPECT_EQ(mEar.take(), "action(  x) ") << "one blank ends the message's name";
    EXPECT_TRUE(errorsTake().empty());
    tap(0, 0);
    EXPECT_EQ(Screen::sClicked, "own");
    EXPECT_TRUE(errorsTake().empty());
    tap(50, 0);
    EXPECT_EQ(Screen::sClicked, "other");
    EXPECT_EQ(errorsTake(),
              (Lines{"Action has not been set for button other and its parent gui did not handle the event."}));
    EXPECT_FALSE(tap(0, 100));
}

TEST_F(znCGuiElementsTest, ActionsThatNobodyTakesAreLogged)
{
    guiCreate(R"(Screen {
        znCButtonComponent { name = "a" posX = -100 buttonImage = "button.png" action = "lodGui x.txt" }
        znCButtonComponent { name = "own" buttonImage = "button.png" action = "SliderMoved x" }
    })");
    frame();
    EXPECT_THAT(errorsTake(), testing::Contains("The action of button own can't be SliderMoved, which isn't a "
                                                "button's message."));
    tap(-100, 0);
    EXPECT_NE(mCore.mPlatform.logGet().find("Nothing listens to the action of button a."), std::string::npos);
    tap(0, 0);
    EXPECT_EQ(Screen::sClicked, "own") << "as a button without an action";
}

TEST_F(znCGuiElementsTest, ButtonsLightUp)
{
    guiCreate("Screen { znCButtonComponent { name = \"a\" buttonImage = \"button.png\" buttonDownImage = \"over.png\" "
              "action = \"doIt\" } }");
    frame();
    EXPECT_TRUE(pointerSend(znIInputManager::POINTER_DOWN, 0, 0));
    EXPECT_EQ(pictureGet("a"), "over.png");
    pointerSend(znIInputManager::POINTER_MOVE, 200, 0);
    EXPECT_EQ(pictureGet("a"), "button.png");
    pointerSend(znIInputManager::POINTER_UP, 200, 0);
    EXPECT_EQ(mEar.take(), "") << "slid off";
}

TEST_F(znCGuiElementsTest, MissingImagesAreNamed)
{
    guiCreate("znCButtonComponent {\n  name = \"a\"\n}\nznCCheckBoxComponent {\n  name = \"b\"\n  imageOff = "
              "\"button.png\"\n  imageOffOver = \"button.png\"\n  imageOn = \"button.png\"\n}\n");
    const Lines errors = errorsTake();
    EXPECT_THAT(errors, testing::Contains("Expected a buttonImage for znCButtonComponent a."));
    EXPECT_THAT(errors, testing::Contains("gui/test.txt line 1: The faults above are those of znCButtonComponent a."));
    EXPECT_THAT(errors, testing::Contains("Expected a 'imageOnOver' for znCButtonComponent b."));
    EXPECT_THAT(errors,
                testing::Contains("gui/test.txt line 4: The faults above are those of znCCheckBoxComponent b."));
    frame();
}

TEST_F(znCGuiElementsTest, CheckBoxesToggleAloneAndExcludeOneAnotherInAGroup)
{
    imageSet("off.png", 20, 20, "#");
    imageSet("on.png", 20, 20, "#");
    guiCreate(R"(
        style Box {
            znCCheckBoxComponent {
                imageOff = "off.png" imageOffOver = "over.png" imageOn = "on.png" imageOnOver = "button.png"
            }
        }
        Screen {
            Box {
                name = "alone" posY = 50
            }
            znCCheckBoxGroupComponent {
                Box {
                    name = "first" posX = -100
                }
                Box {
                    name = "second"
                }
                Box {
                    name = "third" posX = 100
                }
            }
        })");
    frame();
    tap(0, 50);
    EXPECT_EQ(mEar.take(), "alone on ");
    EXPECT_EQ(pictureGet("alone"), "on.png");
    tap(0, 50);
    EXPECT_EQ(mEar.take(), "alone off ");
    find<znCCheckBoxComponent>("alone")->checkedSet(true);
    EXPECT_EQ(mEar.take(), "") << "set by the program";

    const auto checked = []
    {
        std::string names;
        for (const char* name : {"first", "second", "third"})
        {
            const auto* box = find<znCCheckBoxComponent>(name);
            names += box != nullptr && box->checkedGet() ? name : "";
        }
        return names;
    };
    EXPECT_EQ(checked(), "first");
    tap(100, 0);
    EXPECT_EQ(mEar.take(), "third on ");
    EXPECT_EQ(checked(), "third");
    EXPECT_EQ(pictureGet("first"), "off.png");
    tap(100, 0);
    EXPECT_EQ(mEar.take(), "");
    EXPECT_EQ(checked(), "third");
    // A box that goes takes itself out of the group.
    znIDisplay::instanceGet()->childFind("second")->destroy();
    frame();
    tap(-100, 0);
    EXPECT_EQ(checked(), "first");
}

TEST_F(znCGuiElementsTest, SlidersSlide)
{
    guiCreate("Screen { posX = 100 znCSliderComponent { name = \"s\" sliderImage = \"button.png\" posX = 100 posY = 50 "
              "range = 200 } }");
    auto* slider = find<znCSliderComponent>("s");
    const znINode* knob = slider->entityGet();
    frame();
    EXPECT_EQ(knob->posGet().mX, 0);
    slider->valueSet(1.0f);
    EXPECT_EQ(knob->posGet().mX, 200);
    slider->valueSet(0.25f);
    EXPECT_EQ(knob->posGet().mX, 50);
    EXPECT_EQ(mEar.take(), "");
    frame();

    // Taken 5 right of its middle and dragged, down as well.
    EXPECT_TRUE(pointerSend(znIInputManager::POINTER_DOWN, 155, 50));
    pointerSend(znIInputManager::POINTER_MOVE, 205, 150);
    EXPECT_EQ(knob->posGet().mX, 100);
    EXPECT_EQ(knob->posGet().mY, 50);
    EXPECT_EQ(mEar.take(), "s at 25 s at 50 ");
    pointerSend(znIInputManager::POINTER_MOVE, 900, 50);
    EXPECT_EQ(knob->posGet().mX, 200);
    pointerSend(znIInputManager::POINTER_UP, -900, 50);
    EXPECT_EQ(slider->valueGet(), 0.0f);
    EXPECT_EQ(mEar.take(), "s at 100 s at 0 s let go at 0 ");

    guiCreate("znCSliderComponent {\n name = \"t\" sliderImage = \"button.png\"\n}");
    EXPECT_EQ(errorsTake(), (Lines{"Expecting a value to be set for 'range'.",
                                   "gui/test.txt line 1: The faults above are those of znCSliderComponent t."}));
    frame();
    EXPECT_TRUE(tap(0, 0));
    EXPECT_EQ(find<znCSliderComponent>("t")->valueGet(), 0.0f) << "no track to slide on";
}

TEST_F(znCGuiElementsTest, DelayBlocksTheButtonUntilItIsOver)
{
    imageSet("fill.png", 40, 20, "#");
    guiCreate(R"(Screen {
        znCButtonComponent { name = "a" buttonImage = "button.png" action = "doIt" }
        znCButtonDelayComponent { name = "d" disabledImage = "button.png" fillImage = "fill.png" fillDelayMs = 100 }
    })");
    auto* delay = find<znCButtonDelayComponent>("d");
    frame(0);
    EXPECT_TRUE(delay->isCharging());
    EXPECT_TRUE(tap(0, 0));
    EXPECT_EQ(mEar.take(), "");
    EXPECT_FALSE(tap(0, 15)) << "beside the picture";
    frame(99);
    EXPECT_TRUE(tap(0, 0));
    EXPECT_EQ(mEar.take(), "");
    frame(1);
    EXPECT_FALSE(delay->isCharging());
    EXPECT_FALSE(delay->entityGet()->activeGet());
    tap(0, 0);
    EXPECT_EQ(mEar.take(), "action() ");
    delay->delaySet(200);
    EXPECT_FALSE(delay->isCharging());
    delay->restart();
    frame(150);
    EXPECT_TRUE(delay->isCharging());
    delay->delaySet(120);
    EXPECT_FALSE(delay->isCharging());
    EXPECT_FALSE(delay->entityGet()->activeGet()) << "cut short, it is over";
}

TEST_F(znCGuiElementsTest, DelayBarFillsFromItsSide)
{
    imageSet("fill.png", 40, 20, "#");
    struct Case
    {
        const char* mSettings;
        s32 mElapsed;     // of 1000
        znPoint mTopLeft; // of the bar's filled part, from the canvas's middle
        znPoint mBottomRight;
    };
    // The whole bar covers -20 to 20 and -10 to 10.
    const Case cases[] = {
        {"fillDirection = \"down\"", 500, {-20, -10}, {20, 0}},
        {"fillDirection = \"up\"", 500, {-20, 0}, {20, 10}},
        {"fillDirection = \"right\"", 250, {-20, -10}, {-10, 10}},
        {"fillDirection = \"left\"", 250, {10, -10}, {20, 10}},
        {"", 599, {-20, -10}, {20, 0}},                 // 11.98, even
        {"recharge = false", 250, {-20, -10}, {20, 4}}, // 15, made even
        {"fillOffsetX = 6 fillOffsetY = -4", 500, {-14, -14}, {26, -4}},
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.mSettings);
        guiCreate(std::string("znCButtonDelayComponent { disabledImage = \"button.png\" fillImage = \"fill.png\" ") +
                  test.mSettings + " }");
        frame(test.mElapsed);
        frame(0);
        pictureDraw();
        const auto& positions = mCore.mPlatform.mDraw.mPresented.back().mPositions;
        ASSERT_GE(positions.size(), 8u);
        const std::size_t fill = positions.size() - 8; // the last quad
        EXPECT_EQ(static_cast<s32>(positions[fill]) - 400, test.mTopLeft.mX);
        EXPECT_EQ(static_cast<s32>(positions[fill + 1]) - 300, test.mTopLeft.mY);
        EXPECT_EQ(static_cast<s32>(positions[fill + 4]) - 400, test.mBottomRight.mX);
        EXPECT_EQ(static_cast<s32>(positions[fill + 5]) - 300, test.mBottomRight.mY);
        delete znIDisplay::instanceGet()->childrenGet().back();
    }
}

// --- screens in front of one another ---

TEST_F(znCGuiElementsTest, ModalScreensTakeWhatTheirElementsLeave)
{
    struct Case
    {
        const char* mSettings;
        bool mModal;
        bool mReachesBelow;
    };
    const Case cases[] = {{"", true, false}, {"modal = false", true, true}, {"", false, true}};
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.mSettings);
        znCEntity* below =
            guiCreate("Screen { znCButtonComponent { buttonImage = \"button.png\" action = \"doIt below\" } }");
        znCEntity* front = guiCreate(std::string("Screen { znCButtonComponent { posX = 100 buttonImage = "
                                                 "\"button.png\" action = \"doIt front\" } ") +
                                         test.mSettings + " }",
                                     test.mModal);
        frame();
        tap(100, 0);
        EXPECT_EQ(mEar.take(), "action(front) ");
        EXPECT_EQ(tap(0, 0), true);
        EXPECT_EQ(mEar.take(), test.mReachesBelow ? "action(below) " : "");
        front->destroy();
        frame();
        tap(0, 0);
        EXPECT_EQ(mEar.take(), "action(below) ");
        below->destroy();
        frame();
    }
}

TEST_F(znCGuiElementsTest, ActionsOpenAndCloseScreens)
{
    fileSet("gui/two.txt", "Screen { name = \"Two\" znCButtonComponent { name = \"close\" buttonImage = \"button.png\" "
                           "action = \"closeGui Two\" } }");
    guiCreate(R"(Screen {
        name = "One"
        znCButtonComponent { name = "open" buttonImage = "button.png" action = "loadGui gui/two.txt" }
        znCButtonComponent { name = "learn" posX = 100 buttonImage = "button.png" action = "loadGuiTut gui/two.txt" }
        znCButtonComponent { name = "web" posX = 200 buttonImage = "button.png" action = "launchBrowser http://a.b" }
        znCButtonComponent { name = "none" posY = 100 buttonImage = "button.png" action = "closeGui Three" }
        znCButtonComponent { name = "empty" posY = -100 buttonImage = "button.png" action = "closeGui" }
    })");
    frame();
    tap(0, 0);
    znINode* two = znIDisplay::instanceGet()->childFind("Two");
    ASSERT_NE(two, nullptr);
    EXPECT_EQ(two->parentGet()->nameGet(), "One");
    frame();
    EXPECT_TRUE(tap(100, 0));
    EXPECT_EQ(mEar.take(), "") << "the screen in front is modal";
    tap(0, 0);
    EXPECT_NE(znIDisplay::instanceGet()->childFind("Two"), nullptr) << "until the end of the frame";
    frame();
    EXPECT_EQ(znIDisplay::instanceGet()->childFind("Two"), nullptr);

    tap(100, 0);
    EXPECT_EQ(mEar.take(), "tutorial(learn) ");
    frame();
    tap(0, 0);
    frame();
    tap(200, 0);
    EXPECT_EQ(mCore.mPlatform.mUrlsOpened, (Lines{"http://a.b"}));
    EXPECT_TRUE(errorsTake().empty());
    tap(0, 100);
    tap(0, -100);
    EXPECT_EQ(errorsTake(), (Lines{"Gui Three not found for closing.", "Gui  not found for closing."}));
}

// A screen that takes such a name by mistake must not take the program down with it.
TEST_F(znCGuiElementsTest, ClosingReachesNothingThatTheProgramStandsOn)
{
    znIDisplay* display = znIDisplay::instanceGet();
    auto* root = new znINode("AppDisplay");
    display->childAdd(root);
    display->childAdd(new znCEntity("Fade"));
    root->childAdd(new znCEntity("Panel"));
    for (const std::string& name : {display->nameGet(), std::string("AppDisplay"), std::string("Fade")})
    {
        znCButtonActionData action{name, nullptr};
        EXPECT_TRUE(znCGuiMessageDispatcher::instanceGet()->messageSend(znCGuiMessageDispatcher::CLOSE_GUI, &action));
        EXPECT_EQ(errorsTake(), (Lines{"Gui " + name + " not found for closing."}));
    }
    znCButtonActionData action{"Panel", nullptr};
    znCGuiMessageDispatcher::instanceGet()->messageSend(znCGuiMessageDispatcher::CLOSE_GUI, &action);
    frame();
    EXPECT_NE(display->childFind("Fade"), nullptr);
    EXPECT_EQ(display->childFind("Panel"), nullptr);
}

TEST_F(znCGuiElementsTest, ScreenFromAButtonOutsideAnyScreenStillShows)
{
    fileSet("gui/two.txt", "Screen { name = \"Two\" }");
    guiCreate("znCButtonComponent { name = \"b\" buttonImage = \"button.png\" action = \"loadGui gui/two.txt\" }");
    frame();
    tap(0, 0);
    EXPECT_EQ(errorsTake(), (Lines{"Parent Gui not found for adding new child gui gui/two.txt from button b."}));
    ASSERT_NE(znIDisplay::instanceGet()->childFind("Two"), nullptr);
}

// Pressed in the same delivery in which the new screen's elements register.
TEST_F(znCGuiElementsTest, TheReleaseThatOpensAScreenDoesNotReachIt)
{
    std::string two = "Screen { name = \"Two\"\n";
    for (s32 i = 0; i < 50; ++i)
        two += "znCButtonComponent { buttonImage = \"button.png\" action = \"doIt two\" }\n";
    fileSet("gui/two.txt", two + "}");
    guiCreate("Screen { znCButtonComponent { buttonImage = \"button.png\" action = \"loadGui gui/two.txt\" } }");
    frame();
    tap(0, 0);
    frame();
    EXPECT_EQ(mEar.take(), "");
    tap(0, 0);
    EXPECT_EQ(mEar.take(), "action(two) ");
}

TEST_F(znCGuiElementsTest, AStillScreenAllocatesNothing)
{
    std::string text = "Screen {\n";
    for (s32 i = 0; i < 100; ++i)
        text += "znCButtonComponent { buttonImage = \"button.png\" posX = " + std::to_string(i) +
                " }\nznCSpriteComponent { image = \"over.png\" }\n";
    guiCreate(text + "}", true);
    mCore.mPlatform.mDraw.mRecording = false;
    for (s32 i = 0; i < 3; ++i)
    {
        frame();
        pictureDraw();
    }
    const std::size_t before = allocationCountGet();
    frame();
    pictureDraw();
    EXPECT_EQ(allocationCountGet(), before);
}
