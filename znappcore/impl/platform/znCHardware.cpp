#include "znappcore/impl/platform/znCHardware.h"

#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znIInputManager.h"

znCHardware::znCHardware()
{
    mWindowBound = s3eExtGetHash(S3E_WINDOW_HASH, &mWindow, sizeof mWindow) == S3E_RESULT_SUCCESS;
    if (s3eExtGetHash(S3E_MOUSE_HASH, &mMouse, sizeof mMouse) != S3E_RESULT_SUCCESS)
        mMouse = {};
}

void znCHardware::urlOpen(const std::string& pUrl)
{
    s3eOSExec(pUrl.c_str(), 0);
}

void znCHardware::systemCursorVisibleSet(bool pVisible)
{
    const s32 visible = pVisible ? 1 : 0;
    if (mMouse.cursorVisibleSet != nullptr && mMouse.cursorVisibleSet(visible) != 0)
        return;
    if (mWindowBound)
        mWindow.intSet(S3E_WINDOW_SYSTEM_CURSOR, visible);
}

bool znCHardware::isDesktopGet()
{
    return mWindowBound;
}

void znCHardware::clientAreaPoll()
{
    const bool inClient = mMouse.inClientAreaGet != nullptr && mMouse.inClientAreaGet() != 0;
    if (inClient == mInClient)
        return;
    mInClient = inClient;
    if (znIInputManager* input = znIInputManager::instanceGet())
        input->messageSend(inClient ? znIInputManager::ENTER_CLIENT : znIInputManager::LEAVE_CLIENT,
                           znCEmptyMessageData::sharedGet());
}
