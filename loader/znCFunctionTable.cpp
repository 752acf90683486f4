#include "loader/znCFunctionTable.h"

#include "loader/znCExtensions.h"
#include "loader/znCLoader.h"

#include <cstring>
#include <vector>

namespace
{
using Entries = std::vector<s3eTableEntry>;

znCLoader* sLoader = nullptr; // not owned

s3eResult resultOf(bool pDone)
{
    return pDone ? S3E_RESULT_SUCCESS : S3E_RESULT_ERROR;
}

// The row of one operation: the function must have the type that s3e.h declares under that name.
template <class Function>
void rowAdd(Entries& pEntries, const char* pName, Function* pFunction)
{
    pEntries.push_back({s3eHash(pName), reinterpret_cast<s3eFunction>(pFunction)});
}
#define ROW_ADD(name, ...) rowAdd<decltype(name)>(pEntries, #name, __VA_ARGS__)

s3eResult configStringGet(const char* pGroup, const char* pName, char* pValue)
{
    const std::string* value =
        pGroup == nullptr || pName == nullptr ? nullptr : sLoader->configGet().valueGet(pGroup, pName);
    if (value == nullptr || pValue == nullptr)
        return S3E_RESULT_ERROR;
    const size_t length = value->copy(pValue, S3E_CONFIG_STRING_MAX - 1);
    pValue[length] = '\0';
    return S3E_RESULT_SUCCESS;
}

s32 fileIntGet(const char* pName, s32 pProperty)
{
    if (pProperty == S3E_FILE_IS_DIR)
        return sLoader->filesGet().isFolder(pName);
    return pProperty == S3E_FILE_SIZE ? sLoader->filesGet().sizeGet(pName) : -1;
}

const char* stringRead(const char* pPrompt, const char* pDefault)
{
    static std::string text; // valid until the next call, as the operation promises
    const auto textOf = [](const char* pText)
    {
        return std::string(pText == nullptr ? "" : pText);
    };
    const std::optional<std::string> answer = sLoader->textAsk(textOf(pPrompt), textOf(pDefault));
    text = answer.value_or("");
    return answer.has_value() ? text.c_str() : nullptr;
}

void deviceRowsAdd(Entries& pEntries)
{
    ROW_ADD(s3eTimerGetMs, [] { return sLoader->clockGet().timeGet(); });
    ROW_ADD(s3eDeviceYield, [](s32 pMs) { sLoader->frameBoundary(pMs); });
    ROW_ADD(s3eDeviceCheckQuitRequest, []() -> s32 { return sLoader->deviceGet().isQuitRequested(); });
    ROW_ADD(s3eDeviceRegister, [](s32 pEvent, s3eCallback pCallback, void* pUserData)
            { return sLoader->deviceGet().callbacksGet().callbackRegister(pEvent, pCallback, pUserData); });
    ROW_ADD(s3eDeviceUnRegister, [](s32 pEvent, s3eCallback pCallback)
            { return sLoader->deviceGet().callbacksGet().callbackUnRegister(pEvent, pCallback); });
    // No debug event ever happens here: a loader without a debugger has none to tell of.
    ROW_ADD(s3eDebugRegister, [](s32, s3eCallback, void*) { return S3E_RESULT_SUCCESS; });
    ROW_ADD(s3eDebugUnRegister, [](s32, s3eCallback) { return S3E_RESULT_SUCCESS; });
    ROW_ADD(s3eConfigGetString, configStringGet);
    ROW_ADD(s3eOSExec, [](const char* pUrl, s32 pExit)
            { return resultOf(pUrl != nullptr && sLoader->urlOpen(pUrl, pExit != 0)); });
    ROW_ADD(s3eOSReadString, stringRead);
    ROW_ADD(s3eExtGetHash, znCExtensions::tableGet);
}

void inputRowsAdd(Entries& pEntries)
{
    // States and callbacks follow each event at the frame boundary, so there is nothing left to update.
    ROW_ADD(s3eKeyboardUpdate, [] { return S3E_RESULT_SUCCESS; });
    ROW_ADD(s3eKeyboardGetState, [](s32 pKey) { return sLoader->keyboardGet().stateGet(pKey); });
    ROW_ADD(s3eKeyboardGetInt, [](s32 pProperty) { return sLoader->keyboardGet().intGet(pProperty); });
    ROW_ADD(s3eKeyboardSetInt,
            [](s32 pProperty, s32 pValue) { return sLoader->keyboardGet().intSet(pProperty, pValue); });
    ROW_ADD(s3eKeyboardRegister, [](s32 pEvent, s3eCallback pCallback, void* pUserData)
            { return sLoader->keyboardGet().callbacksGet().callbackRegister(pEvent, pCallback, pUserData); });
    ROW_ADD(s3eKeyboardUnRegister, [](s32 pEvent, s3eCallback pCallback)
            { return sLoader->keyboardGet().callbacksGet().callbackUnRegister(pEvent, pCallback); });
    ROW_ADD(s3ePointerUpdate, [] { return S3E_RESULT_SUCCESS; });
    ROW_ADD(s3ePointerGetInt, [](s32 pProperty) { return sLoader->pointerGet().intGet(pProperty); });
    ROW_ADD(s3ePointerRegister, [](s32 pEvent, s3eCallback pCallback, void* pUserData)
            { return sLoader->pointerGet().callbacksGet().callbackRegister(pEvent, pCallback, pUserData); });
    ROW_ADD(s3ePointerUnRegister, [](s32 pEvent, s3eCallback pCallback)
            { return sLoader->pointerGet().callbacksGet().callbackUnRegister(pEvent, pCallback); });
}

void fileRowsAdd(Entries& pEntries)
{
    ROW_ADD(s3eFileOpen, [](const char* pName, const char* pMode) { return sLoader->filesGet().open(pName, pMode); });
    ROW_ADD(s3eFileRead,
            [](void* pBuffer, u32 pBytes, s3eFile* pFile) { return sLoader->filesGet().read(pBuffer, pBytes, pFile); });
    ROW_ADD(s3eFileWrite, [](const void* pBuffer, u32 pBytes, s3eFile* pFile)
            { return sLoader->filesGet().write(pBuffer, pBytes, pFile); });
    ROW_ADD(s3eFileFlush, [](s3eFile* pFile) { return resultOf(sLoader->filesGet().flush(pFile)); });
    ROW_ADD(s3eFileClose, [](s3eFile* pFile) { return resultOf(sLoader->filesGet().close(pFile)); });
    ROW_ADD(s3eFileCheckExists, [](const char* pName) -> s32 { return sLoader->filesGet().exists(pName); });
    ROW_ADD(s3eFileGetFileInt, fileIntGet);
    ROW_ADD(s3eFileDelete, [](const char* pName) { return resultOf(sLoader->filesGet().remove(pName)); });
    ROW_ADD(s3eFileListDirectory, [](const char* pName) { return sLoader->filesGet().listOpen(pName); });
    ROW_ADD(s3eFileListNext, [](s3eFileList* pList, char* pName, s32 pSize)
            { return resultOf(sLoader->filesGet().listNext(pList, pName, pSize)); });
    ROW_ADD(s3eFileListClose, [](s3eFileList* pList) { return resultOf(sLoader->filesGet().listClose(pList)); });
}

s3eResult audioIntSet(s32 pProperty, s32 pValue)
{
    if (pProperty == S3E_AUDIO_VOLUME)
        sLoader->audioGet().trackVolumeSet(pValue);
    return resultOf(pProperty == S3E_AUDIO_VOLUME);
}

s3eResult audioPauseSet(bool pPaused)
{
    sLoader->audioGet().trackPauseSet(pPaused);
    return S3E_RESULT_SUCCESS;
}

s3eResult audioStop()
{
    sLoader->audioGet().trackStop();
    return S3E_RESULT_SUCCESS;
}

void audioRowsAdd(Entries& pEntries)
{
    ROW_ADD(s3eAudioPlay, [](const char* pName, u32 pRepeatCount)
            { return resultOf(sLoader->musicGet().play(pName, pRepeatCount)); });
    ROW_ADD(s3eAudioStop, audioStop);
    ROW_ADD(s3eAudioPause, [] { return audioPauseSet(true); });
    ROW_ADD(s3eAudioResume, [] { return audioPauseSet(false); });
    ROW_ADD(s3eAudioSetInt, audioIntSet);
}
} // namespace

const s3eFunctionTable& znCFunctionTable::build(znCLoader& pLoader)
{
    static Entries entries;
    static s3eFunctionTable table;
    sLoader = &pLoader;
    znCExtensions::loaderSet(pLoader);
    entries.clear();
    deviceRowsAdd(entries);
    inputRowsAdd(entries);
    fileRowsAdd(entries);
    audioRowsAdd(entries);
    table = {static_cast<u32>(entries.size()), entries.data()};
    return table;
}
