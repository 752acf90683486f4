#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNNGUICHILDREN_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNNGUICHILDREN_H

// How a GUI finds its widgets: by the names of their entities, which its file gives.

#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znIComponent.h"

#include <string>

namespace znNGuiChildren
{
// The entity of that name at or below the GUI's own; null if there is none.
inline znCEntity* entityFind(const znIComponent& pGui, const std::string& pName)
{
    return dynamic_cast<znCEntity*>(pGui.entityGet()->childFind(pName));
}

// That entity's component of type T; null if either is missing.
template <class T>
T* componentFind(const znIComponent& pGui, const std::string& pName)
{
    const znCEntity* entity = entityFind(pGui, pName);
    return entity != nullptr ? entity->componentGet<T>() : nullptr;
}

// Shows or hides a widget; one that the file left out is fine.
inline void activeSet(const znIComponent& pGui, const std::string& pName, bool pActive)
{
    if (znCEntity* entity = entityFind(pGui, pName))
        entity->activeSet(pActive);
}

// Gives a widget that has a text this one; one that the file left out is fine.
inline void textSet(const znIComponent& pGui, const std::string& pName, const std::string& pText)
{
    if (znCEntity* entity = entityFind(pGui, pName))
        znCTextSpriteComponent::textSet(entity, pText);
}
} // namespace znNGuiChildren

#endif
