#include "znappcore/components/gui/znIGuiComponent.h"

#include "znappcore/components/gui/znCGuiFileReader.h"
#include "znappcore/components/gui/znCModalGuiComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"

void znIGuiComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIComponent::initialiseFromVariableTableDo(pTable);
    auto* modal = mEntity->componentGet<znCModalGuiComponent>();
    if (modal != nullptr && !pTable.boolGet("modal", true))
        modal->modalSet(false);
}

bool znIGuiComponent::onButtonClicked(znCButtonComponent*)
{
    return false;
}

znCEntity* znIGuiComponent::guiCreateFromFile(const znCResourceName& pFile, znINode* pParent, bool pModal)
{
    znCGuiFileReader reader(pParent, pModal);
    znCEntity* gui = reader.fileRead(pFile);
    ZN_ASSERT(gui != nullptr, "No GUI elements created from file %s\n", pFile.nameGet().c_str());
    if (gui != nullptr)
        gui->treeInitialise();
    return gui;
}

znCEntity* znIGuiComponent::entityWithComponentCreate(const znCUniqueId& pType, znINode* pParent)
{
    auto* entity = new znCEntity(""); // owned by pParent or the caller
    entity->componentAdd(pType);
    if (pParent != nullptr)
        pParent->childAdd(entity);
    return entity;
}

znIGuiComponent* znIGuiComponent::guiComponentGet(const znCEntity* pEntity)
{
    return pEntity != nullptr ? pEntity->componentFind<znIGuiComponent>() : nullptr;
}

znIGuiComponent* znIGuiComponent::owningGuiGet(const znIComponent* pComponent)
{
    for (const znINode* node = pComponent->entityGet()->parentGet(); node != nullptr; node = node->parentGet())
        if (znIGuiComponent* gui = guiComponentGet(dynamic_cast<const znCEntity*>(node)))
            return gui;
    return nullptr;
}
