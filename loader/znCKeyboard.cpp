#include "loader/znCKeyboard.h"

s32 znCKeyboard::stateGet(s32 pKey) const
{
    const bool known = pKey >= 0 && static_cast<size_t>(pKey) < mDown.size();
    return known && mDown[static_cast<size_t>(pKey)] ? S3E_KEY_STATE_DOWN : 0;
}

s32 znCKeyboard::intGet(s32 pProperty) const
{
    if (pProperty == S3E_KEYBOARD_HAS_ALPHA)
        return mHasAlpha;
    return pProperty == S3E_KEYBOARD_GET_CHAR && mCharactersOn;
}

s3eResult znCKeyboard::intSet(s32 pProperty, s32 pValue)
{
    if (pProperty != S3E_KEYBOARD_GET_CHAR)
        return S3E_RESULT_ERROR;
    mCharactersOn = pValue != 0;
    return S3E_RESULT_SUCCESS;
}

void znCKeyboard::keyApply(const znCInputEvent& pEvent)
{
    if (pEvent.mId < 0 || static_cast<size_t>(pEvent.mId) >= mDown.size())
        return;
    mDown[static_cast<size_t>(pEvent.mId)] = pEvent.mPressed;
    s3eKeyboardEvent data = {pEvent.mId, pEvent.mPressed};
    mCallbacks.callbacksCall(S3E_KEYBOARD_KEY_EVENT, &data);
}

void znCKeyboard::characterApply(const znCInputEvent& pEvent)
{
    if (!mCharactersOn)
        return;
    s3eKeyboardCharEvent data = {static_cast<u16>(pEvent.mId)};
    mCallbacks.callbacksCall(S3E_KEYBOARD_CHAR_EVENT, &data);
}
