#include "src/CGameSpecificMain.h"

#include "zncore/debug/znIDebug.h"
#include "zncore/impl/platform/s3e.h"

void CGameSpecificMain::create()
{
    ZN_ASSERT(instanceGet() == nullptr, "Already created.");
    if (instanceGet() != nullptr)
        destroy();
    auto* instance = new CGameSpecificMain(); // deleted by znCAppCoreMain::destroy()
    instanceSet(instance);
    instance->startUp();
}

void CGameSpecificMain::firstGuiLoad()
{
    char screen[S3E_CONFIG_STRING_MAX];
    if (s3eConfigGetString("commandline", "argv[1]", screen) == S3E_RESULT_SUCCESS)
        nextScreenSet(screen);
    else
        znCHogCoreMain::firstGuiLoad();
}
