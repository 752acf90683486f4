#include "znhogcore/components/znCSubSceneNavigateComponent.h"

#include "znappcore/components/gui/znCRollOverGui.h"
#include "znappcore/components/znCParticleEmitterComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/src/znCGuiMessageDispatcher.h"
#include "znappcore/znCEmptyMessageData.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znStr.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCNavigateComponent.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
constexpr char MARK[] = "SUB";
constexpr char SPARKLE[] = "particles/subScene.txt";
constexpr s32 FIRST_CLOSE_UP = 1;
} // namespace

znCSubSceneNavigateComponent::znCSubSceneNavigateComponent(znCEntity* pEntity)
    : znIGestureHandlingComponent(pEntity, true, false, false)
{
    const znCNameComponent* name = znCNameComponent::get(pEntity);
    if (name == nullptr)
        return;
    if (name->baseNameGet().find(znCNavigateComponent::MARK) == std::string::npos)
        sparkleStart();
    targetIndexCalculate(name->baseNameGet());
}

void znCSubSceneNavigateComponent::sparkleStart()
{
    if (auto* emitter = mEntity->componentAdd<znCParticleEmitterComponent>())
        emitter->initialise(znCResourceName(SPARKLE, znCResourceName::GAME_DATA));
}

void znCSubSceneNavigateComponent::targetIndexCalculate(const std::string& pBaseName)
{
    std::string name = pBaseName;
    const std::size_t tail = name.find(znCNavigateComponent::MARK);
    if (tail != std::string::npos)
        name.erase(tail > 0 ? tail - 1 : 0);
    const std::size_t mark = name.find(MARK);
    ZN_ASSERT(mark != std::string::npos, "Expected SUB to be in my name %s.\n", pBaseName.c_str());
    if (mark != std::string::npos)
        mTargetIndex = znStr::toS32(std::string_view(name).substr(mark + sizeof(MARK) - 1));
    ZN_ASSERT(mTargetIndex >= FIRST_CLOSE_UP, "Expected a target index of 1 or above %s.\n", pBaseName.c_str());
    if (mTargetIndex < FIRST_CLOSE_UP)
        mTargetIndex = 0;
}

void znCSubSceneNavigateComponent::messagesRegister()
{
    znIGestureHandlingComponent::messagesRegister();
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerRegister(znCHogMessageDispatcher::ACTIVATE_SUB_SCENE, this);
    game->listenerRegister(znCHogMessageDispatcher::DEACTIVATE_SUB_SCENE, this);
}

void znCSubSceneNavigateComponent::messagesDeregister()
{
    znIGestureHandlingComponent::messagesDeregister();
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerDeregister(znCHogMessageDispatcher::ACTIVATE_SUB_SCENE, this);
    game->listenerDeregister(znCHogMessageDispatcher::DEACTIVATE_SUB_SCENE, this);
}

bool znCSubSceneNavigateComponent::messageProcess(const znCUniqueId& pType, void* pData)
{
    const bool activate = pType == znCHogMessageDispatcher::ACTIVATE_SUB_SCENE;
    if ((activate || pType == znCHogMessageDispatcher::DEACTIVATE_SUB_SCENE) &&
        *static_cast<const s32*>(pData) == mTargetIndex)
        mEntity->activeSet(activate);
    return znIGestureHandlingComponent::messageProcess(pType, pData);
}

bool znCSubSceneNavigateComponent::inputEnabled()
{
    return mTargetIndex >= FIRST_CLOSE_UP;
}

void znCSubSceneNavigateComponent::onTap()
{
    // The door's own caption would stay over the picture that opens.
    znCGuiMessageDispatcher::instanceGet()->messageSend(znCRollOverGui::CLOSE_ROLL_OVER,
                                                        znCEmptyMessageData::sharedGet());
    znCHogMessageDispatcher::instanceGet()->messageSend(znCHogMessageDispatcher::OPEN_SUB_SCENE, &mTargetIndex);
}
