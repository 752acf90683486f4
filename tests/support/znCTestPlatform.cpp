#include "tests/support/znCTestPlatform.h"
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{
znCTestPlatform* sPlatform = nullptr; // lives on the test's stack

// --- the operations, each named as its row in S3E_OPERATIONS --------------------------------------------------------
namespace table
{
u64 s3eTimerGetMs()
{
    return sPlatform->mClockMs;
}

void s3eDeviceYield(s32)
{
    ++sPlatform->mYieldCount;
    sPlatform->mClockMs += sPlatform->mYieldStepMs;
    sPlatform->mInput.yield();
}

s32 s3eDeviceCheckQuitRequest()
{
    return sPlatform->mInput.mQuitRequested;
}

s3eResult s3eDeviceRegister(s32 pEvent, s3eCallback pCallback, void* pUserData)
{
    return sPlatform->mInput.mDevice.add(pEvent, pCallback, pUserData);
}

s3eResult s3eDeviceUnRegister(s32 pEvent, s3eCallback pCallback)
{
    return sPlatform->mInput.mDevice.remove(pEvent, pCallback);
}

s3eResult s3eDebugRegister(s32 pEvent, s3eCallback pCallback, void* pUserData)
{
    return sPlatform->mInput.mDebug.add(pEvent, pCallback, pUserData);
}

s3eResult s3eDebugUnRegister(s32 pEvent, s3eCallback pCallback)
{
    return sPlatform->mInput.mDebug.remove(pEvent, pCallback);
}

s3eResult s3eConfigGetString(const char* pGroup, const char* pName, char* pValue)
{
    return sPlatform->configGet(pGroup, pName, pValue);
}

s3eResult s3eKeyboardUpdate()
{
    sPlatform->mInput.keyboardUpdate();
    return S3E_RESULT_SUCCESS;
}

s32 s3eKeyboardGetState(s32 pKey)
{
    return sPlatform->mInput.keyStateGet(pKey);
}

s32 s3eKeyboardGetInt(s32 pProperty)
{
    return pProperty == S3E_KEYBOARD_HAS_ALPHA ? sPlatform->mInput.mAlphaKeyboard : 0;
}

s3eResult s3eKeyboardSetInt(s32 pProperty, s32 pValue)
{
    if (pProperty != S3E_KEYBOARD_GET_CHAR)
        return S3E_RESULT_ERROR;
    sPlatform->mInput.mCharEvents = pValue != 0;
    return S3E_RESULT_SUCCESS;
}

s3eResult s3eKeyboardRegister(s32 pEvent, s3eCallback pCallback, void* pUserData)
{
    return sPlatform->mInput.mKeyboard.add(pEvent, pCallback, pUserData);
}

s3eResult s3eKeyboardUnRegister(s32 pEvent, s3eCallback pCallback)
{
    return sPlatform->mInput.mKeyboard.remove(pEvent, pCallback);
}

s3eResult s3ePointerUpdate()
{
    sPlatform->mInput.pointerUpdate();
    return S3E_RESULT_SUCCESS;
}

s32 s3ePointerGetInt(s32 pProperty)
{
    if (pProperty == S3E_POINTER_TYPE)
        return sPlatform->mInput.mPointerType;
    return pProperty == S3E_POINTER_MULTI_TOUCH_AVAILABLE ? sPlatform->mInput.mMultiTouch : 0;
}

s3eResult s3ePointerRegister(s32 pEvent, s3eCallback pCallback, void* pUserData)
{
    return sPlatform->mInput.mPointer.add(pEvent, pCallback, pUserData);
}

s3eResult s3ePointerUnRegister(s32 pEvent, s3eCallback pCallback)
{
    return sPlatform->mInput.mPointer.remove(pEvent, pCallback);
}

s3eFile* s3eFileOpen(const char* pName, const char* pMode)
{
    return sPlatform->mFiles.open(pName, pMode);
}

u32 s3eFileRead(void* pBuffer, u32 pBytes, s3eFile* pFile)
{
    return sPlatform->mFiles.read(pBuffer, pBytes, pFile);
}

u32 s3eFileWrite(const void* pBuffer, u32 pBytes, s3eFile* pFile)
{
    return sPlatform->mFiles.write(pBuffer, pBytes, pFile);
}

s3eResult s3eFileFlush(s3eFile* pFile)
{
    return sPlatform->mFiles.flush(pFile);
}

s3eResult s3eFileClose(s3eFile* pFile)
{
    return sPlatform->mFiles.close(pFile);
}

s32 s3eFileCheckExists(const char* pName)
{
    return sPlatform->mFiles.checkExists(pName);
}

s32 s3eFileGetFileInt(const char* pName, s32 pProperty)
{
    return sPlatform->mFiles.intGet(pName, pProperty);
}

s3eResult s3eFileDelete(const char* pName)
{
    return sPlatform->mFiles.remove(pName);
}

s3eFileList* s3eFileListDirectory(const char* pName)
{
    return sPlatform->mFiles.listOpen(pName);
}

s3eResult s3eFileListNext(s3eFileList* pList, char* pName, s32 pSize)
{
    return sPlatform->mFiles.listNext(pList, pName, pSize);
}

s3eResult s3eFileListClose(s3eFileList* pList)
{
    return sPlatform->mFiles.listClose(pList);
}

s3eResult audioCall(const std::string& pCall)
{
    sPlatform->mAudioCalls.push_back(pCall);
    return sPlatform->mAudioResult;
}

s3eResult s3eAudioPlay(const char* pName, u32 pRepeatCount)
{
    return audioCall("play " + std::string(pName) + " " + std::to_string(pRepeatCount));
}

s3eResult s3eAudioStop()
{
    return audioCall("stop");
}

s3eResult s3eAudioPause()
{
    return audioCall("pause");
}

s3eResult s3eAudioResume()
{
    return audioCall("resume");
}

s3eResult s3eAudioSetInt(s32 pProperty, s32 pValue)
{
    return audioCall("set " + std::to_string(pProperty) + " " + std::to_string(pValue));
}

s3eResult s3eOSExec(const char* pUrl, s32)
{
    sPlatform->mUrlsOpened.push_back(pUrl);
    return sPlatform->mOsExecResult;
}

const char* s3eOSReadString(const char* pPrompt, const char* pDefault)
{
    sPlatform->mReadStringCalls.emplace_back(pPrompt, pDefault);
    return sPlatform->mReadString ? sPlatform->mReadString->c_str() : nullptr;
}

s3eResult s3eExtGetHash(u32 pHash, void* pTable, u32 pBytes)
{
    return sPlatform->extensionGet(pHash, pTable, pBytes);
}
} // namespace table

// --- the extensions' tables
// --------------------------------------------------------------------------------------------
s3eResult surfaceSizeGet(s32* pWidth, s32* pHeight)
{
    *pWidth = sPlatform->mWindow.mWidth;
    *pHeight = sPlatform->mWindow.mHeight;
    return S3E_RESULT_SUCCESS;
}

const s3eWindow WINDOW_TABLE = {
    .sizeSet = [](s32 pWidth, s32 pHeight) { return sPlatform->mWindow.sizeSet(pWidth, pHeight); },
    .sizeGet = surfaceSizeGet,
    .displayModesGet = [](s3eWindowMode* pModes, s32* pCount) { return sPlatform->mWindow.modesGet(pModes, pCount); },
    .fullScreenSet = [](const s3eWindowMode* pMode) { return sPlatform->mWindow.fullScreenSet(pMode); },
    .fullScreenGet = []() -> s32 { return sPlatform->mWindow.mFullScreen; },
    .intGet = [](s32 pProperty) -> s32
    { return pProperty == S3E_WINDOW_SYSTEM_CURSOR && sPlatform->mWindow.mCursorVisible; },
    .intSet = [](s32 pProperty, s32 pValue) -> s3eResult
    {
        if (pProperty != S3E_WINDOW_SYSTEM_CURSOR)
            return S3E_RESULT_ERROR;
        sPlatform->mWindow.mCursorVisible = pValue != 0;
        return S3E_RESULT_SUCCESS;
    },
    .mReserved = {}};

const windowsMouseExt MOUSE_TABLE = {.cursorVisibleSet = [](s32 pVisible) -> s32
                                     {
                                         sPlatform->mWindow.mMouseCursorVisible = pVisible != 0;
                                         return 1;
                                     },
                                     .inClientAreaGet = []() -> s32 { return sPlatform->mWindow.mInClientArea; },
                                     .logCallbackRegister =
                                         [](s3eCallback pCallback, void* pUserData)
                                     {
                                         sPlatform->mWindow.mMouseLogCallback = pCallback;
                                         sPlatform->mWindow.mMouseLogUserData = pUserData;
                                     },
                                     .logCallbackUnRegister =
                                         [](s3eCallback pCallback)
                                     {
                                         if (sPlatform->mWindow.mMouseLogCallback == pCallback)
                                             sPlatform->mWindow.mMouseLogCallback = nullptr;
                                     },
                                     .logTextReturn = [](const char* pText)
                                     { sPlatform->mWindow.mMouseLogReturned.push_back(pText); },
                                     .mReserved = {}};

const s3eDraw DRAW_TABLE = {
    .textureSizeLimitGet = []() { return sPlatform->mDraw.mSizeLimit; },
    .textureCreate = [](s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
    { return sPlatform->mDraw.textureCreate(pFormat, pWidth, pHeight, pPixels, pPitch); },
    .textureUpdate = [](u32 pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
    { return sPlatform->mDraw.textureUpdate(pTexture, pX, pY, pWidth, pHeight, pPixels, pPitch); },
    .textureFree = [](u32 pTexture) { sPlatform->mDraw.textureFree(pTexture); },
    .deviceSizeGet =
        [](s32* pWidth, s32* pHeight)
    {
        *pWidth = sPlatform->mWindow.mDeviceWidth;
        *pHeight = sPlatform->mWindow.mDeviceHeight;
    },
    .displaySizeGet = [](s32* pWidth, s32* pHeight) { ::surfaceSizeGet(pWidth, pHeight); },
    .surfaceSizeGet = [](s32* pWidth, s32* pHeight) { ::surfaceSizeGet(pWidth, pHeight); },
    .clear = [](u32 pColour) { sPlatform->mDraw.clear(pColour); },
    .runAdd = [](const s3eDrawRun* pRun) { sPlatform->mDraw.runAdd(pRun); },
    .flush = []() { sPlatform->mDraw.flush(); },
    .present = []() { sPlatform->mDraw.present(); },
    .pixelsRead =
        [](s32 pX, s32 pY, s32 pWidth, s32 pHeight, void* pPixels)
    {
        return sPlatform->mDraw.pixelsRead(pX, pY, pWidth, pHeight, pPixels);
    }};

template <class Table>
s3eResult tableCopy(bool pPresent, const Table& pSource, void* pTable, u32 pBytes)
{
    if (!pPresent || pBytes != sizeof pSource)
        return S3E_RESULT_ERROR;
    std::memcpy(pTable, &pSource, pBytes);
    return S3E_RESULT_SUCCESS;
}
} // namespace

znCTestPlatform::znCTestPlatform()
{
    if (sPlatform != nullptr)
    {
        std::fprintf(stderr, "znCTestPlatform: only one may live at a time\n");
        std::abort();
    }
    sPlatform = this;
    static const s3eTableEntry ENTRIES[] = {
#define TEST_ENTRY(result, name, parameters, arguments, unbound)                                                       \
    {s3eHash(#name), reinterpret_cast<s3eFunction>(&table::name)},
        S3E_OPERATIONS(TEST_ENTRY)
#undef TEST_ENTRY
    };
    const s3eFunctionTable functions = {sizeof ENTRIES / sizeof *ENTRIES, ENTRIES};
    s3eTableBind(&functions);
}

znCTestPlatform::~znCTestPlatform()
{
    s3eTableBind(nullptr);
    sPlatform = nullptr;
}

znCTestPlatform* znCTestPlatform::instanceGet()
{
    return sPlatform;
}

void znCTestPlatform::configSet(const std::string& pGroup, const std::string& pName, const std::string& pValue)
{
    mConfig[{pGroup, pName}] = pValue;
}

void znCTestPlatform::configRemove(const std::string& pGroup, const std::string& pName)
{
    mConfig.erase({pGroup, pName});
}

s3eResult znCTestPlatform::configGet(const char* pGroup, const char* pName, char* pValue) const
{
    const auto found = mConfig.find({pGroup, pName});
    if (found == mConfig.end())
        return S3E_RESULT_ERROR;
    std::snprintf(pValue, S3E_CONFIG_STRING_MAX, "%s", found->second.c_str());
    return S3E_RESULT_SUCCESS;
}

void znCTestPlatform::extensionSet(u32 pHash, const void* pTable, u32 pBytes)
{
    mExtensions[pHash].assign(static_cast<const char*>(pTable), pBytes);
}

s3eResult znCTestPlatform::extensionGet(u32 pHash, void* pTable, u32 pBytes) const
{
    if (const auto added = mExtensions.find(pHash); added != mExtensions.end())
    {
        if (added->second.size() != pBytes)
            return S3E_RESULT_ERROR;
        std::memcpy(pTable, added->second.data(), pBytes);
        return S3E_RESULT_SUCCESS;
    }
    switch (pHash)
    {
    case S3E_WINDOW_HASH:
        return tableCopy(mWindow.mPresent, WINDOW_TABLE, pTable, pBytes);
    case S3E_MOUSE_HASH:
        return tableCopy(mWindow.mMousePresent, MOUSE_TABLE, pTable, pBytes);
    case S3E_DRAW_HASH:
        return tableCopy(mDraw.mPresent, DRAW_TABLE, pTable, pBytes);
    default:
        return S3E_RESULT_ERROR;
    }
}

std::string znCTestPlatform::logGet() const
{
    return mFiles.fileGet("ram://log.txt");
}

std::string znCTestPlatform::logTake()
{
    const std::string log = logGet();
    const std::string text = log.substr(std::min(mLogTaken, log.size()));
    mLogTaken = log.size();
    return text;
}

s32 znCTestPlatform::logCountGet(const std::string& pText) const
{
    const std::string log = logGet();
    s32 count = 0;
    for (std::string::size_type at = log.find(pText); at != std::string::npos; at = log.find(pText, at + 1))
        ++count;
    return count;
}
