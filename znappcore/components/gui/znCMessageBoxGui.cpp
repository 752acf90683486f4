#include "znappcore/components/gui/znCMessageBoxGui.h"

#include "znappcore/components/gui/znNTextDialog.h"

znCEntity* znCMessageBoxGui::messageBoxCreate(znINode* pParent, const std::string& pText)
{
    return znNTextDialog::dialogCreate(FILE_NAME, TEXT_ENTITY, pParent, pText);
}
