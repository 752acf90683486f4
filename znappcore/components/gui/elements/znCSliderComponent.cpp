#include "znappcore/components/gui/elements/znCSliderComponent.h"

#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"

#include <algorithm>

namespace
{
constexpr float RANGE_LONGEST = 1e6f; // keeps positions far from the limits of s32
}

znCSliderComponent::znCSliderComponent(znCEntity* pEntity)
    : znIGestureHandlingComponent(pEntity, false, true, false), mState{&pEntity->nameGet(), 0.0f}
{
}

void znCSliderComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIGestureHandlingComponent::initialiseFromVariableTableDo(pTable);
    const std::string image = pTable.strGet("sliderImage");
    ZN_ASSERT(!image.empty(), "Expected a sliderImage for znCSliderComponent %s.\n", mEntity->nameGet().c_str());
    mBrushes.init(*mEntity, image, pTable.strGet("sliderImageDown"));
    const float range = pTable.f32Get("range");
    ZN_ASSERT(range > 0.0f, "Expecting a value to be set for 'range'.\n");
    mRange = range > 0.0f ? std::min(range, RANGE_LONGEST) : 0.0f;
    mOrigin = mEntity->posGet();
    mOrigin.mX += static_cast<s32>(mRange * -0.5f);
    valueSet(mState.mValue);
}

bool znCSliderComponent::inputEnabled()
{
    return true;
}

bool znCSliderComponent::highlightChanged()
{
    return mBrushes.show(highlightedGet());
}

void znCSliderComponent::onDragStart(const Pointer& pStart)
{
    mDragStartPos = parentSpaceGet(pStart.mPos);
    mDragStartValue = mState.mValue;
}

void znCSliderComponent::onDragMove(const znPoint& pPos)
{
    const float way = static_cast<float>(parentSpaceGet(pPos).mX) - static_cast<float>(mDragStartPos.mX);
    if (mRange > 0.0f)
        valueSet(way / mRange + mDragStartValue);
    znCGuiMessageDispatcher::instanceGet()->messageSend(MOVED, &mState);
}

void znCSliderComponent::onDragEnd(const znPoint&)
{
    znCGuiMessageDispatcher::instanceGet()->messageSend(RELEASED, &mState);
}

void znCSliderComponent::valueSet(float pValue)
{
    mState.mValue = pValue > 0.0f ? std::min(pValue, 1.0f) : 0.0f;
    mEntity->posSet(mOrigin.mX + static_cast<s32>(mState.mValue * mRange), mOrigin.mY);
}

void znCSliderComponent::valueMove(float pBy)
{
    valueSet(mState.mValue + pBy);
    znCGuiMessageDispatcher::instanceGet()->messageSend(MOVED, &mState);
    znCGuiMessageDispatcher::instanceGet()->messageSend(RELEASED, &mState);
}

znPoint znCSliderComponent::parentSpaceGet(const znPoint& pWorld) const
{
    znPoint local = pWorld;
    if (mEntity->parentGet() != nullptr)
        mEntity->parentGet()->worldToLocalGet(pWorld, local);
    return local;
}
