#include "znappcore/src/znCAppSettings.h"

#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

namespace
{
znCAppSettings* sInstance = nullptr; // deleted by destroy()
}

void znCAppSettings::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCAppSettings.\n");
    delete sInstance;
    sInstance = new znCAppSettings();
    sInstance->fileLoad(znCResourceName("appSettings.txt", 0));
}

znCAppSettings* znCAppSettings::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance;
}

void znCAppSettings::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    delete sInstance;
    sInstance = nullptr;
}
