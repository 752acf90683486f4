#include "znhogcore/components/gui/znCEndMenuGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr char CONTINUE[] = "endScreenGUIContinueButton";
} // namespace

bool znCEndMenuGui::onButtonClicked(znCButtonComponent* pButton)
{
    znCUserSavedData* user = znCUserSavedData::instanceGet();
    if (pButton->entityGet()->nameGet() != CONTINUE ||
        user->strGet(znCHogCoreMain::CURRENT_LEVEL_KEY) == NO_MORE_LEVELS)
        return false;
    if (znIHogLevel* level = znIHogLevel::levelGet())
        level->levelQuit();
    user->strSet(znCHogCoreMain::CURRENT_LEVEL_KEY, NO_MORE_LEVELS);
    user->strSet(znCHogCoreMain::MAP_LEVEL_KEY, "");
    return true;
}
