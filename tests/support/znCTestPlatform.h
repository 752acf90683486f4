#ifndef TESTS_SUPPORT_ZNCTESTPLATFORM_H
#define TESTS_SUPPORT_ZNCTESTPLATFORM_H

// A platform for tests: a function table of its own with a virtual clock, files in memory, scripted input, a virtual
// window and recorded drawing, sound and calls of the operating system. Binds its table for as long as it lives; only
// one may live at a time. Nothing here touches the machine.
//
//     znCTestPlatform platform;
//     platform.mFiles.fileSet("appsettings.txt", "appCanvasW = \"1024\",\r\n");
//     platform.mInput.buttonQueue(0, true, 100, 200);

#include "tests/support/znCTestDraw.h"
#include "tests/support/znCTestFiles.h"
#include "tests/support/znCTestInput.h"
#include "tests/support/znCTestWindow.h"
#include "zncore/impl/platform/s3e.h"
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class znCTestPlatform
{
public:
    znCTestPlatform();
    znCTestPlatform(const znCTestPlatform&) = delete;
    znCTestPlatform& operator=(const znCTestPlatform&) = delete;
    ~znCTestPlatform();

    // The one that lives, null without one.
    static znCTestPlatform* instanceGet();

    znCTestFiles mFiles;
    znCTestInput mInput;
    znCTestWindow mWindow;
    znCTestDraw mDraw;

    u64 mClockMs = 1000;  // what s3eTimerGetMs says
    u64 mYieldStepMs = 0; // how far each s3eDeviceYield moves it
    s32 mYieldCount = 0;

    // Configuration values by group and name.
    void configSet(const std::string& pGroup, const std::string& pName, const std::string& pValue);
    void configRemove(const std::string& pGroup, const std::string& pName);

    // Adds or replaces an extension that s3eExtGetHash finds; the table is copied.
    void extensionSet(u32 pHash, const void* pTable, u32 pBytes);

    std::vector<std::string> mUrlsOpened; // by s3eOSExec
    s3eResult mOsExecResult = S3E_RESULT_SUCCESS;
    std::optional<std::string> mReadString; // what the person answers to s3eOSReadString; none: called off
    std::vector<std::pair<std::string, std::string>> mReadStringCalls; // prompt and default
    std::vector<std::string> mAudioCalls; // "play NAME REPEAT", "stop", "pause", "resume", "set PROPERTY VALUE"
    s3eResult mAudioResult = S3E_RESULT_SUCCESS;

    // What stands in the log.
    std::string logGet() const;
    // The same, from where the last logTake ended.
    std::string logTake();
    // How often a text stands in the log.
    s32 logCountGet(const std::string& pText) const;

    // --- for the table ---
    s3eResult configGet(const char* pGroup, const char* pName, char* pValue) const;
    s3eResult extensionGet(u32 pHash, void* pTable, u32 pBytes) const;

private:
    std::map<std::pair<std::string, std::string>, std::string> mConfig;
    std::map<u32, std::string> mExtensions; // bytes of the tables that tests added
    std::string::size_type mLogTaken = 0;
};

#endif
