#include "loader/znCInputQueue.h"
#include "loader/znCCallbackTable.h"
#include "loader/znCTouchIds.h"
#include "loader/znCView.h"
#include "zncore/impl/platform/s3e.h"

#include <gtest/gtest.h>

using Kind = znCInputEvent::Kind;

namespace
{
// A change is written as a letter and a number, upper case pressed: K key, B button, T finger; m and f a motion of
// mouse and first finger, s a suspension, q quit.
znCInputEvent eventOf(char pLetter, s32 pId)
{
    const bool pressed = std::isupper(static_cast<unsigned char>(pLetter)) != 0;
    switch (std::tolower(static_cast<unsigned char>(pLetter)))
    {
    case 'k':
        return {Kind::KEY, pId, pressed, 0, 0};
    case 'b':
        return {Kind::BUTTON, pId, pressed, pId, 0};
    case 't':
        return {Kind::TOUCH, pId, pressed, pId, 0};
    case 'm':
        return {Kind::MOTION, 0, false, pId, 0};
    case 'f':
        return {Kind::TOUCH_MOTION, 0, false, pId, 0};
    case 's':
        return {.mKind = Kind::SUSPEND};
    default:
        return {.mKind = Kind::QUIT};
    }
}

std::string textOf(const znCInputEvent& pEvent)
{
    const char letters[] = {'k', 'c', 'b', 'm', 't', 'f', 'i', 's', 'r', 'q'};
    const char letter = letters[static_cast<size_t>(pEvent.mKind)];
    const bool motion = pEvent.mKind == Kind::MOTION || pEvent.mKind == Kind::TOUCH_MOTION;
    return static_cast<char>(pEvent.mPressed ? std::toupper(letter) : letter) +
           std::to_string(motion ? pEvent.mX : pEvent.mId);
}

// What becomes of events that all arrive before one frame, "|" between frames.
std::string framesOf(const std::string& pEvents)
{
    znCInputQueue queue;
    for (size_t i = 0; i + 1 < pEvents.size(); i += 2)
        queue.eventAdd(eventOf(pEvents[i], pEvents[i + 1] - '0'));
    std::string text;
    std::vector<znCInputEvent> events;
    for (queue.frameTake(events); !events.empty(); queue.frameTake(events))
    {
        for (const znCInputEvent& event : events)
            text += textOf(event);
        text += "|";
    }
    return text;
}
} // namespace

TEST(znCInputQueueTest, NoChangeIsLostInAFrame)
{
    const std::pair<const char*, const char*> cases[] = {
        {"m1m2B0", "m1m2B0|"},         // a move comes with its press
        {"B0b0", "B0|b0|"},            // a quick click
        {"B0b0B0b0", "B0|b0|B0|b0|"},  // and a double one
        {"B0B1b0b1", "B0B1|b0b1|"},    // two buttons
        {"B0m1m2b0", "B0|m1m2b0|"},    // a drag starts where the press was
        {"T0f3t0T0", "T0|f3t0|T0|"},   // fingers alike
        {"T0T1f5t1", "T0T1|f5t1|"},    //
        {"T1f5", "T1f5|"},             // another finger's motion
        {"K4k4q0", "K4|k4q0|"},        // what comes later stays behind
        {"K4K4k4", "K4|k4|"},          // no repeats
        {"k4b0t0m1", "m1|"},           // no releases of what is up
        {"K9B0s0k9b0", "K9B0k9b0s0|"}, // a suspension lets everything go
    };
    for (const auto& [events, expected] : cases)
        EXPECT_EQ(framesOf(events), expected) << events;
}

TEST(znCInputQueueTest, ASuspensionReleasesWhereThePointerIs)
{
    znCInputQueue queue;
    std::vector<znCInputEvent> events;
    queue.eventAdd({Kind::BUTTON, 0, true, 5, 6});
    queue.frameTake(events);
    queue.eventAdd({.mKind = Kind::MOTION, .mX = 30, .mY = 40});
    queue.frameTake(events);
    queue.eventAdd({.mKind = Kind::SUSPEND});
    queue.frameTake(events);
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0], (znCInputEvent{Kind::BUTTON, 0, false, 30, 40}));
}

TEST(znCInputQueueTest, EnterAndBackspaceTypeUnlessAltIsHeld)
{
    const auto charactersOf = [](const std::vector<s32>& pKeys)
    {
        znCInputQueue queue;
        std::string text;
        std::vector<znCInputEvent> events;
        for (s32 key : pKeys)
            queue.keyAdd(std::abs(key), key > 0);
        for (queue.frameTake(events); !events.empty(); queue.frameTake(events))
            for (const znCInputEvent& event : events)
                text += event.mKind == Kind::CHARACTER ? std::to_string(event.mId) + " " : "";
        return text;
    };
    EXPECT_EQ(charactersOf({4, -4, 3, -3}), "13 8 ");
    EXPECT_EQ(charactersOf({99, 4, -4, -99, 4}), "13 ");
}

TEST(znCTouchIdsTest, TheLowestFreeNumberIsTaken)
{
    znCTouchIds ids;
    EXPECT_EQ(ids.idTake(700), 0);
    EXPECT_EQ(ids.idTake(-1), 1);
    EXPECT_EQ(ids.idTake(700), 0);
    EXPECT_EQ(ids.idRelease(700), 0);
    EXPECT_EQ(ids.idFind(700), -1);
    EXPECT_EQ(ids.idTake(900), 0);
    for (s64 finger = 1; finger <= 8; ++finger)
        EXPECT_EQ(ids.idTake(finger), finger + 1);
    EXPECT_EQ(ids.idTake(50), -1);
    EXPECT_EQ(ids.idRelease(50), -1);
}

TEST(znCViewTest, TheSurfaceFitsWithBarsAndPositionsComeBack)
{
    const struct
    {
        s32 mWindowWidth, mWindowHeight;
        znCView mView;
    } cases[] = {
        {800, 600, {0, 0, 800, 600}},   {1600, 1200, {0, 0, 1600, 1200}}, {1000, 600, {100, 0, 800, 600}},
        {800, 800, {0, 100, 800, 600}}, {400, 600, {0, 150, 400, 300}},
    };
    for (const auto& [width, height, expected] : cases)
    {
        const znCView view = znCView::fit(800, 600, width, height);
        EXPECT_EQ(view.mX, expected.mX) << width;
        EXPECT_EQ(view.mY, expected.mY) << width;
        EXPECT_EQ(view.mWidth, expected.mWidth) << width;
        EXPECT_EQ(view.mHeight, expected.mHeight) << width;
        s32 x = view.mX + view.mWidth / 2;
        s32 y = view.mY + view.mHeight / 2;
        view.toSurface(800, 600, x, y);
        EXPECT_EQ(x, 400);
        EXPECT_EQ(y, 300);
        x = -50;
        y = height + 50;
        EXPECT_FALSE(view.holds(x, y));
        view.toSurface(800, 600, x, y);
        EXPECT_EQ(x, 0);
        EXPECT_EQ(y, 599);
    }
}

namespace
{
znCCallbackTable* sTable = nullptr;
std::string sCalls;

s32 otherCb(void*, void*)
{
    sCalls += "other ";
    return 0;
}

s32 leavingCb(void*, void* pUserData)
{
    sCalls += static_cast<const char*>(pUserData);
    sTable->callbackUnRegister(1, leavingCb);
    sTable->callbackUnRegister(1, otherCb);
    sTable->callbackRegister(1, otherCb, nullptr);
    return 0;
}
} // namespace

TEST(znCCallbackTableTest, CallbacksMayLeaveAndJoinWhileTheyRun)
{
    znCCallbackTable table;
    sTable = &table;
    sCalls.clear();
    char first[] = "old ";
    char second[] = "leaving ";
    EXPECT_EQ(table.callbackRegister(1, nullptr, nullptr), S3E_RESULT_ERROR);
    table.callbackRegister(1, leavingCb, first);
    table.callbackRegister(1, leavingCb, second);
    table.callbackRegister(1, otherCb, nullptr);
    table.callbacksCall(2, nullptr);
    EXPECT_EQ(sCalls, "");
    table.callbacksCall(1, nullptr);
    EXPECT_EQ(sCalls, "leaving ");
    table.callbacksCall(1, nullptr);
    EXPECT_EQ(sCalls, "leaving other ");
    EXPECT_EQ(table.callbackUnRegister(1, leavingCb), S3E_RESULT_ERROR);
}
