#include "znhogcore/components/gui/znCGameGui.h"

#include "znappcore/components/gui/elements/znCButtonDelayComponent.h"
#include "znappcore/components/gui/elements/znCCommodityButtonComponent.h"
#include "znappcore/components/gui/znCNotificationsGui.h"
#include "znappcore/components/gui/znNGuiChildren.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCAppSettings.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/src/znCLocalisedStrings.h"
#include "znappcore/znCEmptyMessageData.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znNCoreUtils.h"
#include "znhogcore/components/znCLevelCompleteCheckerComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znNSpotTheDiff.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"
#include "znhogcore/src/znCHogUserSavedData.h"
#include "znhogcore/znCScoreCollectionEffectData.h"
#include "znhogcore/znIHogLevel.h"

namespace
{
constexpr char EXIT_BUTTON[] = "GameGuiSubSceneExitButton";
constexpr char GHOST_BUTTON[] = "gameGuiGhostModeButton";
constexpr char SKIP_BUTTON[] = "gameGuiSkipButton";
constexpr char CONTINUE_BUTTON[] = "playerControlledContinueBtn";
constexpr char HINT_BAR[] = "gameGuiHintFillBar";
constexpr char GHOST_BAR[] = "gameGuiGhostModeFillBar";
constexpr char SKIP_BAR[] = "gameGuiSkipFillBar";
constexpr char TITLE[] = "GUIMinigameTitleText";
constexpr char DIFFERENCES[] = "GameGuiDifferencesText";
constexpr char CURRENCY[] = "currency";

struct Recharge
{
    const char* mKeyTail; // behind the bar's name
    s32 mDefaultMs;
};
constexpr Recharge CASUAL{"DelayCasual", 15000};
constexpr Recharge CHALLENGE{"DelayChallenge", 30000};

constexpr znCUniqueId GAME_MESSAGES[] = {
    znCHogMessageDispatcher::SUB_EXIT_BUTTON_SHOW,   znCHogMessageDispatcher::SUB_EXIT_BUTTON_HIDE,
    znCHogMessageDispatcher::STD_DIFFERENCE_FOUND,   znCHogMessageDispatcher::SCORE_COLLECTION_EFFECT_COMPLETE,
    znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING,
};

// True if somebody consumed it.
bool send(const znCUniqueId& pType)
{
    return znCHogMessageDispatcher::instanceGet()->messageSend(pType, znCEmptyMessageData::sharedGet());
}

std::string localisedGet(const std::string& pKey)
{
    return znCLocalisedStrings::localisedStringGet(pKey);
}

// Null without a level.
znCLevelCompleteCheckerComponent* checkerGet()
{
    const znIHogLevel* level = znIHogLevel::levelGet();
    return level != nullptr ? level->componentGet<znCLevelCompleteCheckerComponent>() : nullptr;
}

s32 openFullScreenCount()
{
    znIHogLevel* level = znIHogLevel::levelGet();
    s32 count = 0;
    if (level != nullptr)
        for (const znCEntity* entity : level->entitiesWithComponentsGet({&typeid(znCSubSceneComponent)}))
        {
            const auto* subScene = entity->componentGet<znCSubSceneComponent>();
            count += subScene->indexGet() > 0 && subScene->fullScreenGet() && entity->activeGet() ? 1 : 0;
        }
    return count;
}
} // namespace

void znCGameGui::messagesRegister()
{
    for (const znCUniqueId& message : GAME_MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerRegister(message, this);
    znCGuiMessageDispatcher::instanceGet()->listenerRegister(znCCommodityButtonComponent::ITEM_PURCHASED, this);
}

void znCGameGui::messagesDeregister()
{
    for (const znCUniqueId& message : GAME_MESSAGES)
        znCHogMessageDispatcher::instanceGet()->listenerDeregister(message, this);
    znCGuiMessageDispatcher::instanceGet()->listenerDeregister(znCCommodityButtonComponent::ITEM_PURCHASED, this);
}

bool znCGameGui::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (pType == znCHogMessageDispatcher::SUB_EXIT_BUTTON_SHOW)
        exitButtonShow();
    else if (pType == znCHogMessageDispatcher::SUB_EXIT_BUTTON_HIDE)
        exitButtonCountDown();
    else if (pType == znCHogMessageDispatcher::STD_DIFFERENCE_FOUND)
    {
        ++mDifferencesFound;
        differencesTextUpdate();
    }
    else if (pType == znCCommodityButtonComponent::ITEM_PURCHASED)
        currencyUpdate();
    else if (pType == znCHogMessageDispatcher::SCORE_COLLECTION_EFFECT_COMPLETE)
        currencyAdd(static_cast<const znCScoreCollectionEffectData*>(pData)->mPoints);
    else if (pType == znCHogMessageDispatcher::LEVEL_COMPLETE_WAITING)
        znNGuiChildren::activeSet(*this, CONTINUE_BUTTON, true);
    return false;
}

void znCGameGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerGuiComponent::initialiseFromVariableTableDo(pTable);
    znNGuiChildren::activeSet(*this, EXIT_BUTTON, false);
    rechargesInitialise();
    if (const znIHogLevel* level = znIHogLevel::levelGet())
        mDifferencesTotal = znNSpotTheDiff::pieceCount(*level) / znNSpotTheDiff::PIECES_PER_DIFFERENCE;
    differencesTextUpdate();
    titleUpdate();
    currencyUpdate();
    playerControlledEndInitialise();
}

// What was saved are the buttons' flags: which close-ups are open says whether the exit button belongs on view, and
// whether the end waits for the player is announced anew.
void znCGameGui::myPostLoad()
{
    playerControlledEndInitialise();
    mExitButtonCount = openFullScreenCount();
    znNGuiChildren::activeSet(*this, EXIT_BUTTON, mExitButtonCount > 0);
}

void znCGameGui::rechargesInitialise()
{
    const Recharge& recharge = znCHogUserSavedData::instanceGet()->casualGet() ? CASUAL : CHALLENGE;
    for (const std::string bar : {HINT_BAR, GHOST_BAR, SKIP_BAR})
        if (auto* delay = znNGuiChildren::componentFind<znCButtonDelayComponent>(*this, bar))
            delay->delaySet(znCAppSettings::instanceGet()->s32Get(bar + recharge.mKeyTail, recharge.mDefaultMs));
}

void znCGameGui::titleUpdate()
{
    auto* title = znNGuiChildren::componentFind<znCTextSpriteComponent>(*this, TITLE);
    const znIHogLevel* level = znIHogLevel::levelGet();
    if (title != nullptr && level != nullptr)
        title->textSet(localisedGet(level->levelNameGet() + "Title"));
}

void znCGameGui::currencyUpdate()
{
    if (auto* text = znNGuiChildren::componentFind<znCTextSpriteComponent>(*this, CURRENCY))
        text->textSet(std::to_string(znCHogUserSavedData::instanceGet()->s32Get(znCUserSavedData::CURRENCY)));
}

// Whole points: a float's text would drop digits of a long player's fortune.
void znCGameGui::currencyAdd(s32 pPoints)
{
    znCHogUserSavedData* user = znCHogUserSavedData::instanceGet();
    user->s32Set(znCUserSavedData::CURRENCY,
                 znNCoreUtils::s32Saturate(s64(user->s32Get(znCUserSavedData::CURRENCY)) + pPoints));
    currencyUpdate();
}

void znCGameGui::differencesTextUpdate()
{
    if (mDifferencesTotal <= 0)
        return;
    auto* text = znNGuiChildren::componentFind<znCTextSpriteComponent>(*this, DIFFERENCES);
    ZN_ASSERT(text != nullptr, "Expected a text component called GameGuiDifferencesText when SpotTheDiffMinigame "
                               "entities are present.\n");
    if (text == nullptr)
        return;
    const s32 left = mDifferencesTotal - mDifferencesFound;
    if (left <= 0)
        text->textSet("");
    else
        text->textSet(localisedGet("find") + std::to_string(left) +
                      localisedGet(left == 1 ? "differenceSingle" : "differencePlural") + localisedGet("inTheScene"));
}

void znCGameGui::playerControlledEndInitialise()
{
    znCEntity* button = znNGuiChildren::entityFind(*this, CONTINUE_BUTTON);
    if (button == nullptr)
        return;
    if (znCLevelCompleteCheckerComponent* checker = checkerGet())
        checker->waitForPlayerSet();
    button->activeSet(false);
}

bool znCGameGui::onButtonClicked(znCButtonComponent* pButton)
{
    const std::string& name = pButton->entityGet()->nameGet();
    if (name == EXIT_BUTTON)
        exitPressed();
    else if (name == znIHogLevel::HINT_BUTTON_NAME)
        hintPressed(pButton);
    else if (name == GHOST_BUTTON)
        ghostPressed(pButton);
    else if (name == SKIP_BUTTON)
    {
        if (znIHogLevel* level = znIHogLevel::levelGet())
            level->levelSkip();
    }
    else if (name == CONTINUE_BUTTON)
        continuePressed();
    else
        return false;
    return true;
}

// A full-screen sub-scene says itself that it has closed; the top one may be smaller.
void znCGameGui::exitPressed()
{
    if (!send(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE))
        exitButtonCountDown();
}

void znCGameGui::hintPressed(znCButtonComponent* pButton)
{
    auto* commodity = dynamic_cast<znCCommodityButtonComponent*>(pButton);
    if (commodity != nullptr && commodity->countGet() == 0)
        return;
    if (send(znCHogMessageDispatcher::HINT_BUTTON_PRESSED))
    {
        if (commodity == nullptr)
            restart(HINT_BAR);
        return;
    }
    if (commodity != nullptr)
        commodity->spendingCancel();
    if (znCNotificationsGui* notifications = znCNotificationsGui::instanceGet())
        notifications->notificationAdd(localisedGet("nothingToHintOn"));
}

void znCGameGui::ghostPressed(znCButtonComponent* pButton)
{
    const auto* commodity = dynamic_cast<const znCCommodityButtonComponent*>(pButton);
    if (commodity != nullptr && commodity->countGet() == 0)
        return;
    send(znCHogMessageDispatcher::GHOST_HINT_BUTTON_PRESSED);
    znCHogUserSavedData::instanceGet()->s32Set(znCHogUserSavedData::HINT_FREE_STREAK, znCHogUserSavedData::HINT_USED);
    if (commodity == nullptr)
        restart(GHOST_BAR);
}

void znCGameGui::continuePressed()
{
    znCLevelCompleteCheckerComponent* checker = checkerGet();
    if (checker != nullptr && checker->continueRequest())
        znNGuiChildren::activeSet(*this, CONTINUE_BUTTON, false);
}

void znCGameGui::exitButtonShow()
{
    znCEntity* button = znNGuiChildren::entityFind(*this, EXIT_BUTTON);
    ZN_ASSERT(button != nullptr && button->componentGet<znCButtonComponent>() != nullptr,
              "Expected a GUI button called 'GameGuiSubSceneExitButton' when full screen sub-scenes are present.\n");
    if (button != nullptr)
        button->activeSet(true);
    ++mExitButtonCount;
}

void znCGameGui::exitButtonCountDown()
{
    if (mExitButtonCount > 0)
        --mExitButtonCount;
    if (mExitButtonCount == 0)
        znNGuiChildren::activeSet(*this, EXIT_BUTTON, false);
}

void znCGameGui::restart(const char* pBar)
{
    if (auto* delay = znNGuiChildren::componentFind<znCButtonDelayComponent>(*this, pBar))
        delay->restart();
}
