#include "loader/znCPointer.h"

s32 znCPointer::intGet(s32 pProperty) const
{
    if (pProperty == S3E_POINTER_TYPE)
        return mTouch ? S3E_POINTER_TYPE_STYLUS : S3E_POINTER_TYPE_MOUSE;
    return pProperty == S3E_POINTER_MULTI_TOUCH_AVAILABLE && mTouch;
}

void znCPointer::eventApply(const znCInputEvent& pEvent)
{
    s3ePointerEvent button = {pEvent.mId, pEvent.mPressed, pEvent.mX, pEvent.mY};
    s3ePointerMotionEvent motion = {pEvent.mX, pEvent.mY};
    s3ePointerTouchEvent touch = {pEvent.mId, pEvent.mPressed, pEvent.mX, pEvent.mY};
    s3ePointerTouchMotionEvent touchMotion = {pEvent.mId, pEvent.mX, pEvent.mY};
    switch (pEvent.mKind)
    {
    case znCInputEvent::Kind::BUTTON:
        return mCallbacks.callbacksCall(S3E_POINTER_BUTTON_EVENT, &button);
    case znCInputEvent::Kind::MOTION:
        return mCallbacks.callbacksCall(S3E_POINTER_MOTION_EVENT, &motion);
    case znCInputEvent::Kind::TOUCH:
        return mCallbacks.callbacksCall(S3E_POINTER_TOUCH_EVENT, &touch);
    case znCInputEvent::Kind::TOUCH_MOTION:
        return mCallbacks.callbacksCall(S3E_POINTER_TOUCH_MOTION_EVENT, &touchMotion);
    case znCInputEvent::Kind::CLIENT_AREA:
        mInClientArea = pEvent.mPressed;
        return;
    default:
        return;
    }
}
