#include "znappcore/src/znCSoftwareCursor.h"

#include "znappcore/animatingSprite/znCAnimationDataManager.h"
#include "znappcore/components/znCAnimatingSpriteComponent.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

namespace
{
constexpr s32 LISTENER_PRIORITY = 2; // before all others
constexpr znCUniqueId LISTENED[] = {znIInputManager::POINTER_MOVE, znIInputManager::ENTER_CLIENT,
                                    znIInputManager::LEAVE_CLIENT};

znCSoftwareCursor* sInstance = nullptr; // owned by the display's tree
} // namespace

bool znCSoftwareCursor::mEnabled = false;

void znCSoftwareCursor::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCSoftwareCursor.\n");
    znIInputManager* input = znIInputManager::instanceGet();
    znIDisplay* display = znIDisplay::instanceGet();
    if (sInstance != nullptr || input == nullptr || display == nullptr ||
        input->pointerTypeGet() != znIInputManager::POINTER_TYPE_MOUSE)
        return;
    sInstance = new znCSoftwareCursor();
    sInstance->treeInitialise();
    display->childAdd(sInstance);
}

void znCSoftwareCursor::enabledSet(bool pEnabled)
{
    if (pEnabled == mEnabled)
        return;
    mEnabled = pEnabled;
    refresh();
}

znCSoftwareCursor::znCSoftwareCursor() : znIMessageListenerEntity("CustomCursor", LISTENER_PRIORITY) {}

znCSoftwareCursor::~znCSoftwareCursor()
{
    if (sInstance == this)
        sInstance = nullptr;
}

void znCSoftwareCursor::initialiseDo()
{
    znIMessageListenerEntity::initialiseDo();
    mSpriteComponent = componentAdd<znCAnimatingSpriteComponent>();
    if (mSpriteComponent == nullptr)
        return;
    mSpriteComponent->emptyCreate();
    cursorsLoad();
    refresh();
}

void znCSoftwareCursor::cursorsLoad()
{
    cursorAdd(CURSOR_DEFAULT, "cursors/software/default.xml");
}

void znCSoftwareCursor::cursorAdd(const znCUniqueId& pId, const std::string& pFile)
{
    const znCResourceName name(pFile, znCResourceName::GAME_DATA);
    znCAnimationDataManager* animations = znCAnimationDataManager::instanceGet();
    if (animations != nullptr)
        mCursors[pId] = animations->permanentDataGet(name, false);
}

void znCSoftwareCursor::refresh()
{
    if (sInstance != nullptr)
        sInstance->pictureApply();
}

void znCSoftwareCursor::pictureApply()
{
    const auto found = mCursors.find(CURSOR_DEFAULT);
    const znCAnimationDataPtr data = found != mCursors.end() ? found->second : nullptr;
    // Without a picture a person would have no pointer at all.
    const bool shown = mEnabled && mSpriteComponent != nullptr && data != nullptr && !data->framesGet().empty();
    if (znIHardware* hardware = znIHardware::instanceGet())
        hardware->systemCursorVisibleSet(!shown);
    if (mSpriteComponent == nullptr)
        return;
    mSpriteComponent->spriteGet()->dataSet(shown ? data : nullptr);
    mSpriteComponent->matrixApply();
}

void znCSoftwareCursor::messagesRegister()
{
    for (const znCUniqueId& type : LISTENED)
        znIInputManager::instanceGet()->listenerRegister(type, this);
}

void znCSoftwareCursor::messagesDeregister()
{
    for (const znCUniqueId& type : LISTENED)
        znIInputManager::instanceGet()->listenerDeregister(type, this);
}

bool znCSoftwareCursor::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znIInputManager::POINTER_MOVE)
    {
        znPoint position(0, 0);
        if (parentGet() != nullptr &&
            parentGet()->worldToLocalGet(static_cast<const znCPointerMessage*>(pData)->mPos, position))
            posSet(position);
    }
    else if (pType == znIInputManager::ENTER_CLIENT)
        activeSet(true);
    else if (pType == znIInputManager::LEAVE_CLIENT)
        activeSet(false);
    return false;
}
