// A module that shows what the loader does: it writes all that it is told to "ram://log.txt" and draws a square where
// the pointer is. Its arguments:
//   ask          a press asks for a text
//   fail         its result is 7
//   size=WxH     asks for a window of that size
//   full         goes to full screen, in the last mode of the list
//   url=URL      opens it at the start
//   music=NAME   plays the track of that file
//   sound=NAME   plays the sample of that file
//   save         saves "ram://save.txt" anew each frame

#include "zncore/impl/platform/s3e.h"
#include "zncore/impl/platform/s3eExtensions.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#define TEST_EXPORT extern "C" __attribute__((visibility("default")))

#ifndef TEST_MODULE_MINOR
#define TEST_MODULE_MINOR 37
#endif

namespace
{
struct State
{
    s3eFile* mLog = nullptr;
    s3eDraw mDraw = {};
    s3eSound mSound = {};
    s32 mX = 0;
    s32 mY = 0;
    bool mAsks = false;
    bool mSuspended = false;
};

State sState;

__attribute__((format(printf, 1, 2))) void logWrite(const char* pFormat, ...)
{
    char line[512];
    va_list arguments;
    va_start(arguments, pFormat);
    const int length = std::vsnprintf(line, sizeof(line), pFormat, arguments);
    va_end(arguments);
    s3eFileWrite(line, static_cast<u32>(length), sState.mLog);
    s3eFileWrite("\n", 1, sState.mLog);
}

s32 keyCb(void* pData, void*)
{
    const auto* data = static_cast<s3eKeyboardEvent*>(pData);
    logWrite("key %d %d state %d", data->mKey, data->mPressed, s3eKeyboardGetState(data->mKey));
    return 0;
}

s32 charCb(void* pData, void*)
{
    logWrite("char %d", static_cast<s3eKeyboardCharEvent*>(pData)->mChar);
    return 0;
}

void pointerMove(s32 pX, s32 pY)
{
    sState.mX = pX;
    sState.mY = pY;
}

void press(bool pPressed)
{
    if (!sState.mAsks || !pPressed)
        return;
    const char* answer = s3eOSReadString("Your name", "Purser");
    logWrite("answer %s", answer == nullptr ? "(none)" : answer);
}

s32 buttonCb(void* pData, void*)
{
    const auto* data = static_cast<s3ePointerEvent*>(pData);
    logWrite("button %d %d at %d %d", data->mButton, data->mPressed, data->mX, data->mY);
    pointerMove(data->mX, data->mY);
    press(data->mPressed != 0);
    return 0;
}

s32 motionCb(void* pData, void*)
{
    const auto* data = static_cast<s3ePointerMotionEvent*>(pData);
    logWrite("motion %d %d", data->mX, data->mY);
    pointerMove(data->mX, data->mY);
    return 0;
}

s32 touchCb(void* pData, void*)
{
    const auto* data = static_cast<s3ePointerTouchEvent*>(pData);
    logWrite("touch %d %d at %d %d", data->mTouchId, data->mPressed, data->mX, data->mY);
    pointerMove(data->mX, data->mY);
    press(data->mPressed != 0);
    return 0;
}

s32 touchMotionCb(void* pData, void*)
{
    const auto* data = static_cast<s3ePointerTouchMotionEvent*>(pData);
    logWrite("touch motion %d %d %d", data->mTouchId, data->mX, data->mY);
    pointerMove(data->mX, data->mY);
    return 0;
}

s32 suspendCb(void*, void*)
{
    logWrite("suspend");
    sState.mSuspended = true;
    return 0;
}

s32 resumeCb(void*, void*)
{
    logWrite("resume");
    sState.mSuspended = false;
    return 0;
}

std::vector<std::string> argumentsGet()
{
    std::vector<std::string> arguments;
    char value[S3E_CONFIG_STRING_MAX];
    for (int i = 1; s3eConfigGetString("commandline", ("argv[" + std::to_string(i) + "]").c_str(), value) == 0; ++i)
        arguments.emplace_back(value);
    return arguments;
}

void callbacksRegister()
{
    s3eDeviceRegister(S3E_DEVICE_SUSPEND, suspendCb, nullptr);
    s3eDeviceRegister(S3E_DEVICE_RESUME, resumeCb, nullptr);
    s3eKeyboardRegister(S3E_KEYBOARD_KEY_EVENT, keyCb, nullptr);
    s3eKeyboardRegister(S3E_KEYBOARD_CHAR_EVENT, charCb, nullptr);
    s3eKeyboardSetInt(S3E_KEYBOARD_GET_CHAR, 1);
    s3ePointerRegister(S3E_POINTER_BUTTON_EVENT, buttonCb, nullptr);
    s3ePointerRegister(S3E_POINTER_MOTION_EVENT, motionCb, nullptr);
    s3ePointerRegister(S3E_POINTER_TOUCH_EVENT, touchCb, nullptr);
    s3ePointerRegister(S3E_POINTER_TOUCH_MOTION_EVENT, touchMotionCb, nullptr);
}

void windowLog()
{
    s3eWindow window = {};
    if (s3eExtGetHash(S3E_WINDOW_HASH, &window, sizeof(window)) != S3E_RESULT_SUCCESS)
        return logWrite("no window");
    s32 count = 0;
    window.displayModesGet(nullptr, &count);
    std::vector<s3eWindowMode> modes(static_cast<size_t>(count));
    window.displayModesGet(modes.data(), &count);
    for (const s3eWindowMode& mode : modes)
        logWrite("mode %dx%dx%d", mode.mWidth, mode.mHeight, mode.mBpp);
}

void sizesLog()
{
    s32 width = 0;
    s32 height = 0;
    sState.mDraw.deviceSizeGet(&width, &height);
    logWrite("device %dx%d", width, height);
    sState.mDraw.displaySizeGet(&width, &height);
    logWrite("display %dx%d", width, height);
    sState.mDraw.surfaceSizeGet(&width, &height);
    logWrite("surface %dx%d", width, height);
}

void fullScreenEnter()
{
    s3eWindow window = {};
    s3eExtGetHash(S3E_WINDOW_HASH, &window, sizeof(window));
    s32 count = 0;
    window.displayModesGet(nullptr, &count);
    std::vector<s3eWindowMode> modes(static_cast<size_t>(count));
    window.displayModesGet(modes.data(), &count);
    logWrite("full screen %d", window.fullScreenSet(&modes.back()));
}

s32 soundEndCb(void* pPlay, void*)
{
    logWrite("sound %u ended", *static_cast<u32*>(pPlay));
    return 0;
}

void samplePlay(const char* pName)
{
    std::vector<char> bytes(static_cast<size_t>(std::max(0, s3eFileGetFileInt(pName, S3E_FILE_SIZE))));
    s3eFile* file = s3eFileOpen(pName, "rb");
    s3eFileRead(bytes.data(), static_cast<u32>(bytes.size()), file);
    s3eFileClose(file);
    const u32 sample = sState.mSound.sampleCreate(bytes.data(), static_cast<u32>(bytes.size()));
    logWrite("sound %u", sState.mSound.play(sample));
}

void argumentApply(const std::string& pArgument)
{
    s3eWindow window = {};
    s32 width = 0;
    s32 height = 0;
    sState.mAsks = sState.mAsks || pArgument == "ask";
    if (pArgument.rfind("url=", 0) == 0)
        logWrite("url %d", s3eOSExec(pArgument.c_str() + 4, 0));
    if (pArgument.rfind("music=", 0) == 0)
        logWrite("music %d", s3eAudioPlay(pArgument.c_str() + 6, 0));
    if (pArgument.rfind("sound=", 0) == 0)
        samplePlay(pArgument.c_str() + 6);
    if (pArgument == "full")
        fullScreenEnter();
    if (std::sscanf(pArgument.c_str(), "size=%dx%d", &width, &height) == 2 &&
        s3eExtGetHash(S3E_WINDOW_HASH, &window, sizeof(window)) == S3E_RESULT_SUCCESS)
        logWrite("size %d", window.sizeSet(width, height));
}

void stateSave(u64 pTime)
{
    s3eFile* file = s3eFileOpen("ram://save.txt", "wb");
    const std::string text = "saved at " + std::to_string(pTime);
    s3eFileWrite(text.data(), static_cast<u32>(text.size()), file);
    s3eFileClose(file);
}

// A white square of 20 pixels around the pointer, on blue that says the time.
void frameDraw(u64 pTime)
{
    const auto x = static_cast<float>(sState.mX);
    const auto y = static_cast<float>(sState.mY);
    const float positions[] = {x - 10, y - 10, x - 10, y + 10, x + 10, y + 10, x + 10, y - 10};
    const s3eDrawRun run = {0, S3E_DRAW_BLEND_ALPHA, 0xffffffff, 4, positions, nullptr, nullptr};
    sState.mDraw.clear(0xff000000u | (static_cast<u32>(pTime & 0xff) << 16));
    sState.mDraw.runAdd(&run);
    sState.mDraw.flush();
    sState.mDraw.present();
}

s32 programRun()
{
    sState = {};
    sState.mLog = s3eFileOpen("ram://log.txt", "wb");
    if (s3eExtGetHash(S3E_DRAW_HASH, &sState.mDraw, sizeof(sState.mDraw)) != S3E_RESULT_SUCCESS)
        return 3;
    if (s3eExtGetHash(S3E_SOUND_HASH, &sState.mSound, sizeof(sState.mSound)) != S3E_RESULT_SUCCESS)
        return 4;
    sState.mSound.endCallbackSet(soundEndCb, nullptr);
    u64 last = s3eTimerGetMs();
    bool saves = false;
    s32 result = 0;
    callbacksRegister();
    windowLog();
    for (const std::string& argument : argumentsGet())
    {
        argumentApply(argument);
        saves = saves || argument == "save";
        result = argument == "fail" ? 7 : result;
    }
    sizesLog();
    logWrite("start %llu", static_cast<unsigned long long>(s3eTimerGetMs()));
    for (;;)
    {
        s3eDeviceYield(0);
        if (sState.mSuspended)
            continue;
        const u64 now = s3eTimerGetMs();
        if (s3eDeviceCheckQuitRequest() != 0)
            break;
        logWrite("frame %llu", static_cast<unsigned long long>(now));
        sState.mSound.update(static_cast<s32>(now - last));
        last = now;
        if (saves)
            stateSave(now);
        frameDraw(now);
    }
    logWrite("end");
    s3eFileClose(sState.mLog);
    return result;
}
} // namespace

TEST_EXPORT const u8 _IwAppVersionMajor = 4;
TEST_EXPORT const u8 _IwAppVersionMinor = TEST_MODULE_MINOR;

TEST_EXPORT s32 _IwAppEntry(const s3eFunctionTable* pTable)
{
    if (pTable == nullptr)
        return programRun();
    s3eTableBind(pTable);
    return 0;
}
