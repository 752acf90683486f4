#ifndef ZNCORE_IMPL_PLATFORM_ZNNWINDOWSMOUSE_H
#define ZNCORE_IMPL_PLATFORM_ZNNWINDOWSMOUSE_H

// The desktop's mouse extension as plain functions. Without the extension each answers false or does nothing.

#include "zncore/impl/platform/s3e.h"

namespace znNWindowsMouse
{
// True if the system's cursor now is as asked.
bool cursorVisibleSet(bool pVisible);
bool inClientAreaGet();
void logCallbackRegister(s3eCallback pCallback, void* pUserData);
void logCallbackUnRegister(s3eCallback pCallback);
void logTextReturn(const char* pText);
} // namespace znNWindowsMouse

#endif
