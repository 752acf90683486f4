#ifndef ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCBUTTONDELAYCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCBUTTONDELAYCOMPONENT_H

// Stands over a button and takes its taps until a delay is over: a picture of the disabled button with a bar that
// fills, or a timer where the parent has a child "gameGuiTimer" with a text. Then it hides itself. Where the parent has
// a child "GameGuiSkipButton" that spends something and has some left, it doesn't hinder the player at all.
//
// Keys: "disabledImage"; "fillImage", of even width and height; "fillOffsetX", "fillOffsetY" (s32); "fillDirection":
// "up", "down" (default), "left" or "right"; "fillDelayMs" (s32, 1000); "startsFull" (bool, false): the delay is over
// at the start; "recharge" (bool, true): false empties the bar instead of filling it.

#include "znappcore/src/znCSprite.h"
#include "znappcore/znIMessageListenerComponent.h"
#include "zncore/znAffineMtx2d.h"

#include <string>

class znCTextSpriteComponent;

class znCButtonDelayComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCButtonDelayComponent"};

    // Name of the sibling that shows the remaining time instead of the bar.
    static constexpr const char* TIMER_ENTITY = "gameGuiTimer";

    // Name of the sibling that makes waiting needless while it has something to spend.
    static constexpr const char* SKIP_ENTITY = "GameGuiSkipButton";

    explicit znCButtonDelayComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void update(s32 pDeltaMs) override;
    void render() override;
    void matrixApply() override;

    void restart();
    bool isCharging() const { return mElapsedMs != mDelayMs; }
    // While charging the new delay counts from when the old one began.
    void delaySet(s32 pDelayMs);

private:
    enum Direction : s32
    {
        FILL_UP = 0,
        FILL_DOWN = 1,
        FILL_RIGHT = 2,
        FILL_LEFT = 3,
    };

    void spritesInitialise(const znCVariableTable& pTable);
    void directionInitialise(const znCVariableTable& pTable);
    void refresh();
    bool finishedGet() const;
    bool skipUsableGet() const;
    s32 fillLengthCalculate() const;
    void fillSpriteUpdate();
    void fillAreaShow(s32 pLength);
    void timerUpdate();

    znAffineMtx2d mFillMatrix; // from the filled part's space to the entity's
    znCSprite mDisabledSprite;
    znCSprite mFillSprite;
    znCBrushPtr mFillBrush; // the whole bar
    znPoint mFillOffset{0, 0};
    float mFillFraction = 0.0f;
    s32 mLastFillLength = -1;
    s32 mFillDirection = FILL_DOWN;
    s32 mDelayMs = 1000;
    s32 mElapsedMs = 0;
    bool mRecharge = true;
    znCTextSpriteComponent* mTimerText = nullptr; // a sibling's; looked up at each refresh
};

#endif
