#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCCHOOSEPLAYERGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCCHOOSEPLAYERGUI_H

// The list of players. Its lines are the entities "ChoosePlayerProfile" + number, from 0; how many the file has is how
// many players there can be. A press on a line makes its player the current one at once.
//
// Other widgets: "ChoosePlayerHighlight", which stands behind the chosen line; "ChoosePlayerNewButton", which works by
// its action, "ChoosePlayerDeleteButton", which asks first, and "ChoosePlayerOKButton".

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

class znCChoosePlayerGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCChoosePlayerGui"};

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool onButtonClicked(znCButtonComponent* pButton) override;
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

private:
    znCEntity* slotFind(s32 pIndex) const;
    void buttonsUpdate();
    void currentProfileSet(s32 pIndex); // -1: nobody
    void highlightMove(s32 pIndex);
    void slotsRecount();
    void deletionAsk();
    void choiceConfirm();

    znCEntity* mHighlight = nullptr; // owned by the tree
    s32 mSelected = -1;
    s32 mSlotCount = 0;
};

#endif
