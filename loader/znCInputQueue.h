#ifndef LOADER_ZNCINPUTQUEUE_H
#define LOADER_ZNCINPUTQUEUE_H

#include "loader/znCInputEvent.h"

#include <vector>

// Input that waits for its frame.
//
// The module sees the state of keys and pointers once a frame, so a press and a release in one frame would be lost, as
// touchpads and slow machines make them. The queue therefore lets each key, button and finger change once a frame; a
// second change, or a motion of a pointer after its change, waits for the next frame, with all that came after it.
// Presses of what is down and releases of what is up are dropped. Before a suspension all that is down is released,
// since nobody tells the loader about releases while it is in the background.
class znCInputQueue
{
public:
    void eventAdd(const znCInputEvent& pEvent);
    // The text as characters, UTF-8 taken apart into UTF-16 units; bytes that are no UTF-8 are left out.
    void textAdd(const char* pText);
    // A key change, with the character that the key types (enter, backspace) unless Alt is held.
    void keyAdd(s32 pKey, bool pPressed);
    // Replaces the content of pEvents by what belongs to this frame.
    void frameTake(std::vector<znCInputEvent>& pEvents);

private:
    bool isHeld(const znCInputEvent& pEvent) const;
    bool isIdle(const znCInputEvent& pEvent) const;
    void downStateFollow(const znCInputEvent& pEvent);
    void allRelease(std::vector<znCInputEvent>& pEvents);

    std::vector<znCInputEvent> mPending;
    std::vector<znCInputEvent> mChanged; // changes of this frame
    std::vector<znCInputEvent> mDown;    // the presses whose release is still to come
    bool mAltDown = false;
};

#endif
