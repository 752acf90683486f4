#include "znhogcore/components/gui/znCNewPlayerGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/elements/znCCheckBoxComponent.h"
#include "znappcore/components/gui/znCMessageBoxGui.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextEntryComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCGlobalSavedData.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCProfileManager.h"
#include "znappcore/src/znCScreenFade.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znStr.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/src/znCHogUserSavedData.h"

namespace
{
constexpr char ENTRY[] = "NewPlayerTextEntry";
constexpr char CASUAL[] = "NewPlayerCasual";
constexpr char MALE[] = "NewPlayerMale";
constexpr char FEMALE[] = "NewPlayerFemale";
constexpr char PORTRAIT[] = "NewPlayerCharacterPanel";
constexpr char OK[] = "NewPlayerOKButton";
constexpr char CANCEL[] = "NewPlayerCancelButton";
constexpr char PORTRAIT_MALE[] = "gui/newPlayer/character1M.png";
constexpr char PORTRAIT_FEMALE[] = "gui/newPlayer/character1F.png";
} // namespace

void znCNewPlayerGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    portraitUpdate();
}

bool znCNewPlayerGui::checkedGet(const char* pName) const
{
    const auto* box = znNGuiChildren::componentFind<znCCheckBoxComponent>(*this, pName);
    return box != nullptr && box->checkedGet();
}

void znCNewPlayerGui::portraitUpdate()
{
    auto* panel = znNGuiChildren::componentFind<znCSpriteComponent>(*this, PORTRAIT);
    if (panel == nullptr || znNGuiChildren::entityFind(*this, MALE) == nullptr)
        return;
    const znCResourceName picture(checkedGet(MALE) ? PORTRAIT_MALE : PORTRAIT_FEMALE, znCResourceName::GAME_DATA);
    panel->brushSet(znCBrushManager::instanceGet()->brushGet(picture, false));
}

bool znCNewPlayerGui::onButtonClicked(znCButtonComponent* pButton)
{
    const std::string& name = pButton->entityGet()->nameGet();
    if (name == OK)
    {
        if (!mSigned)
            okButtonClickedHandle();
    }
    else if (name == CANCEL)
    {
        if (!mSigned && znCGlobalSavedData::instanceGet()->profileCountGet() > 0)
            entityGet()->destroy();
    }
    else
        return false;
    return true;
}

void znCNewPlayerGui::okButtonClickedHandle()
{
    const auto* entry = znNGuiChildren::componentFind<znCTextEntryComponent>(*this, ENTRY);
    ZN_ASSERT(entry != nullptr, "Expected to find a TextEntryComponent called 'NewPlayerTextEntry'.\n");
    if (entry == nullptr)
        return;
    const std::string name = entry->textGet();
    if (name.empty())
        messageBoxShow("emptynamewarning", name);
    else if (!znCProfileManager::instanceGet()->profileNameIsFreeGet(name))
        messageBoxShow("duplicatenamewarning", name);
    else
        znCProfileManager::instanceGet()->profileCreate(name);
}

void znCNewPlayerGui::messageBoxShow(const char* pKey, const std::string& pName)
{
    znStr text = znCLocalisedStrings::localisedStringGet(pKey);
    if (pName.find("%NAME") == std::string::npos)
        text.replaceAll("%NAME", pName);
    znCMessageBoxGui::messageBoxCreate(entityGet(), text);
}

void znCNewPlayerGui::choicesStore()
{
    znCHogUserSavedData* user = znCHogUserSavedData::instanceGet();
    user->boolSet(znCHogUserSavedData::CASUAL, checkedGet(CASUAL));
    if (znNGuiChildren::entityFind(*this, MALE) != nullptr)
        user->boolSet(znCHogUserSavedData::MALE, checkedGet(MALE));
}

void znCNewPlayerGui::messagesRegister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCCheckBoxComponent::TOGGLED, this);
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCProfileManager::PROFILE_CREATION_COMPLETE, this);
}

void znCNewPlayerGui::messagesDeregister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCCheckBoxComponent::TOGGLED, this);
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCProfileManager::PROFILE_CREATION_COMPLETE, this);
}

bool znCNewPlayerGui::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCProfileManager::PROFILE_CREATION_COMPLETE)
    {
        mSigned = true;
        choicesStore();
        znCHogCoreMain::instanceGet()->firstSceneSet();
        znCScreenFade::instanceGet()->fadeOut(znCHogCoreMain::SCREEN_FADE_MS);
        return false;
    }
    if (pType != znCCheckBoxComponent::TOGGLED)
        return false;
    const std::string& name = *static_cast<const znCCheckBoxComponent::State*>(pData)->mName;
    if (name != MALE && name != FEMALE)
        return false;
    portraitUpdate();
    return true;
}
