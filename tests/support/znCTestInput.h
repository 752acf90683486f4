#ifndef TESTS_SUPPORT_ZNCTESTINPUT_H
#define TESTS_SUPPORT_ZNCTESTINPUT_H

// The platform's device, keyboard and pointer events. What a test queues is delivered to the registered callbacks, in
// the order of queueing, by the next s3eDeviceYield (device events), s3eKeyboardUpdate (keys and characters) or
// s3ePointerUpdate (mouse and touch). Callbacks of one event run in the order of their registering.

#include "zncore/impl/platform/s3e.h"
#include <set>
#include <string>
#include <variant>
#include <vector>

class znCTestInput
{
public:
    // One family of events: device, debug, keyboard or pointer.
    class Callbacks
    {
    public:
        s3eResult add(s32 pEvent, s3eCallback pCallback, void* pUserData);
        s3eResult remove(s32 pEvent, s3eCallback pCallback); // an error if it isn't registered
        s32 send(s32 pEvent, void* pData) const;             // the last callback's result, 0 without one
        s32 countGet() const { return static_cast<s32>(mEntries.size()); }

    private:
        struct Entry
        {
            s32 mEvent;
            s3eCallback mCallback;
            void* mUserData;
        };
        std::vector<Entry> mEntries;
    };

    // --- for the test ---
    void deviceEventQueue(s32 pEvent) { mDeviceQueue.push_back(pEvent); } // S3E_DEVICE_SUSPEND, S3E_DEVICE_RESUME
    void keyQueue(s32 pKey, bool pDown);
    void charQueue(u16 pUnit); // lost while character events are off, as on the real platform
    void textQueue(const std::string& pAscii);
    void buttonQueue(s32 pButton, bool pDown, s32 pX, s32 pY);
    void motionQueue(s32 pX, s32 pY);
    void touchQueue(s32 pId, bool pDown, s32 pX, s32 pY);
    void touchMotionQueue(s32 pId, s32 pX, s32 pY);

    bool mQuitRequested = false;
    bool mAlphaKeyboard = true;
    bool mCharEvents = false; // what s3eKeyboardSetInt was given
    s32 mPointerType = S3E_POINTER_TYPE_MOUSE;
    bool mMultiTouch = false;

    Callbacks mDevice;
    Callbacks mDebug; // a test sends S3E_DEBUG_ASSERT with mDebug.send
    Callbacks mKeyboard;
    Callbacks mPointer;

    // --- for the table ---
    void yield();
    void keyboardUpdate();
    void pointerUpdate();
    s32 keyStateGet(s32 pKey) const { return mKeysDown.count(pKey) != 0 ? S3E_KEY_STATE_DOWN : 0; }

private:
    using KeyEvent = std::variant<s3eKeyboardEvent, s3eKeyboardCharEvent>;
    using PointerEvent =
        std::variant<s3ePointerEvent, s3ePointerMotionEvent, s3ePointerTouchEvent, s3ePointerTouchMotionEvent>;

    std::vector<s32> mDeviceQueue;
    std::vector<KeyEvent> mKeyQueue;
    std::vector<PointerEvent> mPointerQueue;
    std::set<s32> mKeysDown;
};

#endif
