#include "znappcore/components/gui/znCModalGuiComponent.h"

#include "znappcore/znIInputManager.h"

void znCModalGuiComponent::messagesRegister()
{
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerRegister(znIInputManager::POINTER_DOWN, this);
    input->listenerRegister(znIInputManager::POINTER_MOVE, this);
    input->listenerRegister(znIInputManager::POINTER_UP, this);
}

void znCModalGuiComponent::messagesDeregister()
{
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerDeregister(znIInputManager::POINTER_DOWN, this);
    input->listenerDeregister(znIInputManager::POINTER_MOVE, this);
    input->listenerDeregister(znIInputManager::POINTER_UP, this);
}

bool znCModalGuiComponent::messageProcess(const znCUniqueId&, void*)
{
    return mModal;
}
