#include "znhogcore/components/gui/znCRoundCongratulationsGui.h"

#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCEmptyMessageData.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/znCLevelCompleteCheckerComponent.h"
#include "znhogcore/components/znIMinigameComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

#include <algorithm>

namespace
{
constexpr znCUniqueId MESSAGES[] = {
    znCHogMessageDispatcher::LEVEL_COMPLETE_CONGRATS,
    znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING_CONGRATS,
    znCHogMessageDispatcher::RESET_LEVEL,
};
constexpr s32 SWEEP_DELAY_MS = 1000;
constexpr s32 SWEEP_STEP_MS = 75;
constexpr s32 WELL_DONE_MS = 3000;
constexpr std::size_t SWEEP_ENTITIES_MAX = 50; // of more pieces every other one sparkles
constexpr char SWEEP_PARTICLES[] = "particles/pMinigameCompleteEffect.txt";
constexpr char WELL_DONE_PREFIX[] = "gui/wellDone/wellDone"; // and a number from 1
constexpr char WELL_DONE_EXTENSION[] = ".txt";
constexpr uint32 WELL_DONE_SCREENS = 3;

void sweepEffectCreate(const znCEntity& pPiece)
{
    const znCResourceName file(SWEEP_PARTICLES, znCResourceName::GAME_DATA);
    if (pPiece.parentGet() == nullptr || !znIFile::existsGet(file))
        return;
    auto* effect = new znCEntity(pPiece.nameGet()); // owned by the tree
    effect->posSet(pPiece.posGet());
    pPiece.parentGet()->childAdd(effect);
    effect->componentAdd<znCParticleEmitterComponent>()->initialise(file);
}
} // namespace

znCRoundCongratulationsGui::znCRoundCongratulationsGui(znCEntity* pEntity) : znIMessageListenerGuiComponent(pEntity)
{
    if (auto* checker = pEntity->componentGet<znCLevelCompleteCheckerComponent>())
        checker->congratulateSet();
}

void znCRoundCongratulationsGui::messagesRegister()
{
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(message, this);
}

void znCRoundCongratulationsGui::messagesDeregister()
{
    for (const znCUniqueId& message : MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(message, this);
}

bool znCRoundCongratulationsGui::messageProcess(const znCUniqueId& pType, void*)
{
    if (pType == znCHogMessageDispatcher::RESET_LEVEL)
    {
        reset();
        return false;
    }
    announcementProcess();
    if (pType == znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING_CONGRATS)
        mWaitSeen = true;
    return false;
}

void znCRoundCongratulationsGui::announcementProcess()
{
    if (mRestored)
        mRestored = false; // what was finished before the save is reported once more; the stage stands for it already
    else if (mStage < STAGE_FINISHED)
        stageEnter(mStage + 1);
}

void znCRoundCongratulationsGui::stageEnter(s32 pStage)
{
    mStage = pStage;
    mTimerMs = 0;
    switch (mStage)
    {
    case STAGE_SWEEP:
        sweepListBuild();
        mTimerMs = SWEEP_DELAY_MS;
        break;
    case STAGE_WELL_DONE:
        wellDoneOpen();
        mTimerMs = WELL_DONE_MS;
        break;
    case STAGE_FINISHED:
        wellDoneClose();
        endAnnounce();
        break;
    default:
        break;
    }
}

void znCRoundCongratulationsGui::update(s32 pDeltaMs)
{
    if (mTimerMs == 0)
        return;
    mTimerMs -= pDeltaMs;
    if (mTimerMs >= 1)
        return;
    if (mStage == STAGE_SWEEP && !sweepMetGet())
        sweepStep();
    else
        stageEnter(mStage + 1);
}

// --- sweep ---

// From left to right; of pieces in one column the upper first.
void znCRoundCongratulationsGui::sweepListBuild()
{
    mSweepEntities = mEntity->entitiesWithKindGet<znIMinigameComponent>();
    std::stable_sort(mSweepEntities.begin(), mSweepEntities.end(),
                     [](const znCEntity* pFirst, const znCEntity* pSecond)
                     { return pFirst->posGet().mY < pSecond->posGet().mY; });
    std::stable_sort(mSweepEntities.begin(), mSweepEntities.end(),
                     [](const znCEntity* pFirst, const znCEntity* pSecond)
                     { return pFirst->posGet().mX < pSecond->posGet().mX; });
    if (mSweepEntities.size() > SWEEP_ENTITIES_MAX)
    {
        std::size_t index = 0;
        std::erase_if(mSweepEntities, [&index](const znCEntity*) { return index++ % 2 == 0; });
    }
    mSweepFront = 0;
    mSweepBack = mSweepEntities.size();
}

bool znCRoundCongratulationsGui::sweepMetGet() const
{
    return mSweepEntities.empty() || mSweepFront + 1 == mSweepBack;
}

void znCRoundCongratulationsGui::sweepStep()
{
    mTimerMs = SWEEP_STEP_MS;
    sweepEffectCreate(*mSweepEntities[mSweepBack - 1]);
    sweepEffectCreate(*mSweepEntities[mSweepFront]);
    ++mSweepFront;
    if (!sweepMetGet())
        --mSweepBack;
}

// --- well done ---

void znCRoundCongratulationsGui::wellDoneOpen()
{
    const std::string file =
        WELL_DONE_PREFIX + std::to_string(znNCoreUtils::randomGet(WELL_DONE_SCREENS) + 1) + WELL_DONE_EXTENSION;
    mWellDoneEntity =
        znIGuiComponent::guiCreateFromFile(znCResourceName(file, znCResourceName::GAME_DATA), nullptr, false);
    if (mWellDoneEntity != nullptr)
        mEntity->childAdd(mWellDoneEntity);
}

void znCRoundCongratulationsGui::wellDoneClose()
{
    if (mWellDoneEntity != nullptr)
        mWellDoneEntity->destroy();
    mWellDoneEntity = nullptr;
}

void znCRoundCongratulationsGui::endAnnounce()
{
    znCHogMessageDispatcher::instanceGet()->messageSend(mWaitSeen ? znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING
                                                                  : znCHogMessageDispatcher::LEVEL_COMPLETE,
                                                        znCEmptyMessageData::sharedGet());
}

// --- reset and saved state ---

void znCRoundCongratulationsGui::reset()
{
    wellDoneClose();
    mWaitSeen = false;
    mRestored = false;
    mStage = STAGE_IDLE;
    mTimerMs = 0;
    mSweepEntities.clear();
    mSweepFront = 0;
    mSweepBack = 0;
}

void znCRoundCongratulationsGui::mySave(std::string& pOut)
{
    znINode::s32Save(pOut, mTimerMs);
    znINode::s32Save(pOut, mStage);
}

void znCRoundCongratulationsGui::myLoad(std::string& pIn)
{
    znINode::s32Load(pIn); // a stage begins anew
    mStage = std::clamp<s32>(znINode::s32Load(pIn), STAGE_IDLE, STAGE_FINISHED);
    mRestored = mStage != STAGE_IDLE;
}

void znCRoundCongratulationsGui::myPostLoad()
{
    if (mStage == STAGE_IDLE)
        return;
    const auto* checker = mEntity->componentGet<znCLevelCompleteCheckerComponent>();
    mWaitSeen = checker != nullptr && checker->waitForPlayerGet();
    stageEnter(mStage);
}
