#include "znhogcore/components/gui/znCRoundScoreGui.h"

#include "znappcore/components/gui/elements/znCButtonComponent.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCRevealingTextSpriteComponent.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/src/znCProfileManager.h"
#include "znappcore/src/znCScreenFade.h"
#include "znappcore/znCEmptyMessageData.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/znCBonusEntityCountComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"
#include "znhogcore/znIHogLevel.h"

#include <algorithm>

namespace
{
constexpr s32 COMPLETION_POINTS = 500;
constexpr s32 HINT_FREE_POINTS = 100;
constexpr char MINIGAME_MARK = '_'; // in a level's name

constexpr char ROW_PREFIX[] = "roundScoreWindowItem"; // and the row
constexpr char LABEL_SUFFIX[] = "Text";
constexpr char VALUE_SUFFIX[] = "Val";
constexpr char CONTINUE_BUTTON[] = "roundScoreContinueButton";
constexpr char REPLAY_BUTTON[] = "roundScoreReplayButton";
constexpr char SCORE[] = "score";
constexpr std::size_t SCORE_REVEAL_LAST = 5; // texts behind it don't bring the total
const std::string ACHIEVEMENT_SCREEN = "achievementEffectScreenGui";

// Keys of localised strings.
constexpr char COMPLETION_LABEL[] = "roundScoreCompletion";
constexpr char HINT_FREE_LABEL[] = "roundScoreEagleEye";
constexpr char NUMBER_OF_NUMBER[] = "numOfNum";

std::string rowChildNameGet(std::size_t pRow, const char* pSuffix)
{
    return ROW_PREFIX + std::to_string(pRow) + pSuffix;
}

std::string ofTotalTextGet(s32 pCount, s32 pTotal)
{
    return std::to_string(pCount) + znCLocalisedStrings::localisedStringGet(NUMBER_OF_NUMBER) + std::to_string(pTotal);
}
} // namespace

znCRoundScoreGui::znCRoundScoreGui(znCEntity* pEntity) : znIRoundScoreGui(pEntity)
{
    pEntity->activeSet(false);
}

void znCRoundScoreGui::messagesRegister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCScreenFade::FADE_OUT_COMPLETE, this);
}

void znCRoundScoreGui::messagesDeregister()
{
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCScreenFade::FADE_OUT_COMPLETE, this);
}

bool znCRoundScoreGui::messageProcess(const znCUniqueId&, void*)
{
    znCProfileManager::instanceGet()->dataSave();
    mEntity->destroy();
    return false;
}

// --- opening ---

void znCRoundScoreGui::roundScoreInitialise()
{
    znIRoundScoreGui::roundScoreInitialise();
    const znIHogLevel* level = znIHogLevel::levelGet();
    mIsMinigameLevel = level != nullptr && level->levelNameGet().find(MINIGAME_MARK) != std::string::npos;
    if (mIsMinigameLevel)
        minigameButtonsPlace();
    scoreCalculate();
    revealsFind();
}

// A minigame can't be replayed from here.
void znCRoundScoreGui::minigameButtonsPlace()
{
    znCEntity* replay = znNGuiChildren::entityFind(*this, REPLAY_BUTTON);
    znCEntity* next = znNGuiChildren::entityFind(*this, CONTINUE_BUTTON);
    if (replay == nullptr)
        return;
    replay->activeSet(false);
    if (next != nullptr)
        next->posSet(replay->posGet());
}

void znCRoundScoreGui::scoreCalculate()
{
    znIHogLevel* level = znIHogLevel::levelGet();
    const bool hintButton = level != nullptr && level->childFind(znIHogLevel::HINT_BUTTON_NAME) != nullptr;
    rewardBook(hintButton);
    if (mIsMinigameLevel)
        minigameRowsFill(hintButton);
    else
        sceneRowsFill();
}

void znCRoundScoreGui::rewardBook(bool pHintButton)
{
    znCHogUserSavedData* user = znCHogUserSavedData::instanceGet();
    mValues[ROW_COMPLETION] = mIsMinigameLevel ? COMPLETION_POINTS : 0;
    if (pHintButton && user->s32Get(znCHogUserSavedData::HINT_FREE_STREAK) > 0)
        mValues[ROW_HINT_FREE] = HINT_FREE_POINTS;
    mValues[ROW_TOTAL] = mValues[ROW_COMPLETION] + mValues[ROW_HINT_FREE];
    const s64 currency = user->s32Get(znCHogUserSavedData::CURRENCY);
    if (mValues[ROW_TOTAL] != 0)
        user->s32Set(znCHogUserSavedData::CURRENCY, znNCoreUtils::s32Saturate(currency + mValues[ROW_TOTAL]));
}

void znCRoundScoreGui::minigameRowsFill(bool pHintButton)
{
    rowSet(0, LABEL_SUFFIX, znCLocalisedStrings::localisedStringGet(COMPLETION_LABEL));
    rowSet(0, VALUE_SUFFIX, std::to_string(mValues[ROW_COMPLETION]));
    rowSet(1, LABEL_SUFFIX, znCLocalisedStrings::localisedStringGet(HINT_FREE_LABEL));
    rowSet(1, VALUE_SUFFIX, std::to_string(mValues[ROW_HINT_FREE]));
    if (!pHintButton)
        rowHide(1);
    rowHide(2);
}

void znCRoundScoreGui::sceneRowsFill()
{
    const znIHogLevel* level = znIHogLevel::levelGet();
    const auto* counts = level != nullptr ? level->componentGet<znCBonusEntityCountComponent>() : nullptr;
    if (counts != nullptr && counts->bonusTotalGet() != 0)
        rowSet(0, VALUE_SUFFIX, ofTotalTextGet(counts->bonusCollectedGet(), counts->bonusTotalGet()));
    else
        rowHide(0);
    if (counts != nullptr && counts->silhouetteTotalGet() != 0)
        rowSet(1, VALUE_SUFFIX, ofTotalTextGet(counts->silhouetteCollectedGet(), counts->silhouetteTotalGet()));
    else
        rowHide(1);
    rowSet(2, VALUE_SUFFIX, std::to_string(mValues[ROW_HINT_FREE]));
}

void znCRoundScoreGui::rowSet(std::size_t pRow, const char* pSuffix, const std::string& pText)
{
    const znCEntity* entity = znNGuiChildren::entityFind(*this, rowChildNameGet(pRow, pSuffix));
    if (auto* text = entity != nullptr ? entity->componentFind<znCTextSpriteComponent>() : nullptr)
        text->textSet(pText);
}

void znCRoundScoreGui::rowHide(std::size_t pRow)
{
    for (const char* suffix : {LABEL_SUFFIX, VALUE_SUFFIX})
        znNGuiChildren::activeSet(*this, rowChildNameGet(pRow, suffix), false);
}

void znCRoundScoreGui::revealsFind()
{
    for (std::size_t i = 0; i < mReveals.size(); ++i)
        mReveals[i] = znNGuiChildren::componentFind<znCRevealingTextSpriteComponent>(
            *this, rowChildNameGet(i / 2, i % 2 == 0 ? LABEL_SUFFIX : VALUE_SUFFIX));
}

// --- on view ---

void znCRoundScoreGui::update(s32 pDeltaMs)
{
    znIRoundScoreGui::update(pDeltaMs);
    if (mShowDelayMs != 0)
        showDelayUpdate(pDeltaMs);
    if (mShowDelayMs == 0)
        revealUpdate();
}

void znCRoundScoreGui::showDelayUpdate(s32 pDeltaMs)
{
    if (mEntity->parentGet()->childFind(ACHIEVEMENT_SCREEN) == nullptr)
        mShowDelayMs -= pDeltaMs;
    if (mShowDelayMs >= 1)
        return;
    mShowDelayMs = 0;
    const znIHogLevel* level = znIHogLevel::levelGet();
    if (level != nullptr && level->skippedGet())
        leave(znCHogMessageDispatcher::CONTINUE_GAME);
    else
        mEntity->activeSet(true);
}

// One text after the other; those that aren't there or don't show are passed over.
void znCRoundScoreGui::revealUpdate()
{
    for (; mRevealIndex < static_cast<s32>(mReveals.size()); ++mRevealIndex)
        if (!revealedGet(mReveals[static_cast<std::size_t>(mRevealIndex)]))
            return;
}

bool znCRoundScoreGui::revealedGet(znCRevealingTextSpriteComponent* pText)
{
    if (pText == nullptr || !pText->entityGet()->activeInTreeGet())
        return true;
    if (!pText->runningGet())
        pText->trigger();
    if (!pText->finishedGet())
        return false;
    totalShow(*pText);
    return true;
}

void znCRoundScoreGui::totalShow(const znCRevealingTextSpriteComponent& pRevealed)
{
    if (mScoreShown || mIsMinigameLevel || mRevealIndex > static_cast<s32>(SCORE_REVEAL_LAST))
        return;
    const std::string text = pRevealed.textGet();
    if (!std::all_of(text.begin(), text.end(), [](char pChar) { return pChar >= '0' && pChar <= '9'; }))
        return;
    const znCEntity* score = znNGuiChildren::entityFind(*this, SCORE);
    if (auto* total = score != nullptr ? score->componentFind<znCTextSpriteComponent>() : nullptr)
        total->textSet(std::to_string(znCHogUserSavedData::instanceGet()->s32Get(znCHogUserSavedData::CURRENCY)));
    mScoreShown = true;
}

// --- leaving ---

bool znCRoundScoreGui::onButtonClicked(znCButtonComponent* pButton)
{
    const std::string& name = pButton->entityGet()->nameGet();
    if (name != CONTINUE_BUTTON && name != REPLAY_BUTTON)
        return znIRoundScoreGui::onButtonClicked(pButton);
    if (mLeft)
        return true;
    if (name == CONTINUE_BUTTON)
        leave(znCHogMessageDispatcher::CONTINUE_GAME);
    else
    {
        leave(znCHogMessageDispatcher::REPLAY_LEVEL);
        mEntity->destroy();
    }
    return true;
}

void znCRoundScoreGui::leave(const znCUniqueId& pMessage)
{
    mLeft = true;
    znCHogMessageDispatcher::instanceGet()->messageSend(pMessage, znCEmptyMessageData::sharedGet());
}
