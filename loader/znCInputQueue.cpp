#include "loader/znCInputQueue.h"

#include "loader/znNKeyCodes.h"
#include "loader/znNUtf8.h"
#include "zncore/impl/platform/s3e.h"

#include <algorithm>

namespace
{
using Kind = znCInputEvent::Kind;

bool isChange(Kind pKind)
{
    return pKind == Kind::KEY || pKind == Kind::BUTTON || pKind == Kind::TOUCH;
}

bool sameSwitch(const znCInputEvent& pLeft, const znCInputEvent& pRight)
{
    return pLeft.mKind == pRight.mKind && pLeft.mId == pRight.mId;
}

bool pointerChanged(const znCInputEvent& pChange, const znCInputEvent& pMotion)
{
    if (pMotion.mKind == Kind::MOTION)
        return pChange.mKind == Kind::BUTTON;
    return pMotion.mKind == Kind::TOUCH_MOTION && pChange.mKind == Kind::TOUCH && pChange.mId == pMotion.mId;
}
} // namespace

void znCInputQueue::eventAdd(const znCInputEvent& pEvent)
{
    mPending.push_back(pEvent);
}

void znCInputQueue::textAdd(const char* pText)
{
    znNUtf8::unitsEach(pText, [this](u16 pUnit) { eventAdd({.mKind = Kind::CHARACTER, .mId = pUnit}); });
}

void znCInputQueue::keyAdd(s32 pKey, bool pPressed)
{
    eventAdd({.mKind = Kind::KEY, .mId = pKey, .mPressed = pPressed});
    if (pKey == S3E_KEY_ALT)
        mAltDown = pPressed;
    if (!pPressed || mAltDown)
        return;
    if (pKey == S3E_KEY_ENTER)
        eventAdd({.mKind = Kind::CHARACTER, .mId = 13});
    if (pKey == znNKeyCodes::BACKSPACE)
        eventAdd({.mKind = Kind::CHARACTER, .mId = 8});
}

bool znCInputQueue::isHeld(const znCInputEvent& pEvent) const
{
    return std::any_of(mChanged.begin(), mChanged.end(),
                       [&pEvent](const znCInputEvent& pChange)
                       { return sameSwitch(pChange, pEvent) || pointerChanged(pChange, pEvent); });
}

bool znCInputQueue::isIdle(const znCInputEvent& pEvent) const
{
    const bool down = std::any_of(mDown.begin(), mDown.end(),
                                  [&pEvent](const znCInputEvent& pDown) { return sameSwitch(pDown, pEvent); });
    return isChange(pEvent.mKind) && down == pEvent.mPressed;
}

void znCInputQueue::downStateFollow(const znCInputEvent& pEvent)
{
    for (znCInputEvent& down : mDown)
        if (pointerChanged(down, pEvent))
        {
            down.mX = pEvent.mX;
            down.mY = pEvent.mY;
        }
    if (!isChange(pEvent.mKind))
        return;
    mChanged.push_back(pEvent);
    std::erase_if(mDown, [&pEvent](const znCInputEvent& pDown) { return sameSwitch(pDown, pEvent); });
    if (pEvent.mPressed)
        mDown.push_back(pEvent);
}

void znCInputQueue::allRelease(std::vector<znCInputEvent>& pEvents)
{
    for (znCInputEvent release : mDown)
    {
        release.mPressed = false;
        pEvents.push_back(release);
    }
    mDown.clear();
    mAltDown = false;
}

void znCInputQueue::frameTake(std::vector<znCInputEvent>& pEvents)
{
    pEvents.clear();
    mChanged.clear();
    size_t taken = 0;
    for (; taken < mPending.size() && !isHeld(mPending[taken]); ++taken)
    {
        const znCInputEvent event = mPending[taken];
        if (isIdle(event))
            continue;
        if (event.mKind == Kind::SUSPEND)
            allRelease(pEvents);
        downStateFollow(event);
        pEvents.push_back(event);
    }
    mPending.erase(mPending.begin(), mPending.begin() + static_cast<std::ptrdiff_t>(taken));
}
