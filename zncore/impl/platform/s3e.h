#ifndef ZNCORE_IMPL_PLATFORM_S3E_H
#define ZNCORE_IMPL_PLATFORM_S3E_H

// The services of the platform loader.
//
// The loader hands the module one s3eFunctionTable at _IwAppEntry; s3eTableBind() stores its functions, found by the
// hash of their names. The s3e... operations below are plain functions that call through what was bound. An operation
// that the table lacks answers as its row in S3E_OPERATIONS says, so that a loader may leave services out.
//
// Everything here belongs to the one thread of the game. Callbacks run only inside s3eDeviceYield, s3eKeyboardUpdate,
// s3ePointerUpdate and the sound table's update. Texts are UTF-8. An operation that answers s3eResult gives
// S3E_RESULT_SUCCESS or S3E_RESULT_ERROR; what failed is in no log but the caller's.

#include "zncore/znTypes.h"

typedef s32 s3eResult;
constexpr s3eResult S3E_RESULT_SUCCESS = 0;
constexpr s3eResult S3E_RESULT_ERROR = 1;

// A callback gets the event's own data (a struct named beside the event, or null) and the user data of its register
// call. Its result is ignored by all events but debug events.
typedef s32 (*s3eCallback)(void* pSystemData, void* pUserData);

// --- device -----------------------------------------------------------------------------------------------------
constexpr s32 S3E_DEVICE_SUSPEND = 2; // the window was minimised or its focus was taken by the system
constexpr s32 S3E_DEVICE_RESUME = 3;

// --- debug and configuration ------------------------------------------------------------------------------------
constexpr s32 S3E_DEBUG_ASSERT = 1;
constexpr s32 S3E_CONFIG_STRING_MAX = 256; // size of the buffer for s3eConfigGetString, end marker included

// --- keyboard ---------------------------------------------------------------------------------------------------
constexpr s32 S3E_KEY_ESCAPE = 1;
constexpr s32 S3E_KEY_TAB = 2;
constexpr s32 S3E_KEY_ENTER = 4;
constexpr s32 S3E_KEY_SHIFT = 5;
constexpr s32 S3E_KEY_SPACE = 8;
constexpr s32 S3E_KEY_LEFT = 9;
constexpr s32 S3E_KEY_UP = 10;
constexpr s32 S3E_KEY_RIGHT = 11;
constexpr s32 S3E_KEY_DOWN = 12;
constexpr s32 S3E_KEY_F4 = 52;
constexpr s32 S3E_KEY_ALT = 99;
constexpr s32 S3E_KEY_BACK = 210;      // the abstract back key: a device's back button; Escape on no platform
constexpr s32 S3E_KEY_STATE_DOWN = 1;  // bit 0 of s3eKeyboardGetState
constexpr s32 S3E_KEYBOARD_HAS_ALPHA = 1; // s3eKeyboardGetInt: the device has an alphabetic keyboard
constexpr s32 S3E_KEYBOARD_GET_CHAR = 4;  // s3eKeyboardSetInt: 1 turns character events on
constexpr s32 S3E_KEYBOARD_KEY_EVENT = 0; // data: s3eKeyboardEvent
constexpr s32 S3E_KEYBOARD_CHAR_EVENT = 1; // data: s3eKeyboardCharEvent

struct s3eKeyboardEvent
{
    s32 mKey;
    s32 mPressed; // 1 pressed, 0 released; no repeats
};

struct s3eKeyboardCharEvent
{
    u16 mChar; // a UTF-16 unit; 8 is backspace, 13 is enter
};

// --- pointer ----------------------------------------------------------------------------------------------------
constexpr s32 S3E_POINTER_TYPE = 2;        // s3ePointerGetInt: one of the two below
constexpr s32 S3E_POINTER_TYPE_MOUSE = 1;
constexpr s32 S3E_POINTER_TYPE_STYLUS = 2; // touch
constexpr s32 S3E_POINTER_MULTI_TOUCH_AVAILABLE = 4; // s3ePointerGetInt: 1 or 0
constexpr s32 S3E_POINTER_BUTTON_EVENT = 0;       // data: s3ePointerEvent
constexpr s32 S3E_POINTER_MOTION_EVENT = 1;       // data: s3ePointerMotionEvent
constexpr s32 S3E_POINTER_TOUCH_EVENT = 2;        // data: s3ePointerTouchEvent
constexpr s32 S3E_POINTER_TOUCH_MOTION_EVENT = 3; // data: s3ePointerTouchMotionEvent

// Positions are pixels of the drawn surface, (0, 0) top left.
struct s3ePointerEvent
{
    s32 mButton; // 0 left, 1 right, 2 middle
    s32 mPressed;
    s32 mX;
    s32 mY;
};

struct s3ePointerMotionEvent
{
    s32 mX;
    s32 mY;
};

struct s3ePointerTouchEvent
{
    s32 mTouchId; // 0 for the first finger that is down, counting up
    s32 mPressed;
    s32 mX;
    s32 mY;
};

struct s3ePointerTouchMotionEvent
{
    s32 mTouchId;
    s32 mX;
    s32 mY;
};

// --- files ------------------------------------------------------------------------------------------------------
// A plain name lies in the game's read-only data folder, a name that starts with "ram://" on the writable drive, which
// lasts between runs. A name that leaves its folder is refused. A file opened with "wb" appears under its name when it
// is closed, whole or not at all; s3eFileFlush or s3eFileClose report the failure. The one before it is kept beside it
// and is read when the newer one is missing or empty; with a "~" behind the name it can be read, and only read, at any
// time. "log.txt" is the one file written as it goes, without that care.
struct s3eFile;
struct s3eFileList;
constexpr s32 S3E_FILE_SIZE = 0;   // s3eFileGetFileInt: bytes, -1 if there is no such file
constexpr s32 S3E_FILE_IS_DIR = 1; // s3eFileGetFileInt: 1 or 0

// --- audio ------------------------------------------------------------------------------------------------------
constexpr s32 S3E_AUDIO_VOLUME = 0; // s3eAudioSetInt: 0 to S3E_AUDIO_MAX_VOLUME
constexpr s32 S3E_AUDIO_MAX_VOLUME = 256;

// Every operation, one row each: result type, name, parameters, names of the arguments, answer when it isn't bound.
#define S3E_OPERATIONS(OP)                                                                                             \
    /* milliseconds since an unspecified start; never runs backwards */                                                \
    OP(u64, s3eTimerGetMs, (), (), 0)                                                                                  \
    /* hands the processor to the platform for up to pMs milliseconds and runs the callbacks of what happened */       \
    OP(void, s3eDeviceYield, (s32 pMs), (pMs), )                                                                       \
    OP(s32, s3eDeviceCheckQuitRequest, (), (), 0)                                                                      \
    OP(s3eResult, s3eDeviceRegister, (s32 pEvent, s3eCallback pCallback, void* pUserData),                             \
       (pEvent, pCallback, pUserData), S3E_RESULT_ERROR)                                                               \
    OP(s3eResult, s3eDeviceUnRegister, (s32 pEvent, s3eCallback pCallback), (pEvent, pCallback), S3E_RESULT_ERROR)     \
    OP(s3eResult, s3eDebugRegister, (s32 pEvent, s3eCallback pCallback, void* pUserData),                              \
       (pEvent, pCallback, pUserData), S3E_RESULT_ERROR)                                                               \
    OP(s3eResult, s3eDebugUnRegister, (s32 pEvent, s3eCallback pCallback), (pEvent, pCallback), S3E_RESULT_ERROR)      \
    /* pValue has S3E_CONFIG_STRING_MAX bytes and stays as it is when the value is missing */                          \
    OP(s3eResult, s3eConfigGetString, (const char* pGroup, const char* pName, char* pValue), (pGroup, pName, pValue),  \
       S3E_RESULT_ERROR)                                                                                               \
    OP(s3eResult, s3eKeyboardUpdate, (), (), S3E_RESULT_ERROR)                                                         \
    OP(s32, s3eKeyboardGetState, (s32 pKey), (pKey), 0)                                                                \
    OP(s32, s3eKeyboardGetInt, (s32 pProperty), (pProperty), 0)                                                        \
    OP(s3eResult, s3eKeyboardSetInt, (s32 pProperty, s32 pValue), (pProperty, pValue), S3E_RESULT_ERROR)               \
    OP(s3eResult, s3eKeyboardRegister, (s32 pEvent, s3eCallback pCallback, void* pUserData),                           \
       (pEvent, pCallback, pUserData), S3E_RESULT_ERROR)                                                               \
    OP(s3eResult, s3eKeyboardUnRegister, (s32 pEvent, s3eCallback pCallback), (pEvent, pCallback), S3E_RESULT_ERROR)   \
    OP(s3eResult, s3ePointerUpdate, (), (), S3E_RESULT_ERROR)                                                          \
    OP(s32, s3ePointerGetInt, (s32 pProperty), (pProperty), 0)                                                         \
    OP(s3eResult, s3ePointerRegister, (s32 pEvent, s3eCallback pCallback, void* pUserData),                            \
       (pEvent, pCallback, pUserData), S3E_RESULT_ERROR)                                                               \
    OP(s3eResult, s3ePointerUnRegister, (s32 pEvent, s3eCallback pCallback), (pEvent, pCallback), S3E_RESULT_ERROR)    \
    /* modes "rb" and "wb"; null on failure */                                                                         \
    OP(s3eFile*, s3eFileOpen, (const char* pName, const char* pMode), (pName, pMode), nullptr)                         \
    /* bytes that went through */                                                                                      \
    OP(u32, s3eFileRead, (void* pBuffer, u32 pBytes, s3eFile* pFile), (pBuffer, pBytes, pFile), 0)                     \
    OP(u32, s3eFileWrite, (const void* pBuffer, u32 pBytes, s3eFile* pFile), (pBuffer, pBytes, pFile), 0)              \
    OP(s3eResult, s3eFileFlush, (s3eFile * pFile), (pFile), S3E_RESULT_ERROR)                                          \
    OP(s3eResult, s3eFileClose, (s3eFile * pFile), (pFile), S3E_RESULT_ERROR)                                          \
    OP(s32, s3eFileCheckExists, (const char* pName), (pName), 0)                                                       \
    OP(s32, s3eFileGetFileInt, (const char* pName, s32 pProperty), (pName, pProperty), -1)                             \
    OP(s3eResult, s3eFileDelete, (const char* pName), (pName), S3E_RESULT_ERROR)                                       \
    /* entries in ascending byte order of their names, without "." and ".." */                                         \
    OP(s3eFileList*, s3eFileListDirectory, (const char* pName), (pName), nullptr)                                      \
    OP(s3eResult, s3eFileListNext, (s3eFileList * pList, char* pName, s32 pSize), (pList, pName, pSize),               \
       S3E_RESULT_ERROR)                                                                                               \
    OP(s3eResult, s3eFileListClose, (s3eFileList * pList), (pList), S3E_RESULT_ERROR)                                  \
    /* one streamed track; a repeat count of 0 repeats for ever */                                                     \
    OP(s3eResult, s3eAudioPlay, (const char* pName, u32 pRepeatCount), (pName, pRepeatCount), S3E_RESULT_ERROR)        \
    OP(s3eResult, s3eAudioStop, (), (), S3E_RESULT_ERROR)                                                              \
    OP(s3eResult, s3eAudioPause, (), (), S3E_RESULT_ERROR)                                                             \
    OP(s3eResult, s3eAudioResume, (), (), S3E_RESULT_ERROR)                                                            \
    OP(s3eResult, s3eAudioSetInt, (s32 pProperty, s32 pValue), (pProperty, pValue), S3E_RESULT_ERROR)                  \
    /* opens an http, https or mailto address with the system's opener; pExit 1 asks the game to quit first */         \
    OP(s3eResult, s3eOSExec, (const char* pUrl, s32 pExit), (pUrl, pExit), S3E_RESULT_ERROR)                           \
    /* asks the person for a text; null if that was called off; the text stays valid until the next call */            \
    OP(const char*, s3eOSReadString, (const char* pPrompt, const char* pDefault), (pPrompt, pDefault), nullptr)        \
    /* fills pTable with the functions of the extension of that hash; pBytes is the size of its struct */              \
    OP(s3eResult, s3eExtGetHash, (u32 pHash, void* pTable, u32 pBytes), (pHash, pTable, pBytes), S3E_RESULT_ERROR)

#define S3E_DECLARE(result, name, parameters, arguments, unbound) result name parameters;
S3E_OPERATIONS(S3E_DECLARE)
#undef S3E_DECLARE

// --- the table itself ----------------------------------------------------------------------------------------------
typedef void (*s3eFunction)();

struct s3eTableEntry
{
    u32 mHash; // s3eHash of the operation's name
    s3eFunction mFunction;
};

struct s3eFunctionTable
{
    u32 mCount;
    const s3eTableEntry* mEntries;
};

// The interface version that the loader checks before it calls the module.
constexpr u8 S3E_VERSION_MAJOR = 4;
constexpr u8 S3E_VERSION_MINOR = 37;

// The 32-bit hash that names operations and extensions: h = h * 33 + byte, from 0.
constexpr u32 s3eHash(const char* pText)
{
    u32 hash = 0;
    for (; *pText != '\0'; ++pText)
        hash = hash * 33u + static_cast<u8>(*pText);
    return hash;
}

// Binds every operation whose hash stands in the table and unbinds the others; null unbinds all. Entries with unknown
// hashes are ignored. The table need not outlive the call.
void s3eTableBind(const s3eFunctionTable* pTable);

#endif
