#include "znappcore/impl/platform/znCInputManager.h"

#include "znappcore/znIDisplay.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znStr.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{
// Mouse buttons count as input points of their own, hence two of them.
constexpr s32 INPUT_POINTS_OF_POINTER_TYPE[] = {2, 1, 10};

constexpr std::pair<s32, s32> NAVIGATION_KEYS[] = {
    {S3E_KEY_ESCAPE, znIInputManager::KEY_ESCAPE}, {S3E_KEY_ENTER, znIInputManager::KEY_ENTER},
    {S3E_KEY_SPACE, znIInputManager::KEY_SPACE},   {S3E_KEY_TAB, znIInputManager::KEY_TAB},
    {S3E_KEY_LEFT, znIInputManager::KEY_LEFT},     {S3E_KEY_RIGHT, znIInputManager::KEY_RIGHT},
    {S3E_KEY_UP, znIInputManager::KEY_UP_ARROW},   {S3E_KEY_DOWN, znIInputManager::KEY_DOWN_ARROW},
};

bool keyDownGet(s32 pKey)
{
    return (s3eKeyboardGetState(pKey) & S3E_KEY_STATE_DOWN) != 0;
}

znCInputManager& managerGet(void* pUserData)
{
    return *static_cast<znCInputManager*>(pUserData);
}
} // namespace

s32 znCInputManager::pointerTypeGet()
{
    switch (s3ePointerGetInt(S3E_POINTER_TYPE))
    {
    case S3E_POINTER_TYPE_MOUSE:
        return POINTER_TYPE_MOUSE;
    case S3E_POINTER_TYPE_STYLUS:
        return s3ePointerGetInt(S3E_POINTER_MULTI_TOUCH_AVAILABLE) != 0 ? POINTER_TYPE_MULTI_TOUCH : POINTER_TYPE_TOUCH;
    default:
        ZN_ASSERT(false, "Unhandled pointer type.\n");
        return POINTER_TYPE_MOUSE;
    }
}

bool znCInputManager::hardKeyboardHas()
{
    return s3eKeyboardGetInt(S3E_KEYBOARD_HAS_ALPHA) != 0;
}

std::string znCInputManager::stringInputGet(const std::string& pPrompt, const std::string& pDefault, s32 pMaxLength)
{
    const char* answer = s3eOSReadString(pPrompt.c_str(), pDefault.c_str());
    if (answer == nullptr)
        return pDefault;
    znStr text = std::string(answer);
    text.erase(std::remove(text.begin(), text.end(), '\n'), text.end());
    text.truncate(pMaxLength);
    return text;
}

void znCInputManager::platformRegister()
{
    s3ePointerRegister(S3E_POINTER_BUTTON_EVENT, buttonEventHandle, this);
    s3ePointerRegister(S3E_POINTER_MOTION_EVENT, motionEventHandle, this);
    s3ePointerRegister(S3E_POINTER_TOUCH_EVENT, touchEventHandle, this);
    s3ePointerRegister(S3E_POINTER_TOUCH_MOTION_EVENT, touchMotionEventHandle, this);
    mMaxInputPoints = INPUT_POINTS_OF_POINTER_TYPE[pointerTypeGet()];
    s3eKeyboardRegister(S3E_KEYBOARD_KEY_EVENT, keyEventHandle, this);
    s3eKeyboardSetInt(S3E_KEYBOARD_GET_CHAR, 1);
    s3eKeyboardRegister(S3E_KEYBOARD_CHAR_EVENT, charEventHandle, this);
}

void znCInputManager::platformDeregister()
{
    s3ePointerUnRegister(S3E_POINTER_BUTTON_EVENT, buttonEventHandle);
    s3ePointerUnRegister(S3E_POINTER_MOTION_EVENT, motionEventHandle);
    s3ePointerUnRegister(S3E_POINTER_TOUCH_EVENT, touchEventHandle);
    s3ePointerUnRegister(S3E_POINTER_TOUCH_MOTION_EVENT, touchMotionEventHandle);
    s3eKeyboardUnRegister(S3E_KEYBOARD_KEY_EVENT, keyEventHandle);
    s3eKeyboardUnRegister(S3E_KEYBOARD_CHAR_EVENT, charEventHandle);
}

s32 znCInputManager::buttonEventHandle(void* pSystemData, void* pUserData)
{
    const auto& event = *static_cast<s3ePointerEvent*>(pSystemData);
    managerGet(pUserData).pointStateSet(event.mButton, event.mX, event.mY, event.mPressed != 0);
    return 0;
}

s32 znCInputManager::motionEventHandle(void* pSystemData, void* pUserData)
{
    const auto& event = *static_cast<s3ePointerMotionEvent*>(pSystemData);
    managerGet(pUserData).pointPosSet(0, event.mX, event.mY);
    return 0;
}

s32 znCInputManager::touchEventHandle(void* pSystemData, void* pUserData)
{
    const auto& event = *static_cast<s3ePointerTouchEvent*>(pSystemData);
    managerGet(pUserData).pointStateSet(event.mTouchId, event.mX, event.mY, event.mPressed != 0);
    return 0;
}

s32 znCInputManager::touchMotionEventHandle(void* pSystemData, void* pUserData)
{
    const auto& event = *static_cast<s3ePointerTouchMotionEvent*>(pSystemData);
    managerGet(pUserData).pointPosSet(event.mTouchId, event.mX, event.mY);
    return 0;
}

s32 znCInputManager::charEventHandle(void* pSystemData, void* pUserData)
{
    managerGet(pUserData).mTypedChars.push_back(static_cast<s3eKeyboardCharEvent*>(pSystemData)->mChar);
    return 0;
}

s32 znCInputManager::keyEventHandle(void* pSystemData, void* pUserData)
{
    const auto& event = *static_cast<s3eKeyboardEvent*>(pSystemData);
    if (event.mPressed == 0)
        return 0;
    if (!keyDownGet(S3E_KEY_ALT))
        managerGet(pUserData).navigationKeyNote(event.mKey);
    else if (event.mKey == S3E_KEY_ENTER && znIDisplay::existsGet())
        znIDisplay::instanceGet()->fullScreenToggle();
    return 0;
}

void znCInputManager::navigationKeyNote(s32 pKey)
{
    if (pKey == S3E_KEY_TAB && keyDownGet(S3E_KEY_SHIFT))
        mNavigationKeys.push_back(KEY_TAB_BACK);
    else if (const auto* key = std::find_if(std::begin(NAVIGATION_KEYS), std::end(NAVIGATION_KEYS),
                                            [pKey](const auto& pPair) { return pPair.first == pKey; });
             key != std::end(NAVIGATION_KEYS))
        mNavigationKeys.push_back(key->second);
}

void znCInputManager::pointStateSet(s32 pId, s32 pX, s32 pY, bool pDown)
{
    if (znCInputPoint* point = inputPointGet(pId))
        point->stateSet(znPoint(pX, pY), pDown);
}

void znCInputManager::pointPosSet(s32 pId, s32 pX, s32 pY)
{
    if (znCInputPoint* point = inputPointGet(pId))
        point->posSet(znPoint(pX, pY));
}
