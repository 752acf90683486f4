#ifndef ZNCORE_IMPL_PLATFORM_ZNCDEBUG_H
#define ZNCORE_IMPL_PLATFORM_ZNCDEBUG_H

// The log that znIDebug::create makes. While it exists, texts that the desktop's mouse extension wants logged go into
// it; it also starts with the system's cursor shown. On a platform without that extension both do nothing.

#include "zncore/debug/znIDebug.h"
#include <memory>

class znCDebug : public znIDebug
{
public:
    znCDebug();
    std::string textFormat(const char* pFormat, ...) override __attribute__((format(printf, 2, 3)));
    ~znCDebug() override;

private:
    std::unique_ptr<char[]> mFormatBuffer;
};

#endif
