#ifndef LOADER_ZNCSCRIPTPLAYER_H
#define LOADER_ZNCSCRIPTPLAYER_H

#include "loader/znCInputQueue.h"
#include "loader/znCInputScript.h"

#include <functional>

// Carries out an input script, one frame boundary after the other. Every command of input ends its frame, so that the
// module sees each; waiting and shots take no frame.
class znCScriptPlayer
{
public:
    using ShotTake = std::function<void(const std::string& pName)>;

    // pTouch: pointer commands are fingers instead of mouse buttons. pShotTake saves the frame presented last.
    znCScriptPlayer(const znCInputScript& pScript, bool pTouch, ShotTake pShotTake);

    // What belongs to the frame that starts at pNowMs goes into the queue.
    void frameRun(u64 pNowMs, znCInputQueue& pQueue);
    bool isAtEnd() const { return mNext == mCommands.size(); }
    // For a text dialog: the text of the next command, if that is a "type", which is then done. Waits, and the release
    // of the press that brought the dialog up, are passed over and come afterwards. False if something else is next.
    bool textTake(std::string& pText);

private:
    // False while pCommand has to wait.
    bool waitPass(const znCScriptCommand& pCommand, u64 pNowMs);
    void inputAdd(const znCScriptCommand& pCommand, znCInputQueue& pQueue) const;

    std::vector<znCScriptCommand> mCommands;
    ShotTake mShotTake;
    size_t mNext = 0;
    u64 mWaitUntilMs = 0;
    bool mWaiting = false;
    bool mTouch;
};

#endif
