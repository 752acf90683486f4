#include "znhogcore/components/znCLockComponent.h"

#include "znappcore/components/gui/znCNotificationsGui.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>

namespace
{
constexpr char PREFIX[] = "PRE-";
constexpr char HINT_PREFIX[] = "HINT-";
constexpr char KEY_END = '-';
constexpr char TASK_END = '+';
} // namespace

znCLockComponent::znCLockComponent(znCEntity* pEntity) : znCTappableCollectableComponent(pEntity)
{
    ghostSet(true);
    if (const znCNameComponent* name = znCNameComponent::get(pEntity))
        initialiseFromName(name->baseNameGet());
}

void znCLockComponent::initialiseFromName(const std::string& pBaseName)
{
    const std::size_t prefix = pBaseName.find(PREFIX);
    ZN_ASSERT(prefix != std::string::npos, "Expected lock name %s to contain %s.\n", pBaseName.c_str(), PREFIX);
    std::string rest = prefix == std::string::npos ? pBaseName : pBaseName.substr(prefix + sizeof(PREFIX) - 1);
    for (std::size_t end = rest.find(KEY_END); end != std::string::npos; end = rest.find(KEY_END))
    {
        mKeys.push_back({rest.substr(0, end), false});
        rest.erase(0, end + 1);
    }
    ZN_ASSERT(!mKeys.empty(), "Expected lock %s to require keys to unlock.\n", pBaseName.c_str());
    const std::size_t taskEnd = rest.find(TASK_END);
    if (taskEnd != std::string::npos)
        mTaskName = rest.substr(0, taskEnd);
}

bool znCLockComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    // An open lock has started its effects again when it was loaded.
    if (pType == znCHogMessageDispatcher::LEVEL_LOAD_COMP && collectingGet() && allKeysUsedGet())
        return false;
    return znCTappableCollectableComponent::messageProcess(pType, pData);
}

void znCLockComponent::collectionProcessTrigger()
{
    std::string hint = HINT_PREFIX;
    for (const Key& key : mKeys)
        if (!key.mUsed)
            hint += key.mKey + KEY_END;
    if (!mTaskName.empty())
        hint += mTaskName + TASK_END;
    std::string text;
    znCNotificationsGui* notifications = znCNotificationsGui::instanceGet();
    if (notifications != nullptr && znCLocalisedStrings::localisedStringGetIfExists(hint + keyGet(), text))
        notifications->notificationAdd(text);
}

void znCLockComponent::collectionComplete()
{
    if (mTaskName.empty())
        znCTappableCollectableComponent::collectionComplete();
    else
        znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::TASK_COMPLETE, &mTaskName);
}

void znCLockComponent::resetDo()
{
    znCTappableCollectableComponent::resetDo();
    for (Key& key : mKeys)
        key.mUsed = false;
}

bool znCLockComponent::keyTry(znCEntity* pKeyEntity, znCSpriteComponent* pDragSprite)
{
    Key* needed = neededKeyFind(pKeyEntity);
    auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    if (needed == nullptr || sprite == nullptr || pDragSprite == nullptr || !sprite->hitTest(*pDragSprite, true))
        return false;
    needed->mUsed = true;
    if (allKeysUsedGet())
        znCTappableCollectableComponent::collectionProcessTrigger();
    return true;
}

bool znCLockComponent::keyNeeded(const znCEntity* pKeyEntity)
{
    return neededKeyFind(pKeyEntity) != nullptr;
}

znCLockComponent::Key* znCLockComponent::neededKeyFind(const znCEntity* pKeyEntity)
{
    const znCNameComponent* name = znCNameComponent::get(pKeyEntity);
    if (name == nullptr)
        return nullptr;
    const auto key = std::find_if(mKeys.begin(), mKeys.end(),
                                  [name](const Key& pKey) { return !pKey.mUsed && pKey.mKey == name->keyGet(); });
    return key != mKeys.end() ? &*key : nullptr;
}

std::vector<std::string> znCLockComponent::keysGet() const
{
    std::vector<std::string> keys;
    for (const Key& key : mKeys)
        keys.push_back(key.mKey);
    return keys;
}

bool znCLockComponent::allKeysUsedGet() const
{
    return std::all_of(mKeys.begin(), mKeys.end(), [](const Key& pKey) { return pKey.mUsed; });
}

void znCLockComponent::forceComplete()
{
    if (allKeysUsedGet())
        return;
    for (Key& key : mKeys)
        key.mUsed = true;
    znCTappableCollectableComponent::collectionProcessTrigger();
}

void znCLockComponent::mySave(std::string& pOut)
{
    znCTappableCollectableComponent::mySave(pOut);
    for (const Key& key : mKeys)
        znINode::boolSave(pOut, key.mUsed);
}

void znCLockComponent::myLoad(std::string& pIn)
{
    znCTappableCollectableComponent::myLoad(pIn);
    for (Key& key : mKeys)
        key.mUsed = znINode::boolLoad(pIn);
    if (mState == STATE_COLLECTING && allKeysUsedGet())
    {
        mState = STATE_ACTIVE;
        znCTappableCollectableComponent::collectionProcessTrigger();
    }
}
