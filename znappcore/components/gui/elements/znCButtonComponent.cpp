#include "znappcore/components/gui/elements/znCButtonComponent.h"

#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znIAudioManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"
#include "zncore/znStr.h"

namespace
{
constexpr const char* CLICK_SOUND = "audio/sfx/click.wav";
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
        znCGuiMessageDispatcher::instanceGet()->messageSend(mActionType, &mAction);
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
    mActionType = pAction.empty() ? UNSET_ACTION : znCUniqueId(message);
    mAction.mParam = blank == std::string::npos ? std::string() : pAction.substr(blank + 1);
}
