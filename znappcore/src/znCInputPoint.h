#ifndef ZNAPPCORE_SRC_ZNCINPUTPOINT_H
#define ZNAPPCORE_SRC_ZNCINPUTPOINT_H

// What is known of one pointer: a mouse button or a finger. Platform events write it, the input manager's update reads
// it and tells what changed since the last one.

#include "zncore/znPoint.h"
#include "zncore/znTypes.h"

class znCInputPoint
{
public:
    explicit znCInputPoint(s32 pId) : mPos(0, 0), mId(pId) {}
    virtual ~znCInputPoint() = default;

    void stateSet(const znPoint& pPos, bool pDown);
    void posSet(const znPoint& pPos);
    const znPoint& posGet() const { return mPos; } // device pixels, the last known
    s32 idGet() const { return mId; }
    bool isDown() const { return mDown; }
    bool wasMoved() const { return mMoved; } // since the last commit()
    bool downStateChanged() const { return mDown != mWasDown; }
    void commit();

private:
    znPoint mPos;
    s32 mId; // place among the input manager's points; 0 is the primary pointer
    bool mMoved = false;
    bool mDown = false;
    bool mWasDown = false; // mDown as it stood when messages last went out
};

#endif
