#include "znhogcore/components/znCSubSceneExitComponent.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znCEmptyMessageData.h"
#include "znappcore/znCPointerMessage.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIInputManager.h"
#include "znappcore/znIRenderer.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
constexpr char SHADE[] = "000000af";
constexpr znCUniqueId MESSAGES[] = {znIInputManager::POINTER_DOWN, znIInputManager::POINTER_MOVE,
                                    znIInputManager::POINTER_UP};
} // namespace

znCSubSceneExitComponent::znCSubSceneExitComponent(znCEntity* pEntity) : znIMessageListenerComponent(pEntity)
{
    posChangeHandle();
    mRenderData.colourSet(znCColour(SHADE));
}

void znCSubSceneExitComponent::messagesRegister()
{
    for (const znCUniqueId& message : MESSAGES)
        znIInputManager::instanceGet()->listenerRegister(message, this);
}

void znCSubSceneExitComponent::messagesDeregister()
{
    for (const znCUniqueId& message : MESSAGES)
        znIInputManager::instanceGet()->listenerDeregister(message, this);
}

bool znCSubSceneExitComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    if (!mEntity->activeInTreeGet())
        mPressed = false;
    else if (pType == znIInputManager::POINTER_DOWN)
        mPressed = true;
    else if (pType == znIInputManager::POINTER_UP && mPressed)
    {
        mPressed = false;
        subSceneCloseIfClickedOutside(static_cast<const znCPointerMessage*>(pData)->mPos);
    }
    return false;
}

void znCSubSceneExitComponent::subSceneCloseIfClickedOutside(const znPoint& pPoint)
{
    auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    if (sprite != nullptr && !sprite->hitTest(pPoint, false))
        znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::CLOSE_TOP_SUB_SCENE,
                                                            znCEmptyMessageData::sharedGet());
}

void znCSubSceneExitComponent::posChangeHandle()
{
    const znIDisplay* display = znIDisplay::instanceGet();
    const auto x = static_cast<float>(mEntity->posGet().mX);
    const auto y = static_cast<float>(mEntity->posGet().mY);
    const auto width = static_cast<float>(display->canvasWidthGet() / 2);
    const auto height = static_cast<float>(display->canvasHeightGet() / 2);
    mLocalCorners[0] = {-(x + width), -(y + height)};
    mLocalCorners[1] = {-(x + width), height - y};
    mLocalCorners[2] = {width - x, height - y};
    mLocalCorners[3] = {width - x, -(y + height)};
}

void znCSubSceneExitComponent::matrixApply()
{
    const znAffineMtx2d& matrix = mEntity->worldMatrixGet();
    for (s32 i = 0; i < 4; ++i)
        mWorldCorners[i] = {matrix.m00 * mLocalCorners[i].mX + matrix.m01 * mLocalCorners[i].mY + matrix.m02,
                            matrix.m10 * mLocalCorners[i].mX + matrix.m11 * mLocalCorners[i].mY + matrix.m12};
    mRenderData.verticesSet(mWorldCorners);
}

void znCSubSceneExitComponent::render()
{
    znIRenderer::instanceGet()->spriteAddToBatch(&mRenderData);
}
