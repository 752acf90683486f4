#ifndef ZNHOGCORE_COMPONENTS_GUI_ZNCROUNDSCOREGUI_H
#define ZNHOGCORE_COMPONENTS_GUI_ZNCROUNDSCOREGUI_H

// The window behind a level that was won. Its entity must be named "roundScoreGui": the level looks for it. It appears
// 1100 ms after it was opened, later where an achievement's screen shows, and then reveals its texts one by one. Of a
// level that was skipped it is never on view and goes on by itself.
//
// Reward, in points of the player's currency: 500 for a minigame, which is a level with "_" in its name, and 100 in a
// row of levels without a hint, where the level's GUI has a hint button. It is booked when the window opens.
//
// Widgets, all optional: the texts "roundScoreWindowItem" + row + "Text" and "... Val", revealing ones with
// "delayedStart = true", of the rows 0 to 2; the buttons "roundScoreContinueButton" and "roundScoreReplayButton"; the
// text "score", which shows the player's currency once the first plain number is revealed, not behind a minigame.
//
//     row   behind a minigame                 behind a scene, labels from the file
//     0     completion                        bonus things found, of how many
//     1     without hints                     lost-and-found things found, of how many
//     2     not shown                         without hints
//
// A row about things that the level doesn't have isn't shown. At the end of the fade it saves the player's data.

#include "znappcore/znCUniqueId.h"
#include "znhogcore/components/gui/znIRoundScoreGui.h"

#include <array>

class znCRevealingTextSpriteComponent;
class znIHogLevel;

class znCRoundScoreGui : public znIRoundScoreGui
{
public:
    static constexpr znCUniqueId TYPE{"znCRoundScoreGui"};
    static constexpr const char* NAME = "roundScoreGui";

    explicit znCRoundScoreGui(znCEntity* pEntity); // makes the entity inactive

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void update(s32 pDeltaMs) override;
    bool onButtonClicked(znCButtonComponent* pButton) override;

    void roundScoreInitialise() override;
    void scoreCalculate() override;

private:
    void minigameButtonsPlace();
    void rewardBook(bool pHintButton);
    void minigameRowsFill(bool pHintButton);
    void sceneRowsFill();
    void rowSet(std::size_t pRow, const char* pSuffix, const std::string& pText);
    void rowHide(std::size_t pRow);
    void revealsFind();

    void showDelayUpdate(s32 pDeltaMs);
    void revealUpdate();
    bool revealedGet(znCRevealingTextSpriteComponent* pText);
    void totalShow(const znCRevealingTextSpriteComponent& pRevealed);
    void leave(const znCUniqueId& pMessage);

    bool mIsMinigameLevel = false;
    s32 mShowDelayMs = 1100;
    s32 mRevealIndex = 0; // of mReveals
    bool mScoreShown = false;
    bool mLeft = false; // the player has chosen; a second press while the screen fades counts for nothing
    std::array<znCRevealingTextSpriteComponent*, 8> mReveals{}; // text and value by row; null where there is none
};

#endif
