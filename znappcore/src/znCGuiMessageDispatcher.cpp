#include "znappcore/src/znCGuiMessageDispatcher.h"

#include "znappcore/src/znCEntity.h"
#include "znappcore/znCButtonActionData.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "zncore/debug/znIDebug.h"

#include <memory>

namespace
{
std::unique_ptr<znCGuiMessageDispatcher> sInstance;
}

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
    if (pType == CLOSE_GUI)
        closeGuiMessageHandle(*static_cast<znCButtonActionData*>(pData));
    else if (pType == LAUNCH_BROWSER)
        znIHardware::instanceGet()->urlOpen(static_cast<znCButtonActionData*>(pData)->mParam);
    else
        return znIMessageDispatcher::messageSend(pType, pData);
    return true;
}

void znCGuiMessageDispatcher::closeGuiMessageHandle(const znCButtonActionData& pAction)
{
    // A node without a name is not what an action without an argument means.
    znINode* gui = pAction.mParam.empty() ? nullptr : znIDisplay::instanceGet()->childFind(pAction.mParam);
    ZN_ASSERT(gui != nullptr, "Gui %s not found for closing.\n", pAction.mParam.c_str());
    if (gui != nullptr)
        gui->destroy();
}
