#include "znappcore/znIInputManager.h"

#include "znappcore/impl/platform/znCInputManager.h"
#include "znappcore/znCPointerMessage.h"
#include "zncore/debug/znIDebug.h"

namespace
{
znIInputManager* sInstance = nullptr; // deleted by destroy()
} // namespace

void znIInputManager::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znIInputManager.\n");
    if (sInstance != nullptr)
        destroy();
    sInstance = new znCInputManager();
    sInstance->initialise();
}

znIInputManager* znIInputManager::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance;
}

void znIInputManager::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    if (sInstance == nullptr)
        return;
    sInstance->platformDeregister();
    delete sInstance;
    sInstance = nullptr;
}

znIInputManager::~znIInputManager() = default;

void znIInputManager::initialise()
{
    platformRegister();
    ZN_ASSERT(mMaxInputPoints >= 1, "mMaxInputPoints has not been set.\n");
    for (s32 id = 0; id < mMaxInputPoints; ++id)
        mInputPoints.push_back(std::make_unique<znCInputPoint>(id));
}

znCInputPoint* znIInputManager::inputPointGet(s32 pId)
{
    if (pId < 0 || static_cast<std::size_t>(pId) >= mInputPoints.size())
        return nullptr;
    return mInputPoints[static_cast<std::size_t>(pId)].get();
}

void znIInputManager::update()
{
    platformUpdate();
    for (const auto& point : mInputPoints)
        inputPointUpdate(*point);
    codesSend(mTypedChars, TYPED_CHAR);
    codesSend(mNavigationKeys, NAVIGATION_KEY);
}

// The point is committed before its message goes out: a listener may wait for a text from the person, and an event that
// comes meanwhile belongs to the next update.
void znIInputManager::inputPointUpdate(znCInputPoint& pPoint)
{
    const bool changed = pPoint.downStateChanged();
    const bool moved = pPoint.wasMoved() && (pPoint.isDown() || pointerTypeGet() == POINTER_TYPE_MOUSE);
    znCPointerMessage message(pPoint.posGet(), pPoint.idGet(), pPoint.isDown());
    pPoint.commit();
    if (changed)
        messageSend(message.mDown ? POINTER_DOWN : POINTER_UP, &message);
    else if (moved)
        messageSend(POINTER_MOVE, &message);
}

// By place: a listener may wait for a text from the person, and more may come meanwhile.
void znIInputManager::codesSend(std::vector<s32>& pCodes, const znCUniqueId& pType)
{
    for (std::size_t i = 0; i < pCodes.size(); ++i)
    {
        s32 code = pCodes[i];
        messageSend(pType, &code);
    }
    pCodes.clear();
}
