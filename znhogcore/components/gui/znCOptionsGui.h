#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCOPTIONSGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCOPTIONSGUI_H

// The options window: changes apply at once and reach the disk when it is closed.
//
// Widgets: the sliders "OptionsMusicSlider" (heard while it moves) and "OptionsSfxSlider" (applied on release, with a
// click as sample); the check boxes "OptionsToggleMuteAll", "OptionsToggleFullScreen" (desktops only) and
// "OptionsToggleCustomCursor" (with a mouse only), and the group "OptionsTextSize0" to "OptionsTextSize2", each
// optional; the button "OptionsCloseButton".

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

#include <string>

class znCOptionsGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCOptionsGui"};

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool onButtonClicked(znCButtonComponent* pButton) override;
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

private:
    void sliderPositionsInitialise();
    void checkBoxesUpdate();
    void checkBoxSet(const std::string& pName, bool pChecked);
    bool musicSliderMoved(const std::string& pName, float pValue);
    bool effectsSliderReleased(const std::string& pName, float pValue);
    bool checkBoxToggled(const std::string& pName, bool pChecked);
    bool textSizeToggled(const std::string& pName);
};

#endif
