#include "znhogcore/components/gui/znCDropOffPickListEntryGui.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/components/znCTextSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"
#include "zncore/znNCoreUtils.h"

#include <algorithm>

namespace
{
constexpr char IMAGE_KEY[] = "image";
constexpr char TEXT_NAME[] = "PickListEntryText";
constexpr s32 SWELL_MS = 500;
constexpr s32 SETTLE_MS = 100;
constexpr float SCALE_SWOLLEN = 1.2f;

constexpr float FRAME_MS = 16.6666f;
constexpr float FALL_DEPTH = 120.0f;
constexpr float FALL_ACCELERATION = 0.4f;
constexpr float FALL_ROTATION_SPEED = 0.02f; // radians
} // namespace

znCDropOffPickListEntryGui::znCDropOffPickListEntryGui(znCEntity* pEntity) : znIPickListEntryGui(pEntity)
{
    mScaleGraph.dataAdd(0, 0.0f);
    mScaleGraph.dataAdd(SWELL_MS, SCALE_SWOLLEN);
    mScaleGraph.dataAdd(SETTLE_MS, 1.0f);
    pEntity->activeSet(false);
}

void znCDropOffPickListEntryGui::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIPickListEntryGui::initialiseFromVariableTableDo(pTable);
    const std::string image = pTable.strGet(IMAGE_KEY);
    if (!image.empty())
        mEntity->componentAdd<znCSpriteComponent>()->brushSet(
            znCBrushManager::instanceGet()->brushGet(znCResourceName(image, znCResourceName::GAME_DATA), true));
}

void znCDropOffPickListEntryGui::activateDo(const std::vector<znCEntity*>& pEntities)
{
    mCount = static_cast<s32>(pEntities.size());
    textUpdate();
    mEntity->scaleSet(0.0f);
    mEntity->activeSet(true);
}

bool znCDropOffPickListEntryGui::transitionOnUpdate(s32 pDeltaMs)
{
    mElapsedMs += pDeltaMs;
    mEntity->scaleSet(mScaleGraph.valueGet(mElapsedMs));
    return mElapsedMs >= mScaleGraph.lastTimeGet();
}

bool znCDropOffPickListEntryGui::entityCollected()
{
    --mCount;
    textUpdate();
    if (mCount > 0)
        return false;
    bringToTop();
    fallStart();
    return true;
}

void znCDropOffPickListEntryGui::countLimit(s32 pCount)
{
    if (mCount <= pCount)
        return;
    mCount = pCount;
    textUpdate();
}

void znCDropOffPickListEntryGui::textUpdate()
{
    znCTextSpriteComponent* text = textChildFind(TEXT_NAME);
    ZN_ASSERT(text != nullptr, "Expected a znCTextSpriteComponent named 'PickListEntryText'.\n");
    if (text == nullptr)
        return;
    text->textSet(mCount > 1 ? mText + "(" + std::to_string(mCount) + ")" : mText);
    textColourSet(text, mCount == 0);
}

// In front of the other slots, over which it falls.
void znCDropOffPickListEntryGui::bringToTop()
{
    znINode* parent = mEntity->parentGet();
    if (parent == nullptr)
        return;
    parent->childRemove(mEntity);
    parent->childAdd(mEntity);
}

void znCDropOffPickListEntryGui::fallStart()
{
    mElapsedMs = 0;
    mEntity->scaleSet(1.0f); // found while it was still swelling up
    mHomePos = mEntity->posGet();
    mFalling = true;
    mFallX = static_cast<float>(mHomePos.mX);
    mFallY = static_cast<float>(mHomePos.mY);
    const bool left = mHomePos.mX > 0 || (mHomePos.mX == 0 && znNCoreUtils::randomGet() % 2 == 1);
    const float speed = static_cast<float>(znNCoreUtils::randomGet(20) + 10) / 10.0f;
    mFallVelX = left ? -speed : speed;
    mFallVelY = 0.0f;
    mFallLimitY = mFallY + FALL_DEPTH;
    mFallRotation = 0.0f;
    mFallRotationSpeed = znNCoreUtils::randomGet() % 2 == 1 ? -FALL_ROTATION_SPEED : FALL_ROTATION_SPEED;
}

bool znCDropOffPickListEntryGui::transitionOffUpdate(s32 pDeltaMs)
{
    const float frames = static_cast<float>(pDeltaMs) / FRAME_MS;
    mFallX += frames * mFallVelX;
    mFallY += frames * mFallVelY;
    mFallRotation += frames * mFallRotationSpeed;
    if (mFallY >= mFallLimitY)
    {
        fallEnd();
        return true;
    }
    mEntity->posSet(znPoint(static_cast<s32>(mFallX), static_cast<s32>(mFallY)));
    mEntity->rotationSet(mFallRotation);
    mFallVelY += frames * FALL_ACCELERATION;
    return false;
}

void znCDropOffPickListEntryGui::fallEnd()
{
    mFalling = false;
    mEntity->activeSet(false);
    mEntity->posSet(mHomePos);
    mEntity->rotationSet(0.0f);
}

void znCDropOffPickListEntryGui::resetDo()
{
    bringToTop();
    if (!mFalling)
        mHomePos = mEntity->posGet();
    fallEnd();
    mElapsedMs = 0;
}

void znCDropOffPickListEntryGui::mySave(std::string& pOut)
{
    znIPickListEntryGui::mySave(pOut);
    znINode::s32Save(pOut, mCount);
}

void znCDropOffPickListEntryGui::myLoad(std::string& pIn)
{
    znIPickListEntryGui::myLoad(pIn);
    mCount = std::max(znINode::s32Load(pIn), 0);
    textUpdate();
    // How far it had fallen isn't saved. It keeps its place among its siblings, which are being loaded one by one.
    if (mEntryState == STATE_TRANSITION_OFF)
        fallStart();
}
