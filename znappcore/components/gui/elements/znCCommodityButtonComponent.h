#ifndef ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCCOMMODITYBUTTONCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCCOMMODITYBUTTONCOMPONENT_H

// A button that spends something the player owns, one a press, and shows how much is left. Without any it does nothing
// and shows that too.
//
// With a znCButtonDelayComponent on its entity a press is free once the delay is over, and spends while it runs.
//
// Keys, besides those of a button: "commodity", the counter in the player's data; "buttonDisabledImage". Its child
// "commodityCount", a text, shows the counter.

#include "znappcore/components/gui/elements/znCButtonComponent.h"

class znCTextSpriteComponent;

class znCCommodityButtonComponent : public znCButtonComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCCommodityButtonComponent"};
    static constexpr const char* COUNT_ENTITY = "commodityCount";
    // On znCGuiMessageDispatcher; payload: znCEmptyMessageData. The player owns more of something.
    static constexpr znCUniqueId ITEM_PURCHASED{"itemPurchased"};

    using znCButtonComponent::znCButtonComponent;

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool highlightChanged() override;
    void onTap() override;

    s32 countGet() const; // what is left, never negative
    // For the one that acts on the press, while it does: there was nothing to do, so nothing is to be spent.
    void spendingCancel() { mSpendingCancelled = true; }

private:
    void spriteInitialise(const znCVariableTable& pTable);
    void spend();
    void countShow();
    void imageShow();

    znCTextSpriteComponent* mCountText = nullptr; // a child's
    std::string mCommodity;
    znCBrushPtr mDisabledBrush; // shown with none left
    bool mSpendingCancelled = false;
};

#endif
