#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCGAMEGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCGAMEGUI_H

// The panel of a level: turns presses into messages of the game, and what comes of them into what the player sees. All
// its widgets are optional:
//
// - the buttons "gameGuiHintButton" and "gameGuiGhostModeButton", either of which may be a znCCommodityButtonComponent,
//   and "gameGuiSkipButton"; their recharge bars "gameGuiHintFillBar", "gameGuiGhostModeFillBar", "gameGuiSkipFillBar"
// - "GameGuiSubSceneExitButton", on view while a full-screen close-up is open
// - "playerControlledContinueBtn": with it the level waits for the player when all is found
// - the texts "GUIMinigameTitleText", the string of the level's name and "Title"; "GameGuiDifferencesText"; "currency"
//
// Settings of the application, milliseconds: a bar's name and "DelayCasual" (15000) or "DelayChallenge" (30000).

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"
#include "znappcore/znCUniqueId.h"

#include <string>

class znCLevelCompleteCheckerComponent;

class znCGameGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCGameGui"};

    using znIMessageListenerGuiComponent::znIMessageListenerGuiComponent;

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override; // consumes nothing
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void myPostLoad() override;
    bool onButtonClicked(znCButtonComponent* pButton) override;

private:
    void rechargesInitialise();
    void titleUpdate();
    void currencyUpdate();
    void currencyAdd(s32 pPoints);
    void differencesTextUpdate();
    void playerControlledEndInitialise();

    void exitPressed();
    void hintPressed(znCButtonComponent* pButton);
    void ghostPressed(znCButtonComponent* pButton);
    void continuePressed();

    void exitButtonShow();
    void exitButtonCountDown();
    void restart(const char* pBar);

    s32 mExitButtonCount = 0; // open full-screen sub-scenes
    s32 mDifferencesTotal = 0;
    s32 mDifferencesFound = 0;
};

#endif
