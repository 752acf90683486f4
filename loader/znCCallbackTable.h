#ifndef LOADER_ZNCCALLBACKTABLE_H
#define LOADER_ZNCCALLBACKTABLE_H

#include "zncore/impl/platform/s3e.h"

#include <cstddef>
#include <vector>

// The callbacks that the module registered with one service, by the number of their event. A callback may register and
// deregister others, or itself, while it runs.
class znCCallbackTable
{
public:
    // Registering a callback again for the same event replaces its user data.
    s3eResult callbackRegister(s32 pEvent, s3eCallback pCallback, void* pUserData);
    s3eResult callbackUnRegister(s32 pEvent, s3eCallback pCallback);
    // Calls those of the event in the order of their registering.
    void callbacksCall(s32 pEvent, void* pSystemData);

private:
    struct Entry
    {
        s32 mEvent;
        s3eCallback mCallback; // null: deregistered while a call was going on
        void* mUserData;
    };

    Entry* entryFind(s32 pEvent, s3eCallback pCallback);

    std::vector<Entry> mEntries;
    s32 mCallDepth = 0;
};

#endif
