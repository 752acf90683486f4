#include "znappcore/components/gui/elements/znCCheckBoxComponent.h"

#include "znappcore/components/gui/elements/znCCheckBoxGroupComponent.h"
#include "znappcore/components/gui/elements/znCPressBrushes.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"

namespace
{
constexpr const char* IMAGE_KEYS[] = {"imageOff", "imageOffOver", "imageOn", "imageOnOver"};
}

znCCheckBoxComponent::znCCheckBoxComponent(znCEntity* pEntity)
    : znIGestureHandlingComponent(pEntity, true, false, false), mState{&pEntity->nameGet(), false}
{
}

znCCheckBoxComponent::~znCCheckBoxComponent()
{
    if (mGroup != nullptr)
        mGroup->boxRemove(*this);
}

void znCCheckBoxComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIGestureHandlingComponent::initialiseFromVariableTableDo(pTable);
    mSprite = mEntity->componentAdd<znCSpriteComponent>();
    for (std::size_t i = 0; i < mBrushes.size(); ++i)
    {
        const std::string image = pTable.strGet(IMAGE_KEYS[i]);
        ZN_ASSERT(!image.empty(), "Expected a '%s' for znCButtonComponent %s.\n", IMAGE_KEYS[i],
                  mEntity->nameGet().c_str());
        mBrushes[i] = znCPressBrushes::brushGet(image);
    }
    brushShow();
    const auto* parent = dynamic_cast<const znCEntity*>(mEntity->parentGet());
    mGroup = parent != nullptr ? parent->componentGet<znCCheckBoxGroupComponent>() : nullptr;
    if (mGroup != nullptr)
        mGroup->boxAdd(*this);
}

bool znCCheckBoxComponent::inputEnabled()
{
    return mGroup == nullptr || !mState.mChecked;
}

bool znCCheckBoxComponent::highlightChanged()
{
    brushShow();
    return true;
}

void znCCheckBoxComponent::onTap()
{
    mState.mChecked = !mState.mChecked;
    if (mGroup != nullptr)
        mGroup->othersUncheck(*this);
    znCGuiMessageDispatcher::instanceGet()->messageSend(TOGGLED, &mState);
    brushShow();
}

void znCCheckBoxComponent::checkedSet(bool pChecked)
{
    mState.mChecked = pChecked;
    brushShow();
}

void znCCheckBoxComponent::brushShow()
{
    if (mSprite != nullptr)
        mSprite->brushSet(mBrushes[(mState.mChecked ? 2 : 0) | (highlightedGet() ? 1 : 0)]);
}
