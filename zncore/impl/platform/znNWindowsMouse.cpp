#include "zncore/impl/platform/znNWindowsMouse.h"
#include "zncore/impl/platform/s3eExtensions.h"

namespace
{
// Asked for anew each time: it costs one small copy, and a loader may bind another table.
windowsMouseExt extensionGet()
{
    windowsMouseExt table = {};
    if (s3eExtGetHash(S3E_MOUSE_HASH, &table, sizeof table) != S3E_RESULT_SUCCESS)
        return {};
    return table;
}
} // namespace

bool znNWindowsMouse::cursorVisibleSet(bool pVisible)
{
    const windowsMouseExt table = extensionGet();
    return table.cursorVisibleSet != nullptr && table.cursorVisibleSet(pVisible) != 0;
}

bool znNWindowsMouse::inClientAreaGet()
{
    const windowsMouseExt table = extensionGet();
    return table.inClientAreaGet != nullptr && table.inClientAreaGet() != 0;
}

void znNWindowsMouse::logCallbackRegister(s3eCallback pCallback, void* pUserData)
{
    if (const windowsMouseExt table = extensionGet(); table.logCallbackRegister != nullptr)
        table.logCallbackRegister(pCallback, pUserData);
}

void znNWindowsMouse::logCallbackUnRegister(s3eCallback pCallback)
{
    if (const windowsMouseExt table = extensionGet(); table.logCallbackUnRegister != nullptr)
        table.logCallbackUnRegister(pCallback);
}

void znNWindowsMouse::logTextReturn(const char* pText)
{
    if (const windowsMouseExt table = extensionGet(); table.logTextReturn != nullptr)
        table.logTextReturn(pText);
}
