#include "znhogcore/components/gui/znCOptionsGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/elements/znCCheckBoxComponent.h"
#include "znappcore/components/gui/elements/znCSliderComponent.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCProfileManager.h"
#include "znappcore/src/znCSoftwareCursor.h"
#include "znappcore/src/znCUserSavedData.h"
#include "znappcore/znIAudioManager.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIHardware.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr char MUSIC_SLIDER[] = "OptionsMusicSlider";
constexpr char EFFECTS_SLIDER[] = "OptionsSfxSlider";
constexpr char MUTE_ALL[] = "OptionsToggleMuteAll";
constexpr char FULL_SCREEN[] = "OptionsToggleFullScreen";
constexpr char CUSTOM_CURSOR[] = "OptionsToggleCustomCursor";
constexpr char TEXT_SIZE[] = "OptionsTextSize"; // and the number of the step
constexpr char CLOSE[] = "OptionsCloseButton";
constexpr char SAMPLE[] = "audio/sfx/click.wav";

std::string textSizeBoxGet(s32 pSize)
{
    return TEXT_SIZE + std::to_string(pSize);
}

znCUserSavedData& user()
{
    return *znCUserSavedData::instanceGet();
}
} // namespace

void znCOptionsGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    sliderPositionsInitialise();
    checkBoxesUpdate();
}

void znCOptionsGui::sliderPositionsInitialise()
{
    auto* effects = znNGuiChildren::componentFind<znCSliderComponent>(*this, EFFECTS_SLIDER);
    ZN_ASSERT(effects != nullptr, "Expected to find a SliderComponent named 'OptionsSfxSlider'.\n");
    if (effects != nullptr)
        effects->valueSet(user().effectsVolumeGet());
    auto* music = znNGuiChildren::componentFind<znCSliderComponent>(*this, MUSIC_SLIDER);
    ZN_ASSERT(music != nullptr, "Expected to find a SliderComponent named 'OptionsMusicSlider'.\n");
    if (music != nullptr)
        music->valueSet(user().musicVolumeGet());
}

void znCOptionsGui::checkBoxesUpdate()
{
    checkBoxSet(MUTE_ALL, user().muteAllGet());
    checkBoxSet(FULL_SCREEN, user().fullScreenGet());
    checkBoxSet(CUSTOM_CURSOR, user().customCursorsGet());
    for (s32 size = 0; size <= znCUserSavedData::TEXT_SIZE_MAX; ++size)
        checkBoxSet(textSizeBoxGet(size), user().textSizeGet() == size);
    znNGuiChildren::activeSet(*this, FULL_SCREEN, znIHardware::instanceGet()->isDesktopGet());
    znNGuiChildren::activeSet(*this, CUSTOM_CURSOR,
                              znIInputManager::instanceGet()->pointerTypeGet() == znIInputManager::POINTER_TYPE_MOUSE);
}

void znCOptionsGui::checkBoxSet(const std::string& pName, bool pChecked)
{
    if (auto* box = znNGuiChildren::componentFind<znCCheckBoxComponent>(*this, pName))
        box->checkedSet(pChecked);
}

bool znCOptionsGui::onButtonClicked(znCButtonComponent* pButton)
{
    if (pButton->entityGet()->nameGet() != CLOSE)
        return false;
    // Points that reach the disk without the finds that brought them could be won twice.
    if (znIHogLevel::levelGet() != nullptr)
        znIHogLevel::levelGet()->progressStore();
    znCProfileManager::instanceGet()->dataSave();
    entityGet()->destroy();
    return true;
}

void znCOptionsGui::messagesRegister()
{
    znCGuiMessageDispatcher* dispatcher = znCGuiMessageDispatcher::instanceGet();
    dispatcher->listenerRegister(znCSliderComponent::MOVED, this);
    dispatcher->listenerRegister(znCSliderComponent::RELEASED, this);
    dispatcher->listenerRegister(znCCheckBoxComponent::TOGGLED, this);
    dispatcher->listenerRegister(znIDisplay::FULL_SCREEN_TOGGLE, this);
}

void znCOptionsGui::messagesDeregister()
{
    znCGuiMessageDispatcher* dispatcher = znCGuiMessageDispatcher::instanceGet();
    dispatcher->listenerDeregister(znCSliderComponent::MOVED, this);
    dispatcher->listenerDeregister(znCSliderComponent::RELEASED, this);
    dispatcher->listenerDeregister(znCCheckBoxComponent::TOGGLED, this);
    dispatcher->listenerDeregister(znIDisplay::FULL_SCREEN_TOGGLE, this);
}

bool znCOptionsGui::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znIDisplay::FULL_SCREEN_TOGGLE)
    {
        checkBoxesUpdate();
        return true;
    }
    if (pType == znCCheckBoxComponent::TOGGLED)
    {
        const auto& box = *static_cast<const znCCheckBoxComponent::State*>(pData);
        return checkBoxToggled(*box.mName, box.mChecked);
    }
    if (pType != znCSliderComponent::MOVED && pType != znCSliderComponent::RELEASED)
        return false;
    const auto& slider = *static_cast<const znCSliderComponent::State*>(pData);
    return pType == znCSliderComponent::MOVED ? musicSliderMoved(*slider.mName, slider.mValue)
                                              : effectsSliderReleased(*slider.mName, slider.mValue);
}

bool znCOptionsGui::musicSliderMoved(const std::string& pName, float pValue)
{
    if (pName != MUSIC_SLIDER)
        return false;
    user().f32Set(znCUserSavedData::MUSIC_VOLUME, pValue);
    znIAudioManager::instanceGet()->musicVolumeSet(pValue);
    return true;
}

bool znCOptionsGui::effectsSliderReleased(const std::string& pName, float pValue)
{
    if (pName != EFFECTS_SLIDER)
        return false;
    user().f32Set(znCUserSavedData::EFFECTS_VOLUME, pValue);
    znIAudioManager* audio = znIAudioManager::instanceGet();
    audio->effectsVolumeSet(pValue);
    audio->effectPlay(znCResourceName(SAMPLE, znCResourceName::GAME_DATA), false);
    return true;
}

bool znCOptionsGui::checkBoxToggled(const std::string& pName, bool pChecked)
{
    if (pName == MUTE_ALL)
    {
        user().boolSet(znCUserSavedData::MUTE_ALL, pChecked);
        znIAudioManager::instanceGet()->masterVolumeSet(pChecked ? 0.0f : 1.0f);
    }
    else if (pName == FULL_SCREEN)
    {
        user().boolSet(znCUserSavedData::FULL_SCREEN, pChecked);
        znIDisplay::instanceGet()->screenModeSet(pChecked);
    }
    else if (pName == CUSTOM_CURSOR)
    {
        user().boolSet(znCUserSavedData::CUSTOM_CURSORS, pChecked);
        znCSoftwareCursor::enabledSet(pChecked);
    }
    else
        return textSizeToggled(pName);
    return true;
}

bool znCOptionsGui::textSizeToggled(const std::string& pName)
{
    for (s32 size = 0; size <= znCUserSavedData::TEXT_SIZE_MAX; ++size)
    {
        if (pName != textSizeBoxGet(size))
            continue;
        user().s32Set(znCUserSavedData::TEXT_SIZE, size);
        znCProfileManager::textSizeApply(size);
        return true;
    }
    return false;
}
