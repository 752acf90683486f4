#include "znappcore/components/gui/elements/znCCommodityButtonComponent.h"

#include "znappcore/components/gui/elements/znCButtonDelayComponent.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCUserSavedData.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"

#include <algorithm>

void znCCommodityButtonComponent::messagesRegister()
{
    znCButtonComponent::messagesRegister();
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(ITEM_PURCHASED, this);
}

void znCCommodityButtonComponent::messagesDeregister()
{
    znCButtonComponent::messagesDeregister();
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(ITEM_PURCHASED, this);
}

bool znCCommodityButtonComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == ITEM_PURCHASED)
    {
        countShow();
        imageShow();
    }
    return znCButtonComponent::messageProcess(pType, pData);
}

void znCCommodityButtonComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znCButtonComponent::initialiseFromVariableTableDo(pTable);
    mCommodity = pTable.strGet("commodity");
    ZN_ASSERT(!mCommodity.empty(), "Commodity button needs a commodity!");
    spriteInitialise(pTable);
}

void znCCommodityButtonComponent::spriteInitialise(const znCVariableTable& pTable)
{
    mCountText = znNGuiChildren::componentFind<znCTextSpriteComponent>(*this, COUNT_ENTITY);
    const std::string image = pTable.strGet("buttonDisabledImage");
    ZN_ASSERT(!image.empty(), "Expected a buttonImage for znCCommodityButtonComponent %s.\n",
              mEntity->nameGet().c_str());
    if (!image.empty())
        mDisabledBrush = znCPressBrushes::brushGet(image);
    countShow();
    imageShow();
}

s32 znCCommodityButtonComponent::countGet() const
{
    return std::max(znCUserSavedData::instanceGet()->s32Get(mCommodity), 0);
}

bool znCCommodityButtonComponent::highlightChanged()
{
    return countGet() != 0 && znCButtonComponent::highlightChanged();
}

void znCCommodityButtonComponent::onTap()
{
    const auto* delay = mEntity->componentGet<znCButtonDelayComponent>();
    const bool spends = delay == nullptr || delay->isCharging();
    if (countGet() > 0 || !spends)
    {
        mSpendingCancelled = false;
        znCButtonComponent::onTap();
        if (spends && !mSpendingCancelled)
            spend();
    }
    imageShow();
}

void znCCommodityButtonComponent::spend()
{
    znCUserSavedData::instanceGet()->s32Set(mCommodity, std::max(countGet() - 1, 0));
    countShow();
}

void znCCommodityButtonComponent::countShow()
{
    if (mCountText != nullptr)
        mCountText->textSet(std::to_string(countGet()));
}

void znCCommodityButtonComponent::imageShow()
{
    otherImageShow(countGet() == 0 ? mDisabledBrush : znCBrushPtr());
}
