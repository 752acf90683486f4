// The module's way in: what the loader looks up, and the main function behind it.

#include "media/znNGraphics.h"
#include "src/CGameSpecificMain.h"
#include "znappcore/impl/platform/znCPlatformLoop.h"
#include "zncore/impl/platform/s3e.h"
#include "zncore/znNCoreUtils.h"

#include <string>
#include <vector>

#define PETREL_EXPORT extern "C" __attribute__((visibility("default")))

namespace
{
constexpr s32 ARGUMENTS_MAX = 30;
constexpr s32 DEBUG_CALLBACK_IGNORE = 3; // the platform's assertion goes on

s32 debugCb(void*, void*)
{
    return DEBUG_CALLBACK_IGNORE;
}

int programMain(int, char**)
{
    znNCoreUtils::randomSeedSet(static_cast<uint32>(s3eTimerGetMs()));
    s3eDebugRegister(S3E_DEBUG_ASSERT, debugCb, nullptr);
    znNGraphics::initialise();
    CGameSpecificMain::create();
    {
        znCPlatformLoop loop;
        while (!loop.step())
        {
        }
        znCAppCoreMain::destroy();
    }
    znNGraphics::terminate();
    s3eDebugUnRegister(S3E_DEBUG_ASSERT, debugCb);
    return 0;
}

std::string configGet(const char* pGroup, const char* pName, const char* pDefault)
{
    char value[S3E_CONFIG_STRING_MAX];
    return s3eConfigGetString(pGroup, pName, value) == S3E_RESULT_SUCCESS ? value : pDefault;
}

bool configExists(const char* pGroup, const char* pName)
{
    char value[S3E_CONFIG_STRING_MAX];
    return s3eConfigGetString(pGroup, pName, value) == S3E_RESULT_SUCCESS;
}

// The caption stands for the program's name; the arguments follow up to the first that is missing.
std::vector<std::string> argumentsGet()
{
    std::vector<std::string> arguments = {configGet("s3e", "SysAppCaption", "S3E")};
    for (s32 i = 1; i <= ARGUMENTS_MAX; ++i)
    {
        const std::string name = "argv[" + std::to_string(i) + "]";
        if (!configExists("commandline", name.c_str()))
            break;
        arguments.push_back(configGet("commandline", name.c_str(), ""));
    }
    return arguments;
}

int start()
{
    std::vector<std::string> arguments = argumentsGet();
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    return programMain(static_cast<int>(arguments.size()), pointers.data());
}
} // namespace

PETREL_EXPORT const u8 _IwAppVersionMajor = S3E_VERSION_MAJOR;
PETREL_EXPORT const u8 _IwAppVersionMinor = S3E_VERSION_MINOR;

// With a table binds the platform's operations and returns 0; without one runs the program and returns its result.
PETREL_EXPORT int _IwAppEntry(const s3eFunctionTable* pTable)
{
    if (pTable == nullptr)
        return start();
    s3eTableBind(pTable);
    return 0;
}
