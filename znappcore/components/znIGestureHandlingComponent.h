#ifndef ZNAPPCORE_COMPONENTS_ZNIGESTUREHANDLINGCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNIGESTUREHANDLINGCOMPONENT_H

// Base of everything that the player presses, drags or pinches: turns the pointer messages into gestures on one entity,
// and says when it should light up. A subclass only overrides what it reacts to.
//
// The entity needs a znCSpriteComponent; whether a pointer is on the entity is that sprite's point test, by its hit
// map. From a press on it until the last pointer is up the component is the input manager's priority listener, so that
// moves and releases come to it wherever they happen.
//
// A tap is a press and a release on the sprite, whatever happened between. With taps and drags both enabled a press
// becomes a drag once it is more than DRAG_LIMIT pixels away on either axis. Two-pointer gestures need input points 0
// and 1 of a touch device.

#include "znappcore/znIMessageListenerComponent.h"
#include "zncore/znPoint.h"

#include <vector>

struct znCPointerMessage;

class znIGestureHandlingComponent : public znIMessageListenerComponent
{
public:
    static constexpr s32 DRAG_LIMIT = 16; // device pixels

    struct Pointer
    {
        znPoint mPos = znPoint(0, 0); // device pixels, where it was last seen
        bool mInGesture = false;
    };

    znIGestureHandlingComponent(znCEntity* pEntity, bool pTapEnabled, bool pDragEnabled, bool pTwoPointerEnabled);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    // Gives the priority listener up if the state is draining.
    ~znIGestureHandlingComponent() override;

    // Drops the gesture in progress without reporting its end.
    virtual void gestureCancel();
    virtual bool inputEnabled() = 0; // false: all pointer messages pass by, and a gesture in progress is dropped
    // mHighlighted has changed. True if that shows: only then does the component follow a mouse with no button down.
    virtual bool highlightChanged();
    virtual void onTap();
    // Positions are device pixels. A drag starts with onDragStart and onDragMove, and ends with onDragMove and
    // onDragEnd, at the same position each.
    virtual void onDragStart(const Pointer& pStart);
    virtual void onDragMove(const znPoint& pPos);
    virtual void onDragEnd(const znPoint& pPos);
    // pDelta: from where that pointer was last seen. The end comes behind a move to the same position.
    virtual void onTwoPointerStart(const Pointer& pFirst, const Pointer& pSecond);
    virtual void onTwoPointerMove(const znPoint& pPos, const znPoint& pDelta, s32 pId);
    virtual void onTwoPointerEnd(const znPoint& pPos, const znPoint& pDelta, s32 pId);

    // Only between gestures: "Not safe to change input type during a gesture.\n".
    void gestureTypesSet(bool pTap, bool pDrag, bool pTwoPointer);
    // Without a sprite component on the entity it logs so and the answer is false.
    bool hitTest(const znPoint& pPos) const;

protected:
    // In this order: states from STATE_UNDECIDED on hold at least one press.
    enum State : s32
    {
        STATE_IDLE = 0,
        STATE_HOVER = 1,     // a mouse with no button down is on the sprite, and that shows
        STATE_UNDECIDED = 2, // down; a tap or something longer
        STATE_TAPPING = 3,   // down; a release on the sprite will be a tap
        STATE_DRAGGING = 4,
        STATE_TWO_POINTER = 5,
        STATE_DRAINING = 6, // the gesture has ended, other pointers are still down
    };

    bool highlightedGet() const { return mHighlighted; }
    State stateGet() const { return mState; }

    // Begins a drag whose press another component has seen, without onDragStart. Idle, no pointer down.
    void dragAdopt(const znPoint& pPos, s32 pId);

private:
    bool pointerDownProcess(const znCPointerMessage& pMessage);
    bool pointerMoveProcess(const znCPointerMessage& pMessage, s32 pId, bool pDown);
    bool pointerUpProcess(const znCPointerMessage& pMessage, s32 pId);
    bool pointerStealProcess(const znCPointerMessage& pMessage);
    bool touchDownProcess(const znCPointerMessage& pMessage);

    bool gestureStartProcess(const znCPointerMessage& pMessage);
    bool secondPointerFirstProcess(const znCPointerMessage& pMessage);
    bool hoverProcess(const znCPointerMessage& pMessage);
    void hoverEnd();
    void pressStartProcess(const znCPointerMessage& pMessage, State pState);
    void tapEndProcess(const znCPointerMessage& pMessage);
    void dragBeginProcess(const znCPointerMessage& pMessage, s32 pId);
    void dragEndProcess(const znPoint& pPos);
    void twoPointerStartProcess(const znCPointerMessage& pMessage, s32 pId);
    void twoPointerMoveProcess(const znCPointerMessage& pMessage, s32 pId);
    void twoPointerEndProcess(const znCPointerMessage& pMessage, s32 pId);

    Pointer& pointerGet(s32 pId) { return mPointers[static_cast<std::size_t>(pId)]; }
    znPoint gesturePosGet() const;
    bool pastDragLimit(const znPoint& pPos, const znPoint& pPressPos) const;
    bool highlightedSet(bool pHighlighted);
    void priorityTake();
    void priorityGiveUp();

    std::vector<Pointer> mPointers; // by input point id
    State mState = STATE_IDLE;
    s32 mPointersDown = 0; // on this component
    bool mHighlighted = false;
    const bool mMouseMode;
    bool mTapEnabled;
    bool mDragEnabled;
    bool mTwoPointerEnabled;
};

#endif
