#include "znhogcore/src/znCProgressSaver.h"

#include "znappcore/src/znCProfileManager.h"
#include "znappcore/znIInputManager.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>

namespace
{
constexpr s32 PRIORITY = 3; // hears also what others consume
constexpr s32 ROUNDS = 2;   // for what a press sets going
constexpr s32 TIME_ENOUGH_MS = znCProgressSaver::INTERVAL_MS + znCProgressSaver::REST_WAIT_MS;
constexpr znCUniqueId INPUT_MESSAGES[] = {znIInputManager::POINTER_UP, znIInputManager::TYPED_CHAR};
constexpr znCUniqueId GAME_MESSAGES[] = {
    znCHogMessageDispatcher::LEVEL_LOAD_COMP,  znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED,
    znCHogMessageDispatcher::TASK_COMPLETE,    znCHogMessageDispatcher::LEVEL_COMPLETE,
    znCHogMessageDispatcher::POST_RESET_LEVEL, znCHogMessageDispatcher::REPLAY_LEVEL,
};
} // namespace

znCProgressSaver::znCProgressSaver() : znIMessageListener(PRIORITY) {}

void znCProgressSaver::messagesRegister()
{
    for (const znCUniqueId& message : INPUT_MESSAGES)
        znIInputManager::instanceGet()->listenerRegister(message, this);
    for (const znCUniqueId& message : GAME_MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(message, this);
}

void znCProgressSaver::messagesDeregister()
{
    for (const znCUniqueId& message : INPUT_MESSAGES)
        znIInputManager::instanceGet()->listenerDeregister(message, this);
    for (const znCUniqueId& message : GAME_MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(message, this);
}

bool znCProgressSaver::messageProcess(const znCUniqueId& pType, void*)
{
    mRoundsLeft = ROUNDS;
    if (pType == znIInputManager::POINTER_UP || pType == znIInputManager::TYPED_CHAR)
        mRestMs = 0;
    else if (pType == znCHogMessageDispatcher::LEVEL_COMPLETE)
        mWon = true;
    else if (pType == znCHogMessageDispatcher::REPLAY_LEVEL)
        mWon = false;
    return false;
}

void znCProgressSaver::update(s32 pDeltaMs)
{
    mSinceSaveMs = std::min(mSinceSaveMs + pDeltaMs, TIME_ENOUGH_MS);
    mRestMs = std::min(mRestMs + pDeltaMs, TIME_ENOUGH_MS);
    if (mRoundsLeft == 0 || mSinceSaveMs < INTERVAL_MS || (mRestMs < REST_MS && mSinceSaveMs < TIME_ENOUGH_MS))
        return;
    --mRoundsLeft;
    mSinceSaveMs = 0;
    save();
}

void znCProgressSaver::save()
{
    znIHogLevel* level = znIHogLevel::levelGet();
    if (level != nullptr && mWon)
        return;
    if (level != nullptr)
        level->progressStore();
    znCProfileManager::instanceGet()->changesSave();
}
