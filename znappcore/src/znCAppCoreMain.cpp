#include "znappcore/src/znCAppCoreMain.h"

#include "znappcore/components/gui/znCNotificationsGui.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCEntityFactory.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCProfileManager.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/src/znCSoftwareCursor.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "znappcore/znIInputManager.h"
#include "znappcore/znINode.h"
#include "znappcore/znIRenderer.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/xml/znCXmlParser.h"
#include "zncore/znCResourceName.h"

namespace
{
constexpr s32 FRAME_LONGEST_MS = 200; // a longer step is a hitch, not play time
constexpr s32 FRAME_HITCH_MS = 16;    // what such a step counts as
constexpr char FIRST_GUI[] = "gui/splashScreen/splashScreen.txt";
constexpr s32 SPRITES_MAX = 1024;
constexpr s32 MATERIAL_CHANGES_MAX = 1024;

znCAppCoreMain* sInstance = nullptr; // deleted by destroy()
} // namespace

znCAppCoreMain* znCAppCoreMain::instanceGet()
{
    return sInstance;
}

void znCAppCoreMain::instanceSet(znCAppCoreMain* pInstance)
{
    sInstance = pInstance;
}

void znCAppCoreMain::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    if (sInstance == nullptr)
        return;
    sInstance->shutDown();
    delete sInstance;
    sInstance = nullptr;
}

void znCAppCoreMain::startUp()
{
    znIDebug::create();
    znIHardware::create();
    znCAppSettings::create();
    znCLocalisedStrings::create();
    znINode::staticVectorsCreate();
    znIAudioManager::create();
    savedDataCreate();
    znCProfileManager::create();
    znCGuiMessageDispatcher::create();
    znIDisplay::create();
    appDisplayNodeCreate();
    znIRenderer::create(SPRITES_MAX, MATERIAL_CHANGES_MAX);
    znCBrushManager::create();
    znIInputManager::create();
    factoriesCreate();
    messageDispatchersCreate();
    // The display's children in the order of painting: the application, the notifications, the fade, the cursor.
    notificationsGuiCreate();
    screenFadeCreate();
    softwareCursorCreate();
    firstGuiLoad();
}

void znCAppCoreMain::shutDown()
{
    shutDownPrepare();
    znCBrushManager::destroy();
    znIRenderer::destroy();
    znCEntityFactory::destroy();
    znCComponentFactory::destroy();
    factoriesDestroy();
    znCXmlParser::poolsDestroy();
    znIDisplay::destroy(); // deletes the whole tree
    mAppDisplayNode = nullptr;
    znCProfileManager::destroy(); // writes the saved data once more
    znIAudioManager::destroy();
    znINode::staticVectorsDestroy();
    znIInputManager::destroy();
    znCLocalisedStrings::destroy();
    znIHardware::destroy();
    znCAppSettings::destroy();
    znIDebug::destroy();
    messageDispatchersDestroy();
}

bool znCAppCoreMain::frameUpdate(s32 pDeltaMs)
{
    const s32 delta = pDeltaMs > FRAME_LONGEST_MS ? FRAME_HITCH_MS : pDeltaMs;
    znIInputManager::instanceGet()->update();
    znIDisplay::instanceGet()->treeUpdate(delta);
    znINode::flaggedNodesDestroy();
    znINode::newNodesParent();
    znIAudioManager::instanceGet()->update(delta);
    appUpdate(delta);
    frameRender();
    return mQuit;
}

void znCAppCoreMain::frameRender()
{
    znIRenderer* renderer = znIRenderer::instanceGet();
    renderer->frameClear();
    renderer->frameBegin();
    znIDisplay::instanceGet()->treeRender();
    renderer->frameEnd();
}

void znCAppCoreMain::quitSet(bool pQuit)
{
    mQuit = pQuit;
}

void znCAppCoreMain::appDisplayChildAdd(znINode* pNode)
{
    mAppDisplayNode->childAdd(pNode);
}

znINode* znCAppCoreMain::appDisplayChildFind(const std::string& pName)
{
    return mAppDisplayNode->childFind(pName);
}

void znCAppCoreMain::appDisplayNodeCreate()
{
    mAppDisplayNode = new znINode("AppDisplay");
    znIDisplay::instanceGet()->childAdd(mAppDisplayNode);
}

void znCAppCoreMain::notificationsGuiCreate()
{
    znCNotificationsGui::create();
}

void znCAppCoreMain::screenFadeCreate()
{
    znCScreenFade::create();
}

void znCAppCoreMain::softwareCursorCreate()
{
    znCSoftwareCursor::create();
}

void znCAppCoreMain::savedDataCreate()
{
    znCGlobalSavedData::create();
    znCUserSavedData::create();
}

void znCAppCoreMain::messageDispatchersDestroy()
{
    znCGuiMessageDispatcher::destroy();
}

void znCAppCoreMain::messageDispatchersCreate() {}

void znCAppCoreMain::firstGuiLoad()
{
    // Not modal: the first pictures listen for presses themselves, and nothing lies beneath them.
    const znCResourceName file(FIRST_GUI, znCResourceName::GAME_DATA);
    if (znCEntity* gui = znIGuiComponent::guiCreateFromFile(file, nullptr, false))
        mAppDisplayNode->childAdd(gui);
}

void znCAppCoreMain::shutDownPrepare() {}

void znCAppCoreMain::suspendPrepare()
{
    znCProfileManager::instanceGet()->changesSave();
}

void znCAppCoreMain::factoriesDestroy() {}

void znCAppCoreMain::appUpdate(s32) {}

void znCAppCoreMain::factoriesCreate()
{
    znCComponentFactory::create();
    znCEntityFactory::create();
}
