#include "znhogcore/components/gui/znCEndMenuGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogUserSavedData.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr char CONTINUE[] = "endScreenGUIContinueButton";
} // namespace

bool znCEndMenuGui::onButtonClicked(znCButtonComponent* pButton)
{
    znCHogUserSavedData* user = znCHogUserSavedData::instanceGet();
    if (pButton->entityGet()->nameGet() != CONTINUE ||
        user->strGet(znCHogUserSavedData::CURRENT_LEVEL) == NO_MORE_LEVELS)
        return false;
    if (znIHogLevel* level = znIHogLevel::levelGet())
        level->levelQuit();
    user->strSet(znCHogUserSavedData::CURRENT_LEVEL, NO_MORE_LEVELS);
    user->strSet(znCHogUserSavedData::MAP_LEVEL, "");
    return true;
}
