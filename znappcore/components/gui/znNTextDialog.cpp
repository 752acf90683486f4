#include "znappcore/components/gui/znNTextDialog.h"

#include "znappcore/components/gui/znIGuiComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

znCEntity* znNTextDialog::dialogCreate(const char* pFile, const char* pTextEntity, znINode* pParent,
                                       const std::string& pText)
{
    znCEntity* gui =
        znIGuiComponent::guiCreateFromFile(znCResourceName(pFile, znCResourceName::GAME_DATA), nullptr, true);
    if (gui == nullptr)
        return nullptr;
    const auto* entity = dynamic_cast<const znCEntity*>(gui->childFind(pTextEntity));
    auto* text = entity != nullptr ? entity->componentGet<znCTextSpriteComponent>() : nullptr;
    ZN_ASSERT(entity != nullptr, "Expected to find a child entity called '%s'.\n", pTextEntity);
    ZN_ASSERT(entity == nullptr || text != nullptr, "Expected an znCTextSpriteComponent on the %s entity.\n",
              pTextEntity);
    if (text != nullptr)
        text->textSet(pText);
    pParent->childAdd(gui);
    return gui;
}
