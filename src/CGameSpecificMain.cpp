#include "src/CGameSpecificMain.h"

#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCScreenFade.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/impl/platform/s3e.h"
#include "zncore/impl/platform/s3eExtensions.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr s32 REOPEN_FADE_MS = 50;

// "" if the program was started without one.
std::string screenAskedGet()
{
    char screen[S3E_CONFIG_STRING_MAX];
    return s3eConfigGetString("commandline", "argv[1]", screen) == S3E_RESULT_SUCCESS ? screen : "";
}
} // namespace

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
    changesFollow();
    const std::string screen = screenAskedGet();
    if (!screen.empty())
        nextScreenSet(screen);
    else
        znCHogCoreMain::firstGuiLoad();
}

void CGameSpecificMain::changesFollow()
{
    s3eAuthor author = {};
    if (s3eExtGetHash(S3E_AUTHOR_HASH, &author, sizeof author) != S3E_RESULT_SUCCESS)
        return;
    author.changeCallbackSet(
        [](void*, void*) -> s32
        {
            if (instanceGet() != nullptr)
                sceneReopen();
            return 0;
        },
        nullptr);
}

void CGameSpecificMain::sceneReopen()
{
    const znIHogLevel* level = znIHogLevel::levelGet();
    const std::string screen = level != nullptr ? level->levelNameGet() : screenAskedGet();
    if (screen.empty() || guiFileNameGet(screen))
        return;
    znCLocalisedStrings::destroy();
    znCLocalisedStrings::create();
    instanceGet()->nextScreenSet(screen);
    znCScreenFade::instanceGet()->fadeOut(REOPEN_FADE_MS);
}
