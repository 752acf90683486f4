#include "znappcore/components/znIGestureHandlingComponent.h"

#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/components/znCDragDropComponent.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"

#include <memory>
#include <sstream>

namespace
{
std::string sJournal;

void note(const std::string& pText)
{
    sJournal += pText + "; ";
}

std::string text(const znPoint& pPoint)
{
    return std::to_string(pPoint.mX) + "," + std::to_string(pPoint.mY);
}

class Gesture : public znIGestureHandlingComponent
{
public:
    enum Kinds
    {
        TAP = 1,
        DRAG = 2,
        TWO = 4,
        LIT = 8, // its highlight shows
    };

    Gesture(znCEntity* pEntity, s32 pKinds)
        : znIGestureHandlingComponent(pEntity, pKinds & TAP, pKinds & DRAG, pKinds & TWO), mLit(pKinds & LIT)
    {
    }
    bool inputEnabled() override { return mEnabled; }
    bool highlightChanged() override
    {
        note(highlightedGet() ? "lit" : "unlit");
        return mLit;
    }
    void onTap() override { note("tap"); }
    void onDragStart(const Pointer& pStart) override { note("start " + text(pStart.mPos)); }
    void onDragMove(const znPoint& pPos) override { note("move " + text(pPos)); }
    void onDragEnd(const znPoint& pPos) override { note("end " + text(pPos)); }
    void onTwoPointerStart(const Pointer& pFirst, const Pointer& pSecond) override
    {
        note("two " + text(pFirst.mPos) + " " + text(pSecond.mPos));
    }
    void onTwoPointerMove(const znPoint&, const znPoint& pDelta, s32 pId) override
    {
        note("twoMove" + std::to_string(pId) + " " + text(pDelta));
    }
    void onTwoPointerEnd(const znPoint&, const znPoint&, s32 pId) override { note("twoEnd" + std::to_string(pId)); }

    bool mEnabled = true;

private:
    bool mLit;
};

// Holds a press that it gives up when asked, as an object of a scene does.
class Holder : public znIMessageListener
{
public:
    void messagesRegister() override {}
    void messagesDeregister() override {}
    bool messageProcess(const znCUniqueId&, void*) override { return false; }
    void pointerCaptureCancel() override
    {
        znCPointerMessage message(znPoint(0, 0), 0, true);
        mStolen = znIInputManager::instanceGet()->messageSend(znIInputManager::POINTER_DOWN_STEAL, &message);
    }
    bool mStolen = false;
};

// The sprite of a gesture covers 80 to 119 on both axes.
class znIGestureHandlingComponentTest : public znCPresentationTest
{
protected:
    struct Thing
    {
        std::unique_ptr<znCEntity> mEntity;
        std::unique_ptr<Gesture> mGesture;
    };

    void deviceSet(bool pTouch)
    {
        mCore.mPlatform.mInput.mPointerType = pTouch ? S3E_POINTER_TYPE_STYLUS : S3E_POINTER_TYPE_MOUSE;
        mCore.mPlatform.mInput.mMultiTouch = pTouch;
        znCGuiMessageDispatcher::create();
        znIInputManager::create();
        imageSet("full.png", 40, 40, "#");
        sJournal.clear();
    }
    void deviceEnd()
    {
        znIInputManager::destroy();
        znCGuiMessageDispatcher::destroy();
    }

    Thing thingMake(s32 pKinds)
    {
        Thing thing;
        thing.mEntity = std::make_unique<znCEntity>("thing");
        thing.mEntity->componentAdd<znCSpriteComponent>()->brushSet(brushGet("full.png", true));
        thing.mEntity->posSet(100, 100);
        thing.mGesture = std::make_unique<Gesture>(thing.mEntity.get(), pKinds);
        thing.mGesture->messagesRegister();
        return thing;
    }

    // "D0 100 100" down, "M0 100 100" moves while down, "H 100 100" moves up, "U0 100 100" up. The answer: what was
    // claimed, a digit a message.
    static std::string play(const std::string& pScript)
    {
        std::istringstream words(pScript);
        std::string claims;
        for (std::string word; words >> word;)
        {
            s32 x = 0;
            s32 y = 0;
            words >> x >> y;
            const s32 id = word.size() > 1 ? word[1] - '0' : 0;
            claims += send(word[0], id, znPoint(x, y)) ? '1' : '0';
        }
        return claims;
    }
    static bool send(char pKind, s32 pId, const znPoint& pPos, Holder* pHolder = nullptr)
    {
        const bool down = pKind == 'D' || pKind == 'M';
        znCPointerMessage message(pPos, pId, down);
        message.mCaptureHolder = pHolder;
        const znCUniqueId& type = pKind == 'D'   ? znIInputManager::POINTER_DOWN
                                  : pKind == 'U' ? znIInputManager::POINTER_UP
                                                 : znIInputManager::POINTER_MOVE;
        return znIInputManager::instanceGet()->messageSend(type, &message);
    }
    static znIMessageListener* priorityGet() { return znIInputManager::instanceGet()->priorityListenerGet(); }
};

struct Case
{
    bool mTouch;
    s32 mKinds;
    const char* mScript;
    const char* mClaims;
    const char* mJournal;
};

TEST_F(znIGestureHandlingComponentTest, makesGesturesOfPointers)
{
    constexpr s32 TAP = Gesture::TAP;
    constexpr s32 DRAG = Gesture::DRAG;
    constexpr s32 TWO = Gesture::TWO;
    constexpr s32 LIT = Gesture::LIT;
    const Case cases[] = {
        // A button.
        {false, TAP, "D0 100 100 U0 100 100", "11", "lit; unlit; tap; "},
        {false, TAP, "D0 80 119 U0 119 80", "11", "lit; unlit; tap; "},
        {false, TAP, "D0 79 100 U0 100 100", "00", ""},
        {false, TAP, "D0 100 100 M0 200 100 U0 200 100", "111", "lit; unlit; "},
        {false, TAP, "D0 100 100 M0 200 100 M0 100 100 U0 100 100", "1111", "lit; unlit; lit; unlit; tap; "},
        {false, TAP, "D0 100 100 M0 200 100 U0 100 100", "111", "lit; unlit; tap; "}, // back between two frames
        {false, TAP, "D1 100 100 U1 100 100", "00", ""},                              // the right button
        {false, TAP, "D0 100 100 D1 200 200 U1 200 200 U0 100 100", "1001", "lit; unlit; tap; "},
        {true, TAP, "D0 100 100 D1 200 200 U1 200 200 U0 100 100", "1001", "lit; unlit; tap; "},
        // Hover.
        {false, TAP | LIT, "H 100 100 H 101 100 H 200 100 H 201 100", "1100", "lit; unlit; "},
        {false, TAP | LIT, "H 100 100 D0 100 100 U0 100 100", "111", "lit; unlit; tap; "},
        {false, TAP | LIT, "H 100 100 D0 300 300", "10", "lit; unlit; "}, // came without a move in between
        {false, TAP, "H 100 100 H 200 100", "00", "lit; "},               // shows nothing, captures nothing
        {true, TAP | LIT, "H 100 100", "0", ""},
        // A tap or a drag.
        {false, TAP | DRAG, "D0 100 100 M0 116 84 U0 116 100", "111", "lit; unlit; tap; "},
        {false, TAP | DRAG, "D0 100 100 M0 117 100 M0 150 90 U0 151 90", "1111",
         "lit; start 117,100; move 117,100; unlit; move 150,90; move 151,90; end 151,90; "},
        {false, TAP | DRAG, "D0 100 100 M0 100 83 U0 100 83", "111",
         "lit; start 100,83; move 100,83; unlit; move 100,83; end 100,83; "},
        {false, DRAG, "D0 100 101 U0 103 104", "11", "start 100,101; move 100,101; move 103,104; end 103,104; "},
        // Two fingers.
        {true, TAP | DRAG | TWO, "D0 90 100 D1 300 100 M1 305 100 U1 306 101 U0 90 100", "11111",
         "lit; two 90,100 300,100; twoMove1 5,0; twoMove1 1,1; twoEnd1; unlit; tap; "},
        {true, TAP | DRAG | TWO, "D0 90 100 D1 110 100 U0 90 100 M1 140 100 U1 140 100", "11111",
         "lit; two 90,100 110,100; twoMove0 0,0; twoEnd0; unlit; start 140,100; move 140,100; move 140,100; end "
         "140,100; "},
        // The drag ends where its finger is, not where the second one comes down.
        {true, TAP | DRAG | TWO, "D0 100 100 M0 120 100 D1 110 110 U1 110 110 U0 120 100", "11111",
         "lit; start 120,100; move 120,100; unlit; move 120,100; end 120,100; two 120,100 110,110; twoMove1 0,0; "
         "twoEnd1; "},
        {true, TAP | DRAG, "D0 100 100 D1 110 110 U0 100 100 U1 110 110", "1111", "lit; unlit; tap; "},
        {true, DRAG, "D0 100 100 D1 300 300 U0 100 100 U1 300 300", "1111",
         "start 100,100; move 100,100; move 100,100; end 100,100; "},
        {true, TWO, "D0 100 100 U0 100 100", "00", ""}, // one finger alone is nothing to it
        {true, TWO, "D1 100 100 M1 102 100 U1 102 100", "111",
         "two 0,0 100,100; twoMove1 2,0; twoMove1 0,0; twoEnd1; "}, // the first finger is elsewhere
    };
    for (const Case& c : cases)
    {
        deviceSet(c.mTouch);
        Thing thing = thingMake(c.mKinds);
        EXPECT_EQ(play(c.mScript), c.mClaims) << c.mScript;
        EXPECT_EQ(sJournal, c.mJournal) << c.mScript;
        EXPECT_EQ(priorityGet(), nullptr) << c.mScript;
        thing.mGesture->messagesDeregister();
        deviceEnd();
    }
    EXPECT_EQ(logTake(), "");
}

TEST_F(znIGestureHandlingComponentTest, dropsAGestureThatIsCancelled)
{
    deviceSet(false);
    Thing thing = thingMake(Gesture::TAP | Gesture::DRAG | Gesture::LIT);
    play("D0 100 100");
    thing.mGesture->gestureCancel();
    EXPECT_EQ(priorityGet(), nullptr);
    EXPECT_EQ(play("U0 100 100"), "0");
    play("D0 100 100");
    thing.mGesture->mEnabled = false;
    EXPECT_EQ(play("M0 150 100 U0 150 100"), "00");
    EXPECT_EQ(priorityGet(), nullptr);
    thing.mGesture->mEnabled = true;
    EXPECT_EQ(play("D0 100 100 U0 100 100"), "11");
    EXPECT_EQ(sJournal, "lit; unlit; lit; unlit; lit; unlit; tap; ");
    thing.mGesture->messagesDeregister();
    EXPECT_EQ(logTake(), "");
    deviceEnd();
}

TEST_F(znIGestureHandlingComponentTest, canGoInTheMiddleOfAGesture)
{
    for (const char* script : {"D0 100 100", "D0 100 100 D1 100 100 U0 100 100", "D0 100 100 D1 100 100 U1 100 100"})
    {
        deviceSet(true);
        Thing thing = thingMake(Gesture::DRAG | Gesture::TWO);
        play(script);
        thing.mGesture->messagesDeregister();
        thing.mGesture.reset();
        EXPECT_EQ(priorityGet(), nullptr);
        deviceEnd();
    }
    EXPECT_EQ(logTake(), "");
}

TEST_F(znIGestureHandlingComponentTest, takesOverAPressThatAnObjectGivesUp)
{
    deviceSet(true);
    Thing view = thingMake(Gesture::TAP | Gesture::DRAG | Gesture::TWO);
    Thing button = thingMake(Gesture::TAP);
    button.mEntity->posSet(500, 500);
    Thing closed = thingMake(Gesture::TAP | Gesture::DRAG | Gesture::TWO);
    closed.mEntity->activeSet(false);

    Holder holder;
    EXPECT_TRUE(send('D', 1, znPoint(110, 100), &holder));
    EXPECT_TRUE(holder.mStolen);
    EXPECT_EQ(priorityGet(), view.mGesture.get());
    EXPECT_EQ(sJournal, "two 0,0 110,100; ");
    // Both fingers are the view's: it takes the moves and releases of both.
    EXPECT_EQ(play("M0 90 100 U0 90 100 U1 110 100"), "111");
    EXPECT_EQ(priorityGet(), nullptr);
    // The ones that weren't asked have no finger left on them.
    closed.mEntity->activeSet(true);
    sJournal.clear();
    EXPECT_EQ(play("D0 100 100 U0 100 100"), "11");
    EXPECT_EQ(sJournal, "lit; unlit; tap; ");
    for (Thing* thing : {&view, &button, &closed})
        thing->mGesture->messagesDeregister();
    EXPECT_EQ(logTake(), "");
    deviceEnd();
}

TEST_F(znIGestureHandlingComponentTest, asksTheFrontFirst)
{
    deviceSet(false);
    Thing back = thingMake(Gesture::TAP);
    Thing front = thingMake(Gesture::DRAG);
    front.mEntity->posSet(120, 100);
    play("D0 110 100 U0 110 100");
    EXPECT_EQ(sJournal, "start 110,100; move 110,100; move 110,100; end 110,100; ");
    sJournal.clear();
    play("D0 90 100 U0 90 100");
    EXPECT_EQ(sJournal, "lit; unlit; tap; ");
    front.mGesture->messagesDeregister();
    back.mGesture->messagesDeregister();
    deviceEnd();
}

class DragEndEar : public znIMessageListener
{
public:
    DragEndEar() { messagesRegister(); }
    ~DragEndEar() override { messagesDeregister(); }
    void messagesRegister() override
    {
        znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCDragDropComponent::DRAG_END, this);
    }
    void messagesDeregister() override
    {
        znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCDragDropComponent::DRAG_END, this);
    }
    bool messageProcess(const znCUniqueId&, void* pData) override
    {
        EXPECT_NE(pData, nullptr);
        ++mCount;
        return true;
    }
    s32 mCount = 0;
};

// The parent stands at (100, 50), at double size.
TEST_F(znIGestureHandlingComponentTest, dragsAnEntityAlong)
{
    deviceSet(false);
    {
        DragEndEar ear;
        znINode parent("parent");
        parent.posSet(100, 50);
        parent.scaleSet(2.0f);
        znCEntity* entity = znCDragDropComponent::entityCreate("lamp", brushGet("full.png", true), znPoint(5, 6));
        EXPECT_EQ(entity->posGet(), znPoint(5, 6));
        // Picked up with the pointer down already.
        entity->componentGet<znCDragDropComponent>()->dragStart(znPoint(110, 62), 0);
        parent.childAdd(entity);
        EXPECT_EQ(play("M0 140 90"), "1");
        EXPECT_EQ(entity->posGet(), znPoint(20, 20));
        EXPECT_EQ(ear.mCount, 0);
        EXPECT_EQ(play("U0 160 100"), "1");
        EXPECT_EQ(entity->posGet(), znPoint(30, 25));
        EXPECT_EQ(ear.mCount, 1);
        EXPECT_EQ(play("D0 150 100 U0 120 70"), "11"); // by its own press
        EXPECT_EQ(entity->posGet(), znPoint(10, 10));
        EXPECT_EQ(ear.mCount, 2);
    }
    EXPECT_EQ(logTake(), "");
    deviceEnd();
}
} // namespace
