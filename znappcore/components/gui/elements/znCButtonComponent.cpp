#include "znappcore/components/gui/elements/znCButtonComponent.h"

#include "znappcore/components/gui/elements/znCCheckBoxComponent.h"
#include "znappcore/components/gui/elements/znCSliderComponent.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"
#include "zncore/znStr.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr const char* CLICK_SOUND = "audio/sfx/click.wav";

// Their listeners expect other data than a button's.
constexpr znCUniqueId FOREIGN_MESSAGES[] = {
    znCCheckBoxComponent::TOGGLED, znCSliderComponent::MOVED, znCSliderComponent::RELEASED,
    znCGuiMessageDispatcher::TUTORIAL_BUTTON_PRESSED, znCGuiMessageDispatcher::PLAYER_SLOT_SELECTED};
} // namespace

znCButtonComponent::znCButtonComponent(znCEntity* pEntity) : znIGestureHandlingComponent(pEntity, true, false, false)
{
    mAction.mButton = this;
}

void znCButtonComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIGestureHandlingComponent::initialiseFromVariableTableDo(pTable);
    const std::string image = pTable.strGet("buttonImage");
    ZN_ASSERT(!image.empty(), "Expected a buttonImage for znCButtonComponent %s.\n", mEntity->nameGet().c_str());
    mBrushes.init(*mEntity, image, pTable.strGet("buttonDownImage"));
    actionSet(pTable.strGet("action"));
    if (pTable.strGet("font").empty())
        return;
    if (auto* label = mEntity->componentAdd<znCTextSpriteComponent>())
        label->initialiseFromVariableTable(pTable);
}

bool znCButtonComponent::inputEnabled()
{
    return true;
}

bool znCButtonComponent::highlightChanged()
{
    return mBrushes.show(highlightedGet());
}

void znCButtonComponent::onTap()
{
    actionPerform();
}

void znCButtonComponent::actionPerform()
{
    znIAudioManager::instanceGet()->effectPlay(znCResourceName(CLICK_SOUND, znCResourceName::GAME_DATA), false);
    if (mActionType != UNSET_ACTION)
    {
        znCGuiMessageDispatcher* dispatcher = znCGuiMessageDispatcher::instanceGet();
        if (!dispatcher->messageSend(mActionType, &mAction) && !dispatcher->listenerExists(mActionType))
            ZN_LOG("Nothing listens to the action of button %s.\n", mEntity->nameGet().c_str());
        return;
    }
    znIGuiComponent* gui = znIGuiComponent::owningGuiGet(this);
    const bool handled = gui != nullptr && gui->onButtonClicked(this);
    ZN_ASSERT(handled, "Action has not been set for button %s and its parent gui did not handle the event.\n",
              mEntity->nameGet().c_str());
}

void znCButtonComponent::actionSet(const std::string& pAction)
{
    const std::size_t blank = pAction.find(' ');
    znStr message = pAction.substr(0, blank);
    message.trimLeft();
    message.trimRight();
    const znCUniqueId type(message);
    const bool foreign =
        std::find(std::begin(FOREIGN_MESSAGES), std::end(FOREIGN_MESSAGES), type) != std::end(FOREIGN_MESSAGES);
    ZN_ASSERT(!foreign, "The action of button %s can't be %s, which isn't a button's message.\n",
              mEntity->nameGet().c_str(), message.c_str());
    mActionType = pAction.empty() || foreign ? UNSET_ACTION : type;
    mAction.mParam = blank == std::string::npos ? std::string() : pAction.substr(blank + 1);
}
