// Any bytes as a GUI file, the part behind the first byte 255 as a file that it includes: a screen that updates, takes
// a press and goes away, with no more log lines than a person would read.

#include "media/znNGraphics.h"
#include "tests/support/znCTestCore.h"
#include "znappcore/components/gui/znCGuiFileReader.h"
#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCComponentFactory.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "znappcore/znIInputManager.h"
#include "znappcore/znIRenderer.h"
#include "zncore/znCResourceName.h"

#include <cstdlib>

namespace
{
constexpr s32 SPRITES_MAX = 1024;
// Of one faulty element and of the line that names its place, two lines a check.
constexpr s32 CHECKS_OF_AN_ELEMENT = 12;

void singletonsCreate()
{
    znNGraphics::initialise();
    znIHardware::create();
    znCAppSettings::create();
    znINode::staticVectorsCreate();
    znIAudioManager::create();
    znCUserSavedData::create();
    znCGuiMessageDispatcher::create();
    znIDisplay::create();
    znIRenderer::create(SPRITES_MAX, SPRITES_MAX);
    znCBrushManager::create();
    znIInputManager::create();
    znCComponentFactory::create();
}

void singletonsDestroy()
{
    znCBrushManager::destroy();
    znIRenderer::destroy();
    znCComponentFactory::destroy();
    znIDisplay::destroy();
    znCUserSavedData::destroy();
    znIAudioManager::destroy();
    znINode::staticVectorsDestroy();
    znIInputManager::destroy();
    znIHardware::destroy();
    znCAppSettings::destroy();
    znCGuiMessageDispatcher::destroy();
    znNGraphics::terminate();
}

void frame()
{
    znIDisplay::instanceGet()->treeUpdate(16);
    znINode::flaggedNodesDestroy();
    znINode::newNodesParent();
    znIRenderer::instanceGet()->frameBegin();
    znIDisplay::instanceGet()->treeRender();
    znIRenderer::instanceGet()->frameEnd();
}

void press()
{
    znCPointerMessage message(znPoint(400, 300), 0, true);
    znIInputManager::instanceGet()->messageSend(znIInputManager::POINTER_DOWN, &message);
    message.mDown = false;
    znIInputManager::instanceGet()->messageSend(znIInputManager::POINTER_UP, &message);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    const znCTestCore core; // anew for each run, so that the log stays short
    znCTestPlatform& platform = *znCTestPlatform::instanceGet();
    const std::string text(reinterpret_cast<const char*>(pData), pSize);
    const std::size_t end = text.find('\xff');
    platform.mFiles.fileSet("appsettings.txt", "appCanvasW = \"800\",\nappCanvasH = \"600\",\n");
    platform.mFiles.fileSet("gui/test.txt", text.substr(0, end));
    if (end != std::string::npos)
        platform.mFiles.fileSet("gui/inc.txt", text.substr(end + 1));
    singletonsCreate();
    const s32 before = platform.logCountGet("ERROR(");
    znIGuiComponent::guiCreateFromFile(znCResourceName("gui/test.txt", 0), znIDisplay::instanceGet(), true);
    if (platform.logCountGet("ERROR(") - before > 2 * CHECKS_OF_AN_ELEMENT * (znCGuiFileReader::FAULT_LIMIT + 2))
        std::abort();
    frame();
    press();
    frame();
    singletonsDestroy();
    return 0;
}
