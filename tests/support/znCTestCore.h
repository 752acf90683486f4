#ifndef TESTS_SUPPORT_ZNCTESTCORE_H
#define TESTS_SUPPORT_ZNCTESTCORE_H

// What nearly every test stands on: the test platform with the log open. First member of a fixture; fixtures of higher
// layers put their singletons behind it.

#include "tests/support/znCTestPlatform.h"
#include "zncore/debug/znIDebug.h"

class znCTestCore
{
public:
    znCTestCore() { znIDebug::create(); }
    znCTestCore(const znCTestCore&) = delete;
    znCTestCore& operator=(const znCTestCore&) = delete;
    ~znCTestCore() { znIDebug::destroy(); }

    znCTestPlatform mPlatform;
};

#endif
