#ifndef ZNHOGCORE_COMPONENTS_ZNCSUBSCENEVIEWCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCSUBSCENEVIEWCOMPONENT_H

// Zoom and pan of a sub-scene on a touch device. Two fingers 200 pixels apart mean scale 1, 400 pixels scale 2,
// wherever the pinch began; one finger moves a picture that is larger than scale 1. Dragged past its edge the picture
// gets heavier, and released it springs back, half the way each frame. Winning the level sets the topmost one back.
//
// On a mouse device it does nothing. The entity needs a znCSpriteComponent.

#include "znappcore/components/znIGestureHandlingComponent.h"

class znCSubSceneViewComponent : public znIGestureHandlingComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSubSceneViewComponent"};

    explicit znCSubSceneViewComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    // A tap is also for the sub-scene, which lies behind.
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void update(s32 pDeltaMs) override;

    bool inputEnabled() override;
    void onTap() override;
    void onDragStart(const Pointer& pStart) override;
    void onDragMove(const znPoint& pPos) override;
    void onDragEnd(const znPoint& pPos) override;
    void onTwoPointerStart(const Pointer& pFirst, const Pointer& pSecond) override;
    void onTwoPointerMove(const znPoint& pPos, const znPoint& pDelta, s32 pId) override;
    void onTwoPointerEnd(const znPoint& pPos, const znPoint& pDelta, s32 pId) override;

private:
    bool isTopmost() const;
    void viewReset();
    void pinchZoomSet();
    bool zoomStep();
    bool panStep();
    void viewApply();
    znPoint panLimitGet() const;
    znPoint panSpaceGet(const znPoint& pPos) const;
    void dragDeltaAdd(const znPoint& pPos);

    float mPendingZoom = 0.0f; // to be applied; 0: none
    znPoint mTouch1{0, 0};     // device pixels, as the next
    znPoint mTouch2{0, 0};
    s32 mCanvasWidth = 0; // the playable canvas
    s32 mCanvasHeight = 0;
    float mMaxZoom = 1.0f;
    float mMinZoom = 1.0f;
    float mZoom = 1.0f;
    znPoint mPan{0, 0};        // canvas units from where the sub-scene's file places it
    znPoint mPanApplied{0, 0}; // the part of it that the entity's position holds
    bool mPinching = false;
    bool mDragging = false;
    znPoint mLastDrag{0, 0}; // canvas units, as the next
    znPoint mDragDelta{0, 0};
    bool mZoomEnabled = false;
    bool mPanEnabled = false;
    bool mPinched = false; // since the last press: its release is no tap
    bool mTapped = false;  // the message that is being processed was a tap
};

#endif
