#include "znhogcore/src/znCHogMessageDispatcher.h"

#include "zncore/debug/znIDebug.h"

#include <memory>

namespace
{
std::unique_ptr<znCHogMessageDispatcher> sInstance;
} // namespace

void znCHogMessageDispatcher::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCHogMessageDispatcher.\n");
    sInstance.reset(new znCHogMessageDispatcher);
}

znCHogMessageDispatcher* znCHogMessageDispatcher::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCHogMessageDispatcher::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}
