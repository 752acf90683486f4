#include "tests/saves/saverRun.h"

#include "loader/znCFiles.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCProfileManager.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/src/znCHogGlobalSavedData.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr s32 LEVELS = 20;
constexpr s32 LEVEL_VALUES = 500;

znCFiles* sFiles = nullptr; // the run's

s3eResult resultOf(bool pDone)
{
    return pDone ? S3E_RESULT_SUCCESS : S3E_RESULT_ERROR;
}

template <class Function>
s3eTableEntry entryOf(const char* pName, Function* pFunction)
{
    return {s3eHash(pName), reinterpret_cast<s3eFunction>(pFunction)};
}
#define ENTRY(name, ...) entryOf<decltype(name)>(#name, __VA_ARGS__)

// Files are all that this program's platform has.
void filesBind()
{
    static const s3eTableEntry ENTRIES[] = {
        ENTRY(s3eFileOpen, [](const char* pName, const char* pMode) { return sFiles->open(pName, pMode); }),
        ENTRY(s3eFileRead,
              [](void* pBuffer, u32 pBytes, s3eFile* pFile) { return sFiles->read(pBuffer, pBytes, pFile); }),
        ENTRY(s3eFileWrite,
              [](const void* pBuffer, u32 pBytes, s3eFile* pFile) { return sFiles->write(pBuffer, pBytes, pFile); }),
        ENTRY(s3eFileFlush, [](s3eFile* pFile) { return resultOf(sFiles->flush(pFile)); }),
        ENTRY(s3eFileClose, [](s3eFile* pFile) { return resultOf(sFiles->close(pFile)); }),
        ENTRY(s3eFileCheckExists, [](const char* pName) -> s32 { return sFiles->exists(pName); }),
        ENTRY(s3eFileGetFileInt, [](const char* pName, s32) { return sFiles->sizeGet(pName); }),
        ENTRY(s3eFileDelete, [](const char* pName) { return resultOf(sFiles->remove(pName)); }),
    };
    static const s3eFunctionTable TABLE = {sizeof ENTRIES / sizeof *ENTRIES, ENTRIES};
    s3eTableBind(&TABLE);
}

znCHogUserSavedData& user()
{
    return *znCHogUserSavedData::instanceGet();
}

std::string levelNameGet(s32 pLevel)
{
    return "level" + std::to_string(pLevel);
}

std::string stateGet(s32 pNumber)
{
    std::string state = "c8e03bb6{";
    for (s32 i = 0; i < LEVEL_VALUES; ++i)
        state += std::to_string(pNumber) + ",";
    return state + "}";
}
} // namespace

SaverRun::SaverRun(const std::filesystem::path& pUserFolder)
    : mFiles(std::make_unique<znCFiles>(pUserFolder / "data", pUserFolder))
{
    sFiles = mFiles.get();
    filesBind();
    znIDebug::create();
    znCAppSettings::create();
    znIAudioManager::create();
    znCGuiMessageDispatcher::create();
    znCHogGlobalSavedData::create();
    znCHogUserSavedData::create();
    znCProfileManager::create();
}

SaverRun::~SaverRun()
{
    znCProfileManager::destroy();
    znCGuiMessageDispatcher::destroy();
    znIAudioManager::destroy();
    znCAppSettings::destroy();
    znIDebug::destroy();
    s3eTableBind(nullptr);
}

s32 SaverRun::numberGet()
{
    const s32 number = user().s32Get(znCUserSavedData::CURRENCY);
    const std::string state = stateGet(number);
    for (s32 i = 0; i < LEVELS; ++i)
        if (user().levelStateGet(levelNameGet(i)) != state)
            return -1;
    return number;
}

void SaverRun::numberSet(s32 pNumber)
{
    user().s32Set(znCUserSavedData::CURRENCY, pNumber);
    for (s32 i = 0; i < LEVELS; ++i)
        user().levelStateSet(levelNameGet(i), stateGet(pNumber));
}

std::string SaverRun::namesGet()
{
    const znCHogGlobalSavedData& global = *znCHogGlobalSavedData::instanceGet();
    std::string names;
    for (s32 i = 0; i < global.profileCountGet(); ++i)
        names += global.profileNameGet(i) + " ";
    return names;
}
