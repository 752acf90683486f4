#ifndef LOADER_ZNCPOINTER_H
#define LOADER_ZNCPOINTER_H

#include "loader/znCCallbackTable.h"
#include "loader/znCInputEvent.h"

// The mouse, or the fingers of a touch device.
class znCPointer
{
public:
    explicit znCPointer(bool pTouch) : mTouch(pTouch) {}

    znCCallbackTable& callbacksGet() { return mCallbacks; }
    s32 intGet(s32 pProperty) const;
    // True until an event says otherwise: where nobody can tell, the mouse counts as inside.
    bool isInClientArea() const { return mInClientArea; }
    void eventApply(const znCInputEvent& pEvent);

private:
    znCCallbackTable mCallbacks;
    bool mTouch;
    bool mInClientArea = true;
};

#endif
