#include "znappcore/components/gui/elements/znCKeyFocusComponent.h"

#include "tests/znappcore/znCGuiTest.h"
#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/elements/znCSliderComponent.h"
#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCButtonActionData.h"
#include "zncore/impl/platform/s3e.h"

#include <map>

namespace
{
// Hears the buttons' action "pressed".
class PressEar : public znIMessageListener
{
public:
    static constexpr znCUniqueId PRESSED{"pressed"};

    PressEar() { messagesRegister(); }
    ~PressEar() override { messagesDeregister(); }
    void messagesRegister() override { znCGuiMessageDispatcher::instanceGet()->listenerRegister(PRESSED, this); }
    void messagesDeregister() override { znCGuiMessageDispatcher::instanceGet()->listenerDeregister(PRESSED, this); }
    bool messageProcess(const znCUniqueId&, void* pData) override
    {
        mHeard += static_cast<znCButtonActionData*>(pData)->mParam;
        return true;
    }
    std::string take() { return std::exchange(mHeard, ""); }

private:
    std::string mHeard;
};

class znCKeyFocusComponentTest : public znCGuiTest
{
protected:
    static std::string button(const std::string& pName, s32 pX, s32 pY)
    {
        return "znCButtonComponent { name = " + pName + " buttonImage = button.png action = \"pressed " + pName +
               "\" posX = " + std::to_string(pX) + " posY = " + std::to_string(pY) + " }\n";
    }

    // Keys by letter: t Tab, b Tab with Shift, arrows l r u d, s Space, e Enter, x Escape; a with Alt.
    void keys(const std::string& pKeys)
    {
        static const std::map<char, s32> CODES = {{'t', S3E_KEY_TAB},   {'b', S3E_KEY_TAB},   {'l', S3E_KEY_LEFT},
                                                  {'r', S3E_KEY_RIGHT}, {'u', S3E_KEY_UP},    {'d', S3E_KEY_DOWN},
                                                  {'s', S3E_KEY_SPACE}, {'e', S3E_KEY_ENTER}, {'x', S3E_KEY_ESCAPE},
                                                  {'a', S3E_KEY_ESCAPE}};
        for (const char key : pKeys)
        {
            const s32 with = key == 'b' ? S3E_KEY_SHIFT : key == 'a' ? S3E_KEY_ALT : 0;
            for (const bool down : {true, false})
            {
                if (with != 0)
                    mCore.mPlatform.mInput.keyQueue(with, down);
                if (down)
                    mCore.mPlatform.mInput.keyQueue(CODES.at(key), true);
                if (with == 0 || down)
                    s3eKeyboardUpdate();
            }
            mCore.mPlatform.mInput.keyQueue(CODES.at(key), false);
            s3eKeyboardUpdate();
            znIInputManager::instanceGet()->update();
            frame();
        }
    }

    std::string focus(const char* pName = "Keys") { return find<znCKeyFocusComponent>(pName)->focusGet(); }

    PressEar mEar;
};

// Three buttons in the corners of a triangle and a hidden one.
TEST_F(znCKeyFocusComponentTest, movesAndPresses)
{
    struct Case
    {
        const char* mKeys;
        const char* mFocus;
        const char* mPressed;
    };
    const Case cases[] = {
        {"t", "a", ""},   {"tt", "b", ""},   {"ttt", "c", ""},   {"tttt", "a", ""}, {"b", "c", ""},  {"bb", "b", ""},
        {"d", "a", ""},   {"td", "c", ""},   {"tr", "b", ""},    {"trd", "c", ""},  {"tu", "a", ""}, {"ttl", "a", ""},
        {"ts", "a", "a"}, {"tte", "b", "b"}, {"e", "", "c"},     {"te", "a", "a"},  {"x", "", "b"},  {"tx", "a", "b"},
        {"s", "", ""},    {"a", "", ""},     {"tss", "a", "aa"},
    };
    for (const Case& c : cases)
    {
        znCEntity* screen =
            guiCreate("znCModalGuiComponent {\n" + button("a", -100, -50) + button("b", 100, -50) +
                          button("c", -100, 60) + "znCKeyFocusComponent { name = Keys enter = c escape = b }\n}\n",
                      true);
        znCEntity* hidden = guiCreate(button("hidden", 0, 0));
        hidden->activeSet(false);
        frame();
        keys(c.mKeys);
        EXPECT_EQ(focus(), c.mFocus) << c.mKeys;
        EXPECT_EQ(mEar.take(), c.mPressed) << c.mKeys;
        screen->destroy();
        hidden->destroy();
        frame();
    }
}

TEST_F(znCKeyFocusComponentTest, servesTheScreenInFront)
{
    guiCreate("znCModalGuiComponent {\n name = Back\n" + button("a", 0, 0) +
                  "znCKeyFocusComponent { name = Keys enter = a escapeGui = gui/front.txt }\n}\n",
              true);
    fileSet("gui/front.txt", "znCModalGuiComponent {\n name = Front\n" + button("b", 0, 100) +
                                 "znCButtonComponent { name = close buttonImage = button.png action = \"closeGui "
                                 "Front\" posY = -100 }\nznCKeyFocusComponent { escape = close }\n}\n");
    frame();
    keys("x");
    ASSERT_NE(znIDisplay::instanceGet()->childFind("Front"), nullptr);
    keys("tts"); // the first is the closing one
    EXPECT_EQ(mEar.take(), "b") << "and the one behind gets no key";
    keys("e");
    EXPECT_EQ(mEar.take(), "b");
    keys("x");
    EXPECT_EQ(znIDisplay::instanceGet()->childFind("Front"), nullptr);
    keys("e");
    EXPECT_EQ(mEar.take(), "a");
}

TEST_F(znCKeyFocusComponentTest, givesWayToThePointer)
{
    guiCreate("znCModalGuiComponent {\n" + button("a", 0, 0) + button("b", 0, 0) +
                  "znCKeyFocusComponent { name = Keys }\n}\n",
              true);
    frame();
    keys("t");
    EXPECT_EQ(focus(), "a");
    pictureDraw();
    const std::size_t framed = mCore.mPlatform.mDraw.mFrame.size();
    keys("s");
    EXPECT_EQ(mEar.take(), "b") << "what lies over a control is pressed in its place";
    EXPECT_EQ(focus(), "a");
    pointerSend(znIInputManager::POINTER_MOVE, 300, 0);
    frame();
    EXPECT_EQ(focus(), "");
    pictureDraw();
    EXPECT_LT(mCore.mPlatform.mDraw.mFrame.size(), framed);
    keys("s");
    EXPECT_EQ(mEar.take(), "");
}

TEST_F(znCKeyFocusComponentTest, movesASlider)
{
    guiCreate("znCModalGuiComponent {\nznCSliderComponent { name = volume sliderImage = button.png range = 100 }\n" +
                  button("a", 200, 0) + "znCKeyFocusComponent { name = Keys }\n}\n",
              true);
    frame();
    auto* slider = find<znCSliderComponent>("volume");
    slider->valueSet(0.5f);
    keys("trrl");
    EXPECT_FLOAT_EQ(slider->valueGet(), 0.6f);
    keys("rrrrrrr");
    EXPECT_FLOAT_EQ(slider->valueGet(), 1.0f);
    EXPECT_EQ(focus(), "volume");
}

TEST_F(znCKeyFocusComponentTest, forgetsWhatHasGone)
{
    guiCreate("znCModalGuiComponent {\n" + button("a", 0, 0) +
                  "znCKeyFocusComponent { name = Keys enter = nosuch }\n}\n",
              true);
    frame();
    keys("t");
    znIDisplay::instanceGet()->childFind("a")->destroy();
    frame();
    keys("slr");
    EXPECT_EQ(mEar.take(), "");
    keys("e");
    EXPECT_NE(mCore.mPlatform.logTake().find("There is no control nosuch for the keyboard."), std::string::npos);
}
} // namespace
