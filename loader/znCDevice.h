#ifndef LOADER_ZNCDEVICE_H
#define LOADER_ZNCDEVICE_H

#include "loader/znCCallbackTable.h"

// Suspension and the request to quit.
class znCDevice
{
public:
    znCCallbackTable& callbacksGet() { return mCallbacks; }
    // A second suspension, or a resume without one, does nothing.
    void suspend();
    void resume();
    bool isSuspended() const { return mSuspended; }
    // A suspended module doesn't look at the request, so it is resumed first.
    void quitRequest();
    bool isQuitRequested() const { return mQuitRequested; }

private:
    znCCallbackTable mCallbacks;
    bool mSuspended = false;
    bool mQuitRequested = false;
};

#endif
