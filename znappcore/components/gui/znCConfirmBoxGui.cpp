#include "znappcore/components/gui/znCConfirmBoxGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znNTextDialog.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znCEmptyMessageData.h"

bool znCConfirmBoxGui::onButtonClicked(znCButtonComponent* pButton)
{
    const std::string& name = pButton->entityGet()->nameGet();
    const bool yes = name == YES_BUTTON;
    if (!yes && name != NO_BUTTON)
        return false;
    znCGuiMessageDispatcher::instanceGet()->messageSend(yes ? YES_RESPONSE : NO_RESPONSE,
                                                        znCEmptyMessageData::sharedGet());
    mEntity->destroy();
    return true;
}

znCEntity* znCConfirmBoxGui::confirmBoxCreate(znINode* pParent, const std::string& pText)
{
    return znNTextDialog::dialogCreate(FILE_NAME, TEXT_ENTITY, pParent, pText);
}
