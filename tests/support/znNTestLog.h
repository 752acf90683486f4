#ifndef TESTS_SUPPORT_ZNNTESTLOG_H
#define TESTS_SUPPORT_ZNNTESTLOG_H

// Reads what a test's log says.

#include "tests/support/znCTestPlatform.h"

#include <string>
#include <vector>

namespace znNTestLog
{
// The messages of the checks that failed since the last call, without place and line end.
std::vector<std::string> errorsTake(znCTestPlatform& pPlatform);
} // namespace znNTestLog

#endif
