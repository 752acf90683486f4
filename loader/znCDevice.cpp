#include "loader/znCDevice.h"

void znCDevice::suspend()
{
    if (mSuspended)
        return;
    mSuspended = true;
    mCallbacks.callbacksCall(S3E_DEVICE_SUSPEND, nullptr);
}

void znCDevice::resume()
{
    if (!mSuspended)
        return;
    mSuspended = false;
    mCallbacks.callbacksCall(S3E_DEVICE_RESUME, nullptr);
}

void znCDevice::quitRequest()
{
    resume();
    mQuitRequested = true;
}
