#include "znappcore/components/znCAnimatingSpriteComponent.h"

#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"
#include "zncore/znCResourceName.h"

bool znCAnimatingSpriteComponent::initialisedCheck() const
{
    ZN_ASSERT(mSprite != nullptr, "Not initialised.\n");
    return mSprite != nullptr;
}

bool znCAnimatingSpriteComponent::frameCheck()
{
    if (mSprite == nullptr && !mFrameReported)
        mFrameReported = !initialisedCheck();
    return mSprite != nullptr;
}

void znCAnimatingSpriteComponent::update(s32 pDeltaMs)
{
    if (frameCheck())
        mSprite->update(pDeltaMs);
}

void znCAnimatingSpriteComponent::render()
{
    if (frameCheck())
        mSprite->render();
}

void znCAnimatingSpriteComponent::matrixApply()
{
    if (frameCheck())
        mSprite->matrixApply(mEntity->worldMatrixGet());
}

void znCAnimatingSpriteComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    const std::string file = pTable.strGet("xml");
    if (!file.empty())
        xmlLoad(znCResourceName(file, znCResourceName::GAME_DATA), pTable.boolGet("hitMap"));
    znIComponent::initialiseFromVariableTableDo(pTable);
}

void znCAnimatingSpriteComponent::stop()
{
    if (initialisedCheck())
        mSprite->stop();
}

void znCAnimatingSpriteComponent::reset()
{
    if (initialisedCheck())
        mSprite->reset();
}

void znCAnimatingSpriteComponent::xmlLoad(const znCResourceName& pName, bool pHitMap)
{
    mSprite = std::make_unique<znCAnimatingSprite>(pName, pHitMap);
    matrixApply();
}

void znCAnimatingSpriteComponent::emptyCreate()
{
    mSprite = std::make_unique<znCAnimatingSprite>();
}
