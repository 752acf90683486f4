#ifndef ZNAPPCORE_ZNCPOINTERMESSAGE_H
#define ZNAPPCORE_ZNCPOINTERMESSAGE_H

// The payload of the pointer messages of znIInputManager. It lives for the time of one delivery; listeners behind the
// one that changes it see the change.

#include "zncore/znPoint.h"
#include "zncore/znTypes.h"

class znIMessageListener;

struct znCPointerMessage
{
    znCPointerMessage(const znPoint& pPos, s32 pId, bool pDown) : mPos(pPos), mId(pId), mDown(pDown) {}

    znPoint mPos; // device pixels
    s32 mId;      // input point, 0 the primary one
    bool mDown;
    // Filled in by a listener that holds a press of another input point and would give it up to whoever makes a
    // two-pointer gesture of this one: that one calls its pointerCaptureCancel(). Not owned.
    znIMessageListener* mCaptureHolder = nullptr;
};

#endif
