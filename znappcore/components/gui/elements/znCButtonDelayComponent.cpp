#include "znappcore/components/gui/elements/znCButtonDelayComponent.h"

#include "znappcore/components/gui/elements/znCCommodityButtonComponent.h"
#include "znappcore/components/gui/elements/znCPressBrushes.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIInputManager.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr const char* DIRECTIONS[] = {"up", "down", "right", "left"}; // in the order of their numbers
constexpr s32 OFFSET_LIMIT = 1 << 20;                                 // canvas units; more is a slip of the pen

znAffineMtx2d translationGet(const znPoint& pOffset)
{
    znAffineMtx2d matrix;
    matrix.fromPosScaleRotation(pOffset, 1.0f, 1.0f, 0.0f);
    return matrix;
}
} // namespace

znCButtonDelayComponent::znCButtonDelayComponent(znCEntity* pEntity) : znIMessageListenerComponent(pEntity) {}

void znCButtonDelayComponent::messagesRegister()
{
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerRegister(znIInputManager::POINTER_DOWN, this);
    input->listenerRegister(znIInputManager::POINTER_MOVE, this);
    input->listenerRegister(znIInputManager::POINTER_UP, this);
}

void znCButtonDelayComponent::messagesDeregister()
{
    znIInputManager* input = znIInputManager::instanceGet();
    input->listenerDeregister(znIInputManager::POINTER_DOWN, this);
    input->listenerDeregister(znIInputManager::POINTER_MOVE, this);
    input->listenerDeregister(znIInputManager::POINTER_UP, this);
}

bool znCButtonDelayComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    const bool isPointerMessage = pType == znIInputManager::POINTER_DOWN || pType == znIInputManager::POINTER_MOVE ||
                                  pType == znIInputManager::POINTER_UP;
    ZN_ASSERT(isPointerMessage, "Not expecting a message of this type.\n");
    if (!isPointerMessage || finishedGet() || !mEntity->activeInTreeGet())
        return false;
    znPoint local;
    return mEntity->worldToLocalGet(static_cast<const znCPointerMessage*>(pData)->mPos, local) &&
           mDisabledSprite.hitTest(local, true);
}

void znCButtonDelayComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIMessageListenerComponent::initialiseFromVariableTableDo(pTable);
    spritesInitialise(pTable);
    directionInitialise(pTable);
    mDelayMs = std::max(pTable.s32Get("fillDelayMs", mDelayMs), 0);
    mElapsedMs = pTable.boolGet("startsFull") ? mDelayMs : 0;
    mRecharge = pTable.boolGet("recharge", mRecharge);
    refresh();
}

void znCButtonDelayComponent::spritesInitialise(const znCVariableTable& pTable)
{
    for (const char* key : {"disabledImage", "fillImage"})
        ZN_ASSERT(!pTable.strGet(key).empty(), "Expected a %s for znCButtonDelayComponent %s.\n", key,
                  mEntity->nameGet().c_str());
    mDisabledSprite.brushSet(znCPressBrushes::brushGet(pTable.strGet("disabledImage")));
    mFillBrush = znCPressBrushes::brushGet(pTable.strGet("fillImage"));
    if (mFillBrush != nullptr)
    {
        ZN_ASSERT(mFillBrush->heightGet() % 2 == 0, "fillImage must have an even height.\n");
        ZN_ASSERT(mFillBrush->widthGet() % 2 == 0, "fillImage must have an even width.\n");
    }
    mFillOffset = znPoint(std::clamp(pTable.s32Get("fillOffsetX"), -OFFSET_LIMIT, OFFSET_LIMIT),
                          std::clamp(pTable.s32Get("fillOffsetY"), -OFFSET_LIMIT, OFFSET_LIMIT));
    mFillMatrix = translationGet(mFillOffset);
}

void znCButtonDelayComponent::directionInitialise(const znCVariableTable& pTable)
{
    if (!pTable.keyExistsGet("fillDirection"))
        return;
    const auto direction = std::find(std::begin(DIRECTIONS), std::end(DIRECTIONS), pTable.strGet("fillDirection"));
    ZN_ASSERT(direction != std::end(DIRECTIONS),
              "Expected a fillDirection value of either 'up', 'down', 'left' or 'right' for znCButtonDelayComponent "
              "%s.\n",
              mEntity->nameGet().c_str());
    if (direction != std::end(DIRECTIONS))
        mFillDirection = static_cast<s32>(direction - std::begin(DIRECTIONS));
}

void znCButtonDelayComponent::update(s32 pDeltaMs)
{
    if (mElapsedMs >= mDelayMs)
        return;
    mElapsedMs = pDeltaMs < mDelayMs - mElapsedMs ? mElapsedMs + pDeltaMs : mDelayMs;
    refresh();
}

bool znCButtonDelayComponent::finishedGet() const
{
    return mRecharge ? mFillFraction >= 1.0f : mFillFraction <= 0.0f;
}

bool znCButtonDelayComponent::skipUsableGet() const
{
    static const std::string sSkipEntity = SKIP_ENTITY;
    znINode* parent = mEntity->parentGet();
    const auto* skip = parent != nullptr ? dynamic_cast<const znCEntity*>(parent->childFind(sSkipEntity)) : nullptr;
    const auto* button = skip != nullptr ? skip->componentGet<znCCommodityButtonComponent>() : nullptr;
    return button != nullptr && button->countGet() > 0;
}

void znCButtonDelayComponent::refresh()
{
    const float elapsed = mDelayMs > 0 ? static_cast<float>(mElapsedMs) / static_cast<float>(mDelayMs) : 1.0f;
    mFillFraction = mRecharge ? elapsed : 1.0f - elapsed;
    const bool finished = finishedGet();
    if (finished || skipUsableGet())
        mEntity->activeSet(false);
    if (finished)
        return;
    znINode* parent = mEntity->parentGet();
    static const std::string sTimerEntity = TIMER_ENTITY;
    const auto* timer = parent != nullptr ? dynamic_cast<const znCEntity*>(parent->childFind(sTimerEntity)) : nullptr;
    mTimerText = timer != nullptr ? timer->componentGet<znCTextSpriteComponent>() : nullptr;
    if (mTimerText == nullptr)
        fillSpriteUpdate();
    else
        timerUpdate();
}

// Only when it changes: a text is laid out anew.
void znCButtonDelayComponent::timerUpdate()
{
    const s32 seconds = (mDelayMs - mElapsedMs) / 1000;
    const std::string text =
        std::to_string(seconds / 60) + (seconds % 60 < 10 ? ":0" : ":") + std::to_string(seconds % 60);
    if (mTimerText->textGet() != text)
        mTimerText->textSet(text);
}

// Even, since half of it places the sprite.
s32 znCButtonDelayComponent::fillLengthCalculate() const
{
    const bool vertical = mFillDirection == FILL_UP || mFillDirection == FILL_DOWN;
    const s32 whole = vertical ? mFillBrush->heightGet() : mFillBrush->widthGet();
    const auto length = static_cast<s32>(static_cast<float>(whole) * mFillFraction);
    return length - length % 2;
}

void znCButtonDelayComponent::fillSpriteUpdate()
{
    if (mFillBrush == nullptr)
        return;
    const s32 length = fillLengthCalculate();
    if (length == mLastFillLength)
        return;
    mLastFillLength = length;
    if (length > 0)
        fillAreaShow(length);
    matrixApply();
}

// The part of the bar stays where it is in the whole bar.
void znCButtonDelayComponent::fillAreaShow(s32 pLength)
{
    const s32 width = mFillBrush->widthGet();
    const s32 height = mFillBrush->heightGet();
    const bool vertical = mFillDirection == FILL_UP || mFillDirection == FILL_DOWN;
    const s32 areaWidth = vertical ? width : pLength;
    const s32 areaHeight = vertical ? pLength : height;
    const s32 x = mFillDirection == FILL_LEFT ? width - pLength : 0;
    const s32 y = mFillDirection == FILL_UP ? height - pLength : 0;
    mFillSprite.brushSet(znCBrushManager::instanceGet()->areaBrushCreate(
        mFillBrush, mFillBrush->xGet() + x, mFillBrush->yGet() + y, areaWidth, areaHeight));
    mFillMatrix = translationGet(
        znPoint(mFillOffset.mX + x + (areaWidth - width) / 2, mFillOffset.mY + y + (areaHeight - height) / 2));
}

void znCButtonDelayComponent::matrixApply()
{
    mDisabledSprite.matrixApply(mEntity->worldMatrixGet() * translationGet(mFillOffset));
    mFillSprite.matrixApply(mEntity->worldMatrixGet() * mFillMatrix);
}

void znCButtonDelayComponent::render()
{
    if (mLastFillLength > 0)
    {
        mDisabledSprite.render();
        mFillSprite.render();
    }
    if (mTimerText != nullptr)
        mTimerText->render();
}

void znCButtonDelayComponent::restart()
{
    mElapsedMs = 0;
    mEntity->activeSet(true);
    refresh();
}

void znCButtonDelayComponent::delaySet(s32 pDelayMs)
{
    const bool charging = isCharging();
    mDelayMs = std::max(pDelayMs, 0);
    mElapsedMs = charging ? std::min(mElapsedMs, mDelayMs) : mDelayMs;
    if (charging)
        refresh(); // it may be over by now, and no update would say so
}
