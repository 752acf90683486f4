#include "znappcore/znIInputManager.h"

#include "tests/support/znCTestCore.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIMessageListener.h"

#include <gtest/gtest.h>
#include <sstream>

namespace
{
// Writes down what it hears.
class Ear : public znIMessageListener
{
public:
    void messagesRegister() override
    {
        for (const znCUniqueId& type : TYPES)
            znIInputManager::instanceGet()->listenerRegister(type, this);
    }
    void messagesDeregister() override
    {
        for (const znCUniqueId& type : TYPES)
            znIInputManager::instanceGet()->listenerDeregister(type, this);
    }
    bool messageProcess(const znCUniqueId& pType, void* pData) override
    {
        if (pType == znIInputManager::TYPED_CHAR)
            mHeard += "char " + std::to_string(*static_cast<s32*>(pData)) + "; ";
        else
            pointerNote(pType, *static_cast<znCPointerMessage*>(pData));
        if (mDuring != nullptr)
            mDuring();
        return false;
    }
    std::string take() { return std::exchange(mHeard, ""); }

    void (*mDuring)() = nullptr; // what else happens while a message is out

private:
    static constexpr znCUniqueId TYPES[] = {znIInputManager::POINTER_DOWN, znIInputManager::POINTER_MOVE,
                                            znIInputManager::POINTER_UP, znIInputManager::TYPED_CHAR};

    void pointerNote(const znCUniqueId& pType, const znCPointerMessage& pMessage)
    {
        const char* kind = pType == znIInputManager::POINTER_DOWN ? "down"
                           : pType == znIInputManager::POINTER_UP ? "up"
                                                                  : "move";
        std::ostringstream line;
        line << kind << pMessage.mId << (pMessage.mDown ? "+ " : "- ") << pMessage.mPos.mX << ' ' << pMessage.mPos.mY
             << "; ";
        mHeard += line.str();
    }

    std::string mHeard;
};

class znIInputManagerTest : public testing::Test
{
protected:
    void start(s32 pPlatformType, bool pMultiTouch)
    {
        input().mPointerType = pPlatformType;
        input().mMultiTouch = pMultiTouch;
        znIInputManager::create();
        mEar.messagesRegister();
        mStarted = true;
    }
    void stop()
    {
        mEar.messagesDeregister();
        znIInputManager::destroy();
        mStarted = false;
    }
    void TearDown() override
    {
        if (mStarted)
            stop();
    }
    znCTestInput& input() { return mCore.mPlatform.mInput; }

    // "b0+ 10 20" button, "m 10 20" motion, "t3- 10 20" touch, "n3 10 20" touch motion, "|" the end of a frame.
    std::string play(const std::string& pScript)
    {
        std::istringstream words(pScript);
        for (std::string word; words >> word;)
            if (word == "|")
                frame();
            else
                queue(word, words);
        frame();
        return mEar.take();
    }
    void frame()
    {
        s3ePointerUpdate();
        s3eKeyboardUpdate();
        znIInputManager::instanceGet()->update();
    }
    void queue(const std::string& pWord, std::istringstream& pWords)
    {
        s32 x = 0;
        s32 y = 0;
        pWords >> x >> y;
        const s32 id = pWord.size() > 1 ? std::stoi(pWord.substr(1)) : 0;
        const bool down = pWord.back() == '+';
        switch (pWord[0])
        {
        case 'b':
            return input().buttonQueue(id, down, x, y);
        case 'm':
            return input().motionQueue(x, y);
        case 't':
            return input().touchQueue(id, down, x, y);
        default:
            return input().touchMotionQueue(id, x, y);
        }
    }

    znCTestCore mCore;
    Ear mEar;
    bool mStarted = false;
};

struct Case
{
    const char* mScript;
    const char* mHeard;
};

TEST_F(znIInputManagerTest, tellsWhatTheMouseDid)
{
    const Case cases[] = {
        {"b0+ 10 20 | b0- 10 20", "down0+ 10 20; up0- 10 20; "},
        {"b0+ 10 20 b0- 10 20", ""}, // within one frame; the pointer is where it was
        {"b0+ 11 21 b0- 12 22", "move0- 12 22; "},
        {"m 30 40 | m 30 40", "move0- 30 40; "},
        {"m 50 60 b0+ 50 60 | m 51 60 b0- 51 60", "down0+ 50 60; up0- 51 60; "}, // no moves of their own
        {"b0+ 50 60 | m 55 66 | b0- 55 66", "down0+ 50 60; move0+ 55 66; up0- 55 66; "},
        // The right button has a position of its own, that of its last button event.
        {"b1+ 7 8 | m 9 9 | b1- 7 8", "down1+ 7 8; move0- 9 9; up1- 7 8; "},
        {"b2+ 1 2 b-1+ 3 4 | b2- 1 2", ""},
        {"b0+ 1 1 b1+ 2 2", "down0+ 1 1; down1+ 2 2; "},
        {"b0- 1 1 b1- 2 2", "up0- 1 1; up1- 2 2; "},
        {"b0- 3 3 | m 3 3", "move0- 3 3; "},
    };
    start(S3E_POINTER_TYPE_MOUSE, false);
    EXPECT_EQ(znIInputManager::instanceGet()->maxInputPointsGet(), 2);
    input().motionQueue(10, 20);
    frame();
    mEar.take();
    for (const Case& c : cases)
        EXPECT_EQ(play(c.mScript), c.mHeard) << c.mScript;
    EXPECT_EQ(mCore.mPlatform.logTake(), "");
}

TEST_F(znIInputManagerTest, tellsWhatFingersDid)
{
    const Case cases[] = {
        {"t0+ 1 2 | n0 3 4 | t0- 3 4", "down0+ 1 2; move0+ 3 4; up0- 3 4; "},
        {"n0 50 60", ""}, // a finger that isn't down can't move
        {"t9+ 1 2 | t9- 1 2", "down9+ 1 2; up9- 1 2; "},
        {"t10+ 1 2 t-1+ 1 2 n10 5 5 n-1 5 5", ""},
        {"t1+ 5 5 t0+ 6 6", "down0+ 6 6; down1+ 5 5; "}, // in order of the fingers
    };
    start(S3E_POINTER_TYPE_STYLUS, true);
    EXPECT_EQ(znIInputManager::instanceGet()->maxInputPointsGet(), 10);
    for (const Case& c : cases)
        EXPECT_EQ(play(c.mScript), c.mHeard) << c.mScript;
}

TEST_F(znIInputManagerTest, takesOneFingerWhereThereIsOne)
{
    start(S3E_POINTER_TYPE_STYLUS, false);
    EXPECT_EQ(znIInputManager::instanceGet()->pointerTypeGet(), znIInputManager::POINTER_TYPE_TOUCH);
    EXPECT_EQ(play("t0+ 1 2 t1+ 3 4"), "down0+ 1 2; ");
}

TEST_F(znIInputManagerTest, takesAnUnknownPointerForAMouse)
{
    start(99, false);
    EXPECT_GE(mCore.mPlatform.logCountGet("Unhandled pointer type.\n"), 1);
    EXPECT_EQ(znIInputManager::instanceGet()->maxInputPointsGet(), 2);
}

TEST_F(znIInputManagerTest, passesCharactersOnInTheirOrder)
{
    start(S3E_POINTER_TYPE_MOUSE, false);
    input().textQueue("hi");
    input().charQueue(0xe4);
    EXPECT_EQ(play("b0+ 1 1"), "down0+ 1 1; char 104; char 105; char 228; ");
    EXPECT_EQ(play(""), "");
}

// A text dialog polls the platform while the message that opened it is still out.
TEST_F(znIInputManagerTest, keepsWhatComesWhileAMessageIsOut)
{
    start(S3E_POINTER_TYPE_MOUSE, false);
    input().buttonQueue(0, true, 5, 5);
    s3ePointerUpdate();
    input().buttonQueue(0, false, 6, 6);
    input().charQueue('x');
    mEar.mDuring = []
    {
        s3ePointerUpdate();
        s3eKeyboardUpdate();
    };
    znIInputManager::instanceGet()->update();
    EXPECT_EQ(mEar.take(), "down0+ 5 5; char 120; ");
    znIInputManager::instanceGet()->update();
    EXPECT_EQ(mEar.take(), "up0- 6 6; ");
}

TEST_F(znIInputManagerTest, asksForATextOnTheDevice)
{
    start(S3E_POINTER_TYPE_STYLUS, true);
    znIInputManager* manager = znIInputManager::instanceGet();
    EXPECT_EQ(manager->stringInputGet("Name?", "Ann", 12), "Ann"); // called off
    mCore.mPlatform.mReadString = "Ma\nri\xc3\xa9tta";
    EXPECT_EQ(manager->stringInputGet("Name?", "Ann", 5), "Mari\xc3\xa9");
}

TEST_F(znIInputManagerTest, leavesThePlatformAsItFoundIt)
{
    start(S3E_POINTER_TYPE_MOUSE, false);
    stop();
    EXPECT_EQ(input().mPointer.countGet() + input().mKeyboard.countGet(), 0);
    EXPECT_EQ(znIInputManager::instanceGet(), nullptr);
    EXPECT_EQ(mCore.mPlatform.logCountGet("Not created.\n"), 1);
}
} // namespace
