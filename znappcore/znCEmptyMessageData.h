#ifndef ZNAPPCORE_ZNCEMPTYMESSAGEDATA_H
#define ZNAPPCORE_ZNCEMPTYMESSAGEDATA_H

// The data of messages that say all with their type: one object for all of them, so that no listener meets null.
struct znCEmptyMessageData
{
    static znCEmptyMessageData* sharedGet()
    {
        static znCEmptyMessageData sShared;
        return &sShared;
    }
};

#endif
