#include "src/CGameSpecificMain.h"

#include "zncore/debug/znIDebug.h"

void CGameSpecificMain::create()
{
    ZN_ASSERT(instanceGet() == nullptr, "Already created.");
    if (instanceGet() != nullptr)
        destroy();
    auto* instance = new CGameSpecificMain(); // deleted by znCAppCoreMain::destroy()
    instanceSet(instance);
    instance->startUp();
}
