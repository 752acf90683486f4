#include "znhogcore/components/znCTaskComponent.h"

#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

void znCTaskComponent::messagesRegister()
{
    znICollectableComponent::messagesRegister();
    znCHogMessageDispatcher::instanceGet()->listenerRegister(znCHogMessageDispatcher::TASK_COMPLETE, this);
}

void znCTaskComponent::messagesDeregister()
{
    znICollectableComponent::messagesDeregister();
    znCHogMessageDispatcher::instanceGet()->listenerDeregister(znCHogMessageDispatcher::TASK_COMPLETE, this);
}

bool znCTaskComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType != znCHogMessageDispatcher::TASK_COMPLETE)
        return znICollectableComponent::messageProcess(pType, pData);
    const znCNameComponent* name = znCNameComponent::get(mEntity);
    if (name == nullptr || *static_cast<std::string*>(pData) != name->keyGet())
        return false;
    collectionProcessTrigger();
    return true;
}
