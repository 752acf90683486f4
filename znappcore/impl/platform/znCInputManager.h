#ifndef ZNAPPCORE_IMPL_PLATFORM_ZNCINPUTMANAGER_H
#define ZNAPPCORE_IMPL_PLATFORM_ZNCINPUTMANAGER_H

// The half of the input manager that speaks to the platform loader. Its callbacks run only while the platform loop
// yields or polls, on the one thread.

#include "znappcore/znIInputManager.h"
#include "zncore/impl/platform/s3e.h"

class znCInputManager : public znIInputManager
{
public:
    s32 pointerTypeGet() override; // an unknown type logs "Unhandled pointer type.\n" and counts as a mouse
    bool hardKeyboardHas() override;
    std::string stringInputGet(const std::string& pPrompt, const std::string& pDefault, s32 pMaxLength) override;
    void platformRegister() override;
    void platformDeregister() override;

private:
    // The user data is the manager. Events of ids out of range are dropped.
    static s32 buttonEventHandle(void* pSystemData, void* pUserData);
    static s32 motionEventHandle(void* pSystemData, void* pUserData);
    static s32 touchEventHandle(void* pSystemData, void* pUserData);
    static s32 touchMotionEventHandle(void* pSystemData, void* pUserData);
    static s32 charEventHandle(void* pSystemData, void* pUserData);
    static s32 keyEventHandle(void* pSystemData, void* pUserData); // Alt with Enter: full screen or window

    void pointStateSet(s32 pId, s32 pX, s32 pY, bool pDown);
    void pointPosSet(s32 pId, s32 pX, s32 pY);
    void navigationKeyNote(s32 pKey);
};

#endif
