#include "zncore/impl/platform/znCDebug.h"
#include "zncore/impl/platform/znNWindowsMouse.h"
#include <cstdarg>
#include <cstdio>

namespace
{
constexpr u32 FORMAT_BUFFER_SIZE = 4096;

// The extension's text goes into the log and back to the extension.
s32 winMouseExtCallback(void* pSystemData, void*)
{
    const char* text = static_cast<const char*>(pSystemData);
    if (text == nullptr)
        return 0;
    ZN_LOG("%s", text);
    znNWindowsMouse::logTextReturn(text);
    return 0;
}
} // namespace

znCDebug::znCDebug() : mFormatBuffer(new char[FORMAT_BUFFER_SIZE])
{
    znNWindowsMouse::logCallbackRegister(winMouseExtCallback, nullptr);
    znNWindowsMouse::cursorVisibleSet(true);
}

znCDebug::~znCDebug()
{
    znNWindowsMouse::logCallbackUnRegister(winMouseExtCallback);
}

std::string znCDebug::textFormat(const char* pFormat, ...)
{
    va_list arguments;
    va_start(arguments, pFormat);
    const int length = std::vsnprintf(mFormatBuffer.get(), FORMAT_BUFFER_SIZE, pFormat, arguments);
    va_end(arguments);
    return length < 0 ? std::string() : std::string(mFormatBuffer.get());
}
