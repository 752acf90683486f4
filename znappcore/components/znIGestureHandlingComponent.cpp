#include "znappcore/components/znIGestureHandlingComponent.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"

#include <algorithm>
#include <cstdlib>

namespace
{
constexpr s32 TWO_POINTERS = 2;

znPoint differenceGet(const znPoint& pTo, const znPoint& pFrom)
{
    return znPoint(pTo.mX - pFrom.mX, pTo.mY - pFrom.mY);
}
} // namespace

// A two-pointer gesture marks pointers 0 and 1, so there are records for both even where the device has only one.
znIGestureHandlingComponent::znIGestureHandlingComponent(znCEntity* pEntity, bool pTapEnabled, bool pDragEnabled,
                                                         bool pTwoPointerEnabled)
    : znIMessageListenerComponent(pEntity),
      mPointers(static_cast<std::size_t>(std::max(TWO_POINTERS, znIInputManager::instanceGet()->maxInputPointsGet()))),
      mMouseMode(znIInputManager::instanceGet()->pointerTypeGet() == znIInputManager::POINTER_TYPE_MOUSE),
      mTapEnabled(pTapEnabled), mDragEnabled(pDragEnabled), mTwoPointerEnabled(pTwoPointerEnabled)
{
}

znIGestureHandlingComponent::~znIGestureHandlingComponent()
{
    if (mState == STATE_DRAINING)
        priorityGiveUp();
}

void znIGestureHandlingComponent::messagesRegister()
{
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerRegister(znIInputManager::POINTER_DOWN, this);
    input->listenerRegister(znIInputManager::POINTER_MOVE, this);
    input->listenerRegister(znIInputManager::POINTER_UP, this);
}

// Deregistering gives the priority listener up as well.
void znIGestureHandlingComponent::messagesDeregister()
{
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerDeregister(znIInputManager::POINTER_DOWN, this);
    input->listenerDeregister(znIInputManager::POINTER_MOVE, this);
    input->listenerDeregister(znIInputManager::POINTER_UP, this);
    mState = STATE_IDLE;
    mPointersDown = 0;
}

bool znIGestureHandlingComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    const bool isPointerMessage = pType == znIInputManager::POINTER_DOWN || pType == znIInputManager::POINTER_MOVE ||
                                  pType == znIInputManager::POINTER_UP || pType == znIInputManager::POINTER_DOWN_STEAL;
    if (!isPointerMessage)
        return false;
    if (!inputEnabled())
    {
        // Nothing else would end a gesture that was in progress when input was switched off.
        if (mState != STATE_IDLE)
            gestureCancel();
        return false;
    }
    const auto& message = *static_cast<znCPointerMessage*>(pData);
    if (message.mId < 0 || static_cast<std::size_t>(message.mId) >= mPointers.size())
        return false;
    if (pType == znIInputManager::POINTER_DOWN)
        return pointerDownProcess(message);
    if (pType == znIInputManager::POINTER_MOVE)
        return pointerMoveProcess(message, message.mId, message.mDown);
    if (pType == znIInputManager::POINTER_UP)
        return pointerUpProcess(message, message.mId);
    return pointerStealProcess(message);
}

bool znIGestureHandlingComponent::pointerDownProcess(const znCPointerMessage& pMessage)
{
    if (mState == STATE_IDLE || mState == STATE_HOVER)
        return gestureStartProcess(pMessage);
    if (mState == STATE_TAPPING)
        return false;
    if (mMouseMode)
    {
        ZN_ASSERT(false, "Down State not handled yet.\n");
        return false;
    }
    return touchDownProcess(pMessage);
}

// A further finger while a gesture is on.
bool znIGestureHandlingComponent::touchDownProcess(const znCPointerMessage& pMessage)
{
    ++mPointersDown;
    if (mState == STATE_DRAGGING && mTwoPointerEnabled && pMessage.mId < TWO_POINTERS)
    {
        dragEndProcess(gesturePosGet());
        twoPointerStartProcess(pMessage, pMessage.mId);
    }
    else if (mState == STATE_UNDECIDED && mTwoPointerEnabled && mPointersDown == TWO_POINTERS)
        twoPointerStartProcess(pMessage, pMessage.mId);
    return true;
}

bool znIGestureHandlingComponent::gestureStartProcess(const znCPointerMessage& pMessage)
{
    ZN_ASSERT(mPointersDown == 0, "Not expecting to get here when any pointers are down.\n");
    if (!hitTest(pMessage.mPos))
    {
        // A press far from where the mouse hovered comes without a move in between.
        if (mState == STATE_HOVER)
            hoverEnd();
        return false;
    }
    if (pMessage.mId != 0)
        return secondPointerFirstProcess(pMessage);
    if (!mTapEnabled && !mDragEnabled)
        return false;
    if (mState == STATE_IDLE)
        priorityTake();
    if (mTapEnabled)
        pressStartProcess(pMessage, mDragEnabled || mTwoPointerEnabled ? STATE_UNDECIDED : STATE_TAPPING);
    else
        dragBeginProcess(pMessage, pMessage.mId);
    ++mPointersDown;
    return true;
}

// The second finger comes down here while the first presses something else or nothing.
bool znIGestureHandlingComponent::secondPointerFirstProcess(const znCPointerMessage& pMessage)
{
    if (pMessage.mId != 1 || mMouseMode || !mTwoPointerEnabled)
        return false;
    ++mPointersDown;
    if (pMessage.mCaptureHolder != nullptr)
    {
        // Heard for just this time: the press that the holder gives up is for nobody else.
        znIInputManager* input = znIInputManager::instanceGet();
        input->listenerRegister(znIInputManager::POINTER_DOWN_STEAL, this);
        pMessage.mCaptureHolder->pointerCaptureCancel();
        input->listenerDeregister(znIInputManager::POINTER_DOWN_STEAL, this);
    }
    priorityTake();
    twoPointerStartProcess(pMessage, pMessage.mId);
    return true;
}

bool znIGestureHandlingComponent::pointerStealProcess(const znCPointerMessage& pMessage)
{
    if (mState != STATE_IDLE && mState != STATE_HOVER)
        return false;
    pointerGet(0) = {pMessage.mPos, true};
    ++mPointersDown;
    return true;
}

bool znIGestureHandlingComponent::pointerMoveProcess(const znCPointerMessage& pMessage, s32 pId, bool pDown)
{
    if (mMouseMode && !pDown)
        return hoverProcess(pMessage);
    Pointer& pointer = pointerGet(pId);
    if (!pointer.mInGesture)
        return false;
    switch (mState)
    {
    case STATE_UNDECIDED:
        if (pastDragLimit(pMessage.mPos, pointer.mPos))
            dragBeginProcess(pMessage, pId);
        return true;
    case STATE_TAPPING:
        highlightedSet(hitTest(pMessage.mPos));
        return true;
    case STATE_DRAGGING:
        onDragMove(pMessage.mPos);
        pointer.mPos = pMessage.mPos;
        return true;
    case STATE_TWO_POINTER:
        twoPointerMoveProcess(pMessage, pId);
        pointer.mPos = pMessage.mPos;
        return true;
    default:
        ZN_ASSERT(false, "Move State not handled yet.\n");
        return false;
    }
}

bool znIGestureHandlingComponent::hoverProcess(const znCPointerMessage& pMessage)
{
    if (mState != STATE_IDLE && mState != STATE_HOVER)
        return false;
    const bool hit = hitTest(pMessage.mPos);
    if (mState == STATE_HOVER)
    {
        if (!hit)
            hoverEnd();
        return hit;
    }
    if (!hit || mHighlighted || !highlightedSet(true))
        return false;
    priorityTake();
    mState = STATE_HOVER;
    return true;
}

void znIGestureHandlingComponent::hoverEnd()
{
    priorityGiveUp();
    mState = STATE_IDLE;
    highlightedSet(false);
}

bool znIGestureHandlingComponent::pointerUpProcess(const znCPointerMessage& pMessage, s32 pId)
{
    if (mState < STATE_UNDECIDED || (mMouseMode && pId != 0))
        return false;
    Pointer& pointer = pointerGet(pId);
    if (mState == STATE_TAPPING && !pointer.mInGesture)
        return false; // its press passed by as well
    --mPointersDown;
    if (pointer.mInGesture)
    {
        ZN_ASSERT(mState != STATE_DRAINING, "Pointer should not be in the gesture in this state.\n");
        pointer.mInGesture = false;
        if (mState == STATE_UNDECIDED || mState == STATE_TAPPING)
        {
            tapEndProcess(pMessage);
            return true;
        }
        if (mState == STATE_DRAGGING)
            dragEndProcess(pMessage.mPos);
        else if (mState == STATE_TWO_POINTER)
            twoPointerEndProcess(pMessage, pId);
    }
    if (mPointersDown == 0)
    {
        priorityGiveUp();
        mState = STATE_IDLE;
    }
    return true;
}

void znIGestureHandlingComponent::pressStartProcess(const znCPointerMessage& pMessage, State pState)
{
    mState = pState;
    pointerGet(pMessage.mId) = {pMessage.mPos, true};
    highlightedSet(true);
}

void znIGestureHandlingComponent::tapEndProcess(const znCPointerMessage& pMessage)
{
    highlightedSet(false);
    if (mPointersDown == 0)
    {
        mState = STATE_IDLE;
        priorityGiveUp();
    }
    else
        mState = STATE_DRAINING;
    if (hitTest(pMessage.mPos))
        onTap();
}

void znIGestureHandlingComponent::dragBeginProcess(const znCPointerMessage& pMessage, s32 pId)
{
    mState = STATE_DRAGGING;
    pointerGet(pId) = {pMessage.mPos, true};
    onDragStart(pointerGet(pId));
    onDragMove(pMessage.mPos);
    highlightedSet(false);
}

void znIGestureHandlingComponent::dragEndProcess(const znPoint& pPos)
{
    onDragMove(pPos);
    onDragEnd(pPos);
    mState = STATE_DRAINING;
    highlightedSet(false);
}

void znIGestureHandlingComponent::twoPointerStartProcess(const znCPointerMessage& pMessage, s32 pId)
{
    mState = STATE_TWO_POINTER;
    pointerGet(pId).mPos = pMessage.mPos;
    pointerGet(0).mInGesture = true;
    pointerGet(1).mInGesture = true;
    onTwoPointerStart(pointerGet(0), pointerGet(1));
}

void znIGestureHandlingComponent::twoPointerMoveProcess(const znCPointerMessage& pMessage, s32 pId)
{
    onTwoPointerMove(pMessage.mPos, differenceGet(pMessage.mPos, pointerGet(pId).mPos), pId);
}

void znIGestureHandlingComponent::twoPointerEndProcess(const znCPointerMessage& pMessage, s32 pId)
{
    twoPointerMoveProcess(pMessage, pId);
    onTwoPointerEnd(pMessage.mPos, differenceGet(pMessage.mPos, pointerGet(pId).mPos), pId);
    // One finger left can go on as a drag.
    if (mPointersDown == 1)
        mState = STATE_UNDECIDED;
    else
    {
        mState = STATE_DRAINING;
        pointerGet(0).mInGesture = false;
        pointerGet(1).mInGesture = false;
    }
    highlightedSet(false);
}

void znIGestureHandlingComponent::gestureCancel()
{
    const bool held = mState != STATE_IDLE;
    mState = STATE_IDLE;
    pointerGet(0).mInGesture = false;
    highlightedSet(false);
    mPointersDown = 0;
    // Kept, the slot would take the next press away from whoever makes it.
    if (held)
        priorityGiveUp();
}

void znIGestureHandlingComponent::dragAdopt(const znPoint& pPos, s32 pId)
{
    ZN_ASSERT(mState == STATE_IDLE, "Expected no gesture in progress.\n");
    ZN_ASSERT(mPointersDown == 0, "Not expecting to get here when any pointers are down.\n");
    if (pId < 0 || static_cast<std::size_t>(pId) >= mPointers.size())
        return;
    mState = STATE_DRAGGING;
    pointerGet(pId) = {pPos, true};
    mPointersDown = 1;
    priorityTake();
}

void znIGestureHandlingComponent::gestureTypesSet(bool pTap, bool pDrag, bool pTwoPointer)
{
    ZN_ASSERT(mState == STATE_IDLE, "Not safe to change input type during a gesture.\n");
    mTapEnabled = pTap;
    mDragEnabled = pDrag;
    mTwoPointerEnabled = pTwoPointer;
}

bool znIGestureHandlingComponent::hitTest(const znPoint& pPos) const
{
    auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    ZN_ASSERT(sprite != nullptr, "Expected a sprite component on entities with a GestureHandlingComponent.\n");
    return sprite != nullptr && sprite->hitTest(pPos, true);
}

// Where the first pointer of the gesture was last seen; a copy, since a new pointer may take its record.
znPoint znIGestureHandlingComponent::gesturePosGet() const
{
    const auto pointer =
        std::find_if(mPointers.begin(), mPointers.end(), [](const Pointer& p) { return p.mInGesture; });
    return pointer != mPointers.end() ? pointer->mPos : znPoint(0, 0);
}

bool znIGestureHandlingComponent::pastDragLimit(const znPoint& pPos, const znPoint& pPressPos) const
{
    return std::abs(s64(pPos.mX) - pPressPos.mX) > DRAG_LIMIT || std::abs(s64(pPos.mY) - pPressPos.mY) > DRAG_LIMIT;
}

// What highlightChanged() answers; false if nothing changed.
bool znIGestureHandlingComponent::highlightedSet(bool pHighlighted)
{
    if (mHighlighted == pHighlighted)
        return false;
    mHighlighted = pHighlighted;
    return highlightChanged();
}

void znIGestureHandlingComponent::priorityTake()
{
    znIInputManager::instanceGet()->priorityListenerRegister(this);
}

void znIGestureHandlingComponent::priorityGiveUp()
{
    znIInputManager::instanceGet()->priorityListenerDeregister(this);
}

bool znIGestureHandlingComponent::highlightChanged()
{
    return false;
}

void znIGestureHandlingComponent::onTap() {}

void znIGestureHandlingComponent::onDragStart(const Pointer&) {}

void znIGestureHandlingComponent::onDragMove(const znPoint&) {}

void znIGestureHandlingComponent::onDragEnd(const znPoint&) {}

void znIGestureHandlingComponent::onTwoPointerStart(const Pointer&, const Pointer&) {}

void znIGestureHandlingComponent::onTwoPointerMove(const znPoint&, const znPoint&, s32) {}

void znIGestureHandlingComponent::onTwoPointerEnd(const znPoint&, const znPoint&, s32) {}
