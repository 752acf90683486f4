#include "znappcore/impl/platform/znCPlatformLoop.h"

#include "znappcore/src/znCAppCoreMain.h"
#include "znappcore/src/znCSoftwareCursor.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "zncore/impl/platform/s3e.h"

znCPlatformLoop::znCPlatformLoop() : mPrevious(s3eTimerGetMs())
{
    s3eDeviceRegister(S3E_DEVICE_SUSPEND, suspendCb, this);
    s3eDeviceRegister(S3E_DEVICE_RESUME, resumeCb, this);
}

znCPlatformLoop::~znCPlatformLoop()
{
    s3eDeviceUnRegister(S3E_DEVICE_SUSPEND, suspendCb);
    s3eDeviceUnRegister(S3E_DEVICE_RESUME, resumeCb);
}

bool znCPlatformLoop::step()
{
    s3eDeviceYield(0);
    s3eKeyboardUpdate();
    s3ePointerUpdate();
    if (mPausedAt != 0)
        return false;
    const u64 now = s3eTimerGetMs();
    bool quit = quitRequestedGet();
    if (!quit)
        quit = znCAppCoreMain::instanceGet()->frameUpdate(static_cast<s32>(now - mPausedLength - mPrevious));
    mPausedLength = 0;
    mPrevious = now;
    return quit;
}

bool znCPlatformLoop::quitRequestedGet() const
{
    const auto keyDown = [](s32 pKey)
    {
        return (s3eKeyboardGetState(pKey) & S3E_KEY_STATE_DOWN) != 0;
    };
    return s3eDeviceCheckQuitRequest() != 0 || keyDown(S3E_KEY_BACK) || (keyDown(S3E_KEY_ALT) && keyDown(S3E_KEY_F4));
}

s32 znCPlatformLoop::suspendCb(void*, void* pUserData)
{
    static_cast<znCPlatformLoop*>(pUserData)->suspend();
    return 0;
}

s32 znCPlatformLoop::resumeCb(void*, void* pUserData)
{
    static_cast<znCPlatformLoop*>(pUserData)->resume();
    return 0;
}

void znCPlatformLoop::suspend()
{
    mPausedAt = s3eTimerGetMs();
    znIAudioManager::instanceGet()->pause();
    znCAppCoreMain::instanceGet()->suspend();
}

void znCPlatformLoop::resume()
{
    if (mPausedAt != 0)
        mPausedLength = s3eTimerGetMs() - mPausedAt;
    mPausedAt = 0;
    znIAudioManager::instanceGet()->resume();
    // The system may have taken the window out of its mode meanwhile.
    const znCUserSavedData* user = znCUserSavedData::instanceGet();
    znIDisplay::instanceGet()->screenModeSet(user->fullScreenGet());
    znCSoftwareCursor::enabledSet(user->customCursorsGet());
}
