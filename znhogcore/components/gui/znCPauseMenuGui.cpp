#include "znhogcore/components/gui/znCPauseMenuGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr char QUIT[] = "PauseQuitButton";
} // namespace

bool znCPauseMenuGui::onButtonClicked(znCButtonComponent* pButton)
{
    if (pButton->entityGet()->nameGet() != QUIT)
        return false;
    if (znIHogLevel* level = znIHogLevel::levelGet())
        level->levelQuit();
    return true;
}
