#include "znhogcore/components/znCSubSceneViewComponent.h"

#include "znappcore/src/znCEntity.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIInputManager.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>

namespace
{
constexpr float ZOOM_MAX = 2.0f;
constexpr float PIXELS_AT_SCALE_1 = 200.0f; // between the fingers

znPoint sumGet(const znPoint& pFirst, const znPoint& pSecond)
{
    return znPoint(znNCoreUtils::s32Saturate(s64(pFirst.mX) + pSecond.mX),
                   znNCoreUtils::s32Saturate(s64(pFirst.mY) + pSecond.mY));
}

znPoint differenceGet(const znPoint& pTo, const znPoint& pFrom)
{
    return znPoint(znNCoreUtils::s32Saturate(s64(pTo.mX) - pFrom.mX),
                   znNCoreUtils::s32Saturate(s64(pTo.mY) - pFrom.mY));
}

float distanceGet(const znPoint& pFirst, const znPoint& pSecond)
{
    const float x = static_cast<float>(pFirst.mX) - static_cast<float>(pSecond.mX);
    const float y = static_cast<float>(pFirst.mY) - static_cast<float>(pSecond.mY);
    return znNCoreUtils::sqrt(x * x + y * y);
}

// How far a picture of that size at that scale reaches beyond the screen on either side.
s32 overhangGet(s32 pCanvas, float pZoom, s32 pPlayable)
{
    const float overhang = (static_cast<float>(pCanvas) * pZoom - static_cast<float>(pPlayable)) * 0.5f;
    return std::max(static_cast<s32>(overhang), 0);
}

s32 excessGet(s32 pPan, s32 pLimit)
{
    return pPan - std::clamp(pPan, -pLimit, pLimit);
}

// Heavier the further it is past the edge already.
s32 dampedGet(s32 pDelta, s32 pExcess)
{
    const bool further = (pDelta > 0 && pExcess > 0) || (pDelta < 0 && pExcess < 0);
    return further ? pDelta / (znNCoreUtils::abs(pExcess) / 2 + 1) : pDelta;
}

s32 springGet(s32 pExcess)
{
    return znNCoreUtils::abs(pExcess) == 1 ? pExcess : pExcess / 2;
}
} // namespace

znCSubSceneViewComponent::znCSubSceneViewComponent(znCEntity* pEntity)
    : znIGestureHandlingComponent(pEntity, true, true, true)
{
    if (znIInputManager::instanceGet()->pointerTypeGet() == znIInputManager::POINTER_TYPE_MOUSE)
        return;
    mZoomEnabled = true;
    mPanEnabled = true;
    mMaxZoom = ZOOM_MAX;
    mCanvasWidth = znIDisplay::instanceGet()->visibleCanvasWidthGet();
    mCanvasHeight = znIDisplay::instanceGet()->visibleCanvasHeightGet();
}

void znCSubSceneViewComponent::messagesRegister()
{
    znIGestureHandlingComponent::messagesRegister();
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerRegister(znCHogMessageDispatcher::OPEN_SUB_SCENE, this);
    game->listenerRegister(znCHogMessageDispatcher::LEVEL_COMPLETE, this);
}

void znCSubSceneViewComponent::messagesDeregister()
{
    znIGestureHandlingComponent::messagesDeregister();
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerDeregister(znCHogMessageDispatcher::OPEN_SUB_SCENE, this);
    game->listenerDeregister(znCHogMessageDispatcher::LEVEL_COMPLETE, this);
}

bool znCSubSceneViewComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::OPEN_SUB_SCENE)
        mDragging = false;
    else if (pType == znCHogMessageDispatcher::LEVEL_COMPLETE && mZoomEnabled && isTopmost())
        viewReset();
    else if (pType == znIInputManager::POINTER_DOWN && stateGet() == STATE_IDLE)
        mPinched = false;
    mTapped = false;
    return znIGestureHandlingComponent::messageProcess(pType, pData) && !mTapped;
}

bool znCSubSceneViewComponent::isTopmost() const
{
    const znIHogLevel* level = znIHogLevel::levelGet();
    if (level == nullptr || !mEntity->activeInTreeGet())
        return false;
    const znCSubSceneComponent* top = level->currentSubSceneGet();
    return top != nullptr && top->entityGet() == mEntity;
}

void znCSubSceneViewComponent::viewReset()
{
    mZoom = mMinZoom;
    mPan = znPoint(0, 0);
    mDragging = false;
    viewApply();
}

bool znCSubSceneViewComponent::inputEnabled()
{
    return mZoomEnabled || mPanEnabled;
}

void znCSubSceneViewComponent::onTap()
{
    mTapped = !mPinched;
}

void znCSubSceneViewComponent::onTwoPointerStart(const Pointer& pFirst, const Pointer& pSecond)
{
    if (!mZoomEnabled)
        return;
    mPinching = true;
    mPinched = true;
    mTouch1 = pFirst.mPos;
    mTouch2 = pSecond.mPos;
    // A press that was taken from an object says nothing of where it is, until its finger moves.
    if (mTouch1 == znPoint(0, 0))
        return;
    pinchZoomSet();
    if (zoomStep())
        viewApply();
}

void znCSubSceneViewComponent::onTwoPointerMove(const znPoint& pPos, const znPoint&, s32 pId)
{
    if (!mZoomEnabled || !mPinching)
        return;
    (pId == 0 ? mTouch1 : mTouch2) = pPos;
    if (mTouch1 != znPoint(0, 0))
        pinchZoomSet();
}

void znCSubSceneViewComponent::pinchZoomSet()
{
    mPendingZoom = distanceGet(mTouch1, mTouch2) / PIXELS_AT_SCALE_1;
}

void znCSubSceneViewComponent::onTwoPointerEnd(const znPoint&, const znPoint&, s32)
{
    if (mZoomEnabled)
        mPinching = false;
}

void znCSubSceneViewComponent::onDragStart(const Pointer& pStart)
{
    if (!mPanEnabled || mZoom == mMinZoom)
        return;
    mDragging = true;
    mLastDrag = panSpaceGet(pStart.mPos);
    mDragDelta = znPoint(0, 0);
}

void znCSubSceneViewComponent::onDragMove(const znPoint& pPos)
{
    if (mPanEnabled && mDragging)
        dragDeltaAdd(pPos);
}

void znCSubSceneViewComponent::onDragEnd(const znPoint& pPos)
{
    if (!mPanEnabled)
        return;
    dragDeltaAdd(pPos);
    mDragging = false;
}

void znCSubSceneViewComponent::dragDeltaAdd(const znPoint& pPos)
{
    const znPoint pos = panSpaceGet(pPos);
    mDragDelta = sumGet(mDragDelta, differenceGet(pos, mLastDrag));
    mLastDrag = pos;
}

// Of the sub-scene's parent, so that the picture stays under the finger at any size of the screen.
znPoint znCSubSceneViewComponent::panSpaceGet(const znPoint& pPos) const
{
    znPoint local(0, 0);
    znINode* parent = mEntity->parentGet();
    return parent != nullptr && parent->worldToLocalGet(pPos, local) ? local : pPos;
}

void znCSubSceneViewComponent::update(s32)
{
    if (!mZoomEnabled && !mPanEnabled)
        return;
    const bool zoomed = zoomStep();
    if (panStep() || zoomed)
        viewApply();
}

bool znCSubSceneViewComponent::zoomStep()
{
    if (mPendingZoom == 0.0f)
        return false;
    const float before = mZoom;
    mZoom = std::clamp(mPendingZoom, mMinZoom, mMaxZoom);
    mPendingZoom = 0.0f;
    return mZoom != before;
}

bool znCSubSceneViewComponent::panStep()
{
    const znPoint limit = panLimitGet();
    const znPoint excess(excessGet(mPan.mX, limit.mX), excessGet(mPan.mY, limit.mY));
    if (mDragging)
    {
        const znPoint delta(dampedGet(mDragDelta.mX, excess.mX), dampedGet(mDragDelta.mY, excess.mY));
        mDragDelta = znPoint(0, 0);
        mPan = sumGet(mPan, delta);
        return delta != znPoint(0, 0);
    }
    mPan = differenceGet(mPan, znPoint(springGet(excess.mX), springGet(excess.mY)));
    return excess != znPoint(0, 0);
}

znPoint znCSubSceneViewComponent::panLimitGet() const
{
    const znIDisplay* display = znIDisplay::instanceGet();
    return znPoint(overhangGet(mCanvasWidth, mZoom, display->visibleCanvasWidthGet()),
                   overhangGet(mCanvasHeight, mZoom, display->visibleCanvasHeightGet()));
}

void znCSubSceneViewComponent::viewApply()
{
    mEntity->scaleSet(mZoom, mZoom);
    mEntity->posSet(sumGet(mEntity->posGet(), differenceGet(mPan, mPanApplied)));
    mPanApplied = mPan;
}
