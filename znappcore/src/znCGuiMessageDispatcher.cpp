#include "znappcore/src/znCGuiMessageDispatcher.h"

#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/src/znCAppCoreMain.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCButtonActionData.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

#include <memory>

namespace
{
std::unique_ptr<znCGuiMessageDispatcher> sInstance;

// The display, the root of all screens, the fade and the cursor bear names too, but the program stands on them.
bool closableGet(const znINode& pNode)
{
    const auto* entity = dynamic_cast<const znCEntity*>(&pNode);
    return entity != nullptr &&
           (entity->parentGet() != znIDisplay::instanceGet() || znIGuiComponent::guiComponentGet(entity) != nullptr);
}
} // namespace

void znCGuiMessageDispatcher::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCGuiMessageDispatcher.\n");
    sInstance.reset(new znCGuiMessageDispatcher);
}

znCGuiMessageDispatcher* znCGuiMessageDispatcher::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCGuiMessageDispatcher::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

bool znCGuiMessageDispatcher::messageSend(const znCUniqueId& pType, void* pData)
{
    const bool isOwn = pType == CLOSE_GUI || pType == LOAD_GUI || pType == LOAD_GUI_TUT || pType == LAUNCH_BROWSER;
    if (!isOwn)
        return znIMessageDispatcher::messageSend(pType, pData);
    const auto& action = *static_cast<const znCButtonActionData*>(pData);
    if (pType == CLOSE_GUI)
        closeGuiMessageHandle(action);
    else if (pType == LAUNCH_BROWSER)
        znIHardware::instanceGet()->urlOpen(action.mParam);
    else
        loadGuiMessageHandle(action);
    if (pType == LOAD_GUI_TUT)
    {
        std::string name = buttonNameGet(action);
        messageSend(TUTORIAL_BUTTON_PRESSED, &name);
    }
    return true;
}

void znCGuiMessageDispatcher::closeGuiMessageHandle(const znCButtonActionData& pAction)
{
    // A node without a name is not what an action without an argument means.
    znINode* gui = pAction.mParam.empty() ? nullptr : znIDisplay::instanceGet()->childFind(pAction.mParam);
    const bool found = gui != nullptr && closableGet(*gui);
    ZN_ASSERT(found, "Gui %s not found for closing.\n", pAction.mParam.c_str());
    if (found)
        gui->destroy();
}

void znCGuiMessageDispatcher::loadGuiMessageHandle(const znCButtonActionData& pAction)
{
    znINode* parent = pAction.mButton != nullptr ? pAction.mButton->entityGet() : nullptr;
    while (parent != nullptr && znIGuiComponent::guiComponentGet(dynamic_cast<const znCEntity*>(parent)) == nullptr)
        parent = parent->parentGet();
    ZN_ASSERT(parent != nullptr, "Parent Gui not found for adding new child gui %s from button %s.\n",
              pAction.mParam.c_str(), buttonNameGet(pAction).c_str());
    const znCResourceName file(pAction.mParam, znCResourceName::GAME_DATA);
    znCEntity* gui = znIGuiComponent::guiCreateFromFile(file, parent, true);
    if (parent != nullptr || gui == nullptr)
        return;
    // Outside the tree it would take all input and never show.
    if (znCAppCoreMain* main = znCAppCoreMain::instanceGet())
        main->appDisplayChildAdd(gui);
    else
        znIDisplay::instanceGet()->childAdd(gui);
}

std::string znCGuiMessageDispatcher::buttonNameGet(const znCButtonActionData& pAction)
{
    return pAction.mButton != nullptr ? pAction.mButton->entityGet()->nameGet() : std::string();
}
