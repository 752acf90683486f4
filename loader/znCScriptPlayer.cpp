#include "loader/znCScriptPlayer.h"

#include <algorithm>
#include <utility>

using Kind = znCScriptCommand::Kind;

znCScriptPlayer::znCScriptPlayer(const znCInputScript& pScript, bool pTouch, ShotTake pShotTake)
    : mCommands(pScript.commandsGet()), mShotTake(std::move(pShotTake)), mTouch(pTouch)
{
}

void znCScriptPlayer::frameRun(u64 pNowMs, znCInputQueue& pQueue)
{
    while (!isAtEnd())
    {
        const znCScriptCommand& command = mCommands[mNext];
        if (command.mKind == Kind::WAIT && !waitPass(command, pNowMs))
            return;
        ++mNext;
        if (command.mKind == Kind::WAIT)
            continue;
        if (command.mKind == Kind::SHOT)
        {
            mShotTake(command.mText);
            continue;
        }
        inputAdd(command, pQueue);
        return;
    }
}

bool znCScriptPlayer::waitPass(const znCScriptCommand& pCommand, u64 pNowMs)
{
    if (!mWaiting)
        mWaitUntilMs = pNowMs + static_cast<u64>(pCommand.mNumber);
    mWaiting = pNowMs < mWaitUntilMs;
    return !mWaiting;
}

void znCScriptPlayer::inputAdd(const znCScriptCommand& pCommand, znCInputQueue& pQueue) const
{
    using Event = znCInputEvent::Kind;
    znCInputEvent event = {Event::QUIT, pCommand.mNumber, pCommand.mKind == Kind::DOWN, pCommand.mX, pCommand.mY};
    switch (pCommand.mKind)
    {
    case Kind::KEY:
        return pQueue.keyAdd(pCommand.mNumber, pCommand.mPressed);
    case Kind::TYPE:
        return pQueue.textAdd(pCommand.mText.c_str());
    case Kind::DOWN:
    case Kind::UP:
        event.mKind = mTouch ? Event::TOUCH : Event::BUTTON;
        break;
    case Kind::MOVE:
        event.mKind = mTouch ? Event::TOUCH_MOTION : Event::MOTION;
        break;
    case Kind::SUSPEND:
        event.mKind = Event::SUSPEND;
        break;
    case Kind::RESUME:
        event.mKind = Event::RESUME;
        break;
    default: // quit
        break;
    }
    pQueue.eventAdd(event);
}

bool znCScriptPlayer::textTake(std::string& pText)
{
    const auto passedOver = [](const znCScriptCommand& pCommand)
    {
        return pCommand.mKind == Kind::WAIT || pCommand.mKind == Kind::UP;
    };
    const auto next = mCommands.begin() + static_cast<std::ptrdiff_t>(mNext);
    const auto command = std::find_if_not(next, mCommands.end(), passedOver);
    if (command == mCommands.end() || command->mKind != Kind::TYPE)
        return false;
    pText = command->mText;
    mCommands.erase(command);
    return true;
}
