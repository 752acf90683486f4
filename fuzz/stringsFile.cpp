// Any bytes as the spreadsheet of texts, and as the plain table that stands in for it.

#include "tests/support/znCTestPlatform.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "zncore/debug/znIDebug.h"
#include <cstddef>

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    const std::string content(reinterpret_cast<const char*>(pData), pSize);
    for (const char* name : {"strings.xml", "strings.txt"})
    {
        znCTestPlatform platform;
        platform.mFiles.fileSet(name, content);
        znIDebug::create();
        znCLocalisedStrings::create();
        znCLocalisedStrings::localisedStringGet("quay");
        znCLocalisedStrings::destroy();
        znIDebug::destroy();
    }
    return 0;
}
