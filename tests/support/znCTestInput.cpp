#include "tests/support/znCTestInput.h"
#include <algorithm>
#include <utility>

s3eResult znCTestInput::Callbacks::add(s32 pEvent, s3eCallback pCallback, void* pUserData)
{
    mEntries.push_back({pEvent, pCallback, pUserData});
    return S3E_RESULT_SUCCESS;
}

s3eResult znCTestInput::Callbacks::remove(s32 pEvent, s3eCallback pCallback)
{
    const auto found =
        std::find_if(mEntries.begin(), mEntries.end(),
                     [&](const Entry& pEntry) { return pEntry.mEvent == pEvent && pEntry.mCallback == pCallback; });
    if (found == mEntries.end())
        return S3E_RESULT_ERROR;
    mEntries.erase(found);
    return S3E_RESULT_SUCCESS;
}

// By position, since a callback may register and deregister.
s32 znCTestInput::Callbacks::send(s32 pEvent, void* pData) const
{
    s32 result = 0;
    for (std::size_t i = 0; i < mEntries.size(); ++i)
        if (mEntries[i].mEvent == pEvent)
            result = mEntries[i].mCallback(pData, mEntries[i].mUserData);
    return result;
}

void znCTestInput::keyQueue(s32 pKey, bool pDown)
{
    mKeyQueue.push_back(s3eKeyboardEvent{pKey, pDown});
}

void znCTestInput::charQueue(u16 pUnit)
{
    mKeyQueue.push_back(s3eKeyboardCharEvent{pUnit});
}

void znCTestInput::textQueue(const std::string& pAscii)
{
    for (const char letter : pAscii)
        charQueue(static_cast<u8>(letter));
}

void znCTestInput::buttonQueue(s32 pButton, bool pDown, s32 pX, s32 pY)
{
    mPointerQueue.push_back(s3ePointerEvent{pButton, pDown, pX, pY});
}

void znCTestInput::motionQueue(s32 pX, s32 pY)
{
    mPointerQueue.push_back(s3ePointerMotionEvent{pX, pY});
}

void znCTestInput::touchQueue(s32 pId, bool pDown, s32 pX, s32 pY)
{
    mPointerQueue.push_back(s3ePointerTouchEvent{pId, pDown, pX, pY});
}

void znCTestInput::touchMotionQueue(s32 pId, s32 pX, s32 pY)
{
    mPointerQueue.push_back(s3ePointerTouchMotionEvent{pId, pX, pY});
}

void znCTestInput::yield()
{
    for (const s32 event : std::exchange(mDeviceQueue, {}))
        mDevice.send(event, nullptr);
}

void znCTestInput::keyboardUpdate()
{
    for (KeyEvent& event : std::exchange(mKeyQueue, {}))
    {
        if (s3eKeyboardEvent* key = std::get_if<s3eKeyboardEvent>(&event))
        {
            if (key->mPressed != 0)
                mKeysDown.insert(key->mKey);
            else
                mKeysDown.erase(key->mKey);
            mKeyboard.send(S3E_KEYBOARD_KEY_EVENT, key);
        }
        else if (mCharEvents)
            mKeyboard.send(S3E_KEYBOARD_CHAR_EVENT, std::get_if<s3eKeyboardCharEvent>(&event));
    }
}

void znCTestInput::pointerUpdate()
{
    static constexpr s32 EVENTS[] = {S3E_POINTER_BUTTON_EVENT, S3E_POINTER_MOTION_EVENT, S3E_POINTER_TOUCH_EVENT,
                                     S3E_POINTER_TOUCH_MOTION_EVENT};
    for (PointerEvent& event : std::exchange(mPointerQueue, {}))
        std::visit([&](auto& pData) { mPointer.send(EVENTS[event.index()], &pData); }, event);
}
