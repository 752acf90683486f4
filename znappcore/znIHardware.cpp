#include "znappcore/znIHardware.h"

#include "znappcore/impl/platform/znCHardware.h"
#include "zncore/debug/znIDebug.h"

#include <memory>

namespace
{
std::unique_ptr<znIHardware> sInstance;
}

void znIHardware::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znIHardware.\n");
    sInstance = std::make_unique<znCHardware>();
}

znIHardware* znIHardware::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znIHardware::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}
