#include "znhogcore/components/znCGhostSpriteComponent.h"

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCBrushManager.h"
#include "znappcore/src/znCEntity.h"
#include "zncore/debug/znIDebug.h"
#include "znhogcore/src/znCHogMessageDispatcher.h"

namespace
{
constexpr s32 PRIORITY = 1;
constexpr s32 STEP_MS = 250;
constexpr const char* PULSE[] = {"00b00080", "00800080", "00600080", "00800080", "00b00080"};
} // namespace

znCGhostSpriteComponent::znCGhostSpriteComponent(znCEntity* pEntity) : znIMessageListenerComponent(pEntity, PRIORITY)
{
    s32 step = 0; // behind the colour before
    for (const char* colour : PULSE)
    {
        mColourGraph.dataAdd(step, znCColour(colour));
        step = STEP_MS;
    }
}

void znCGhostSpriteComponent::messagesRegister()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerRegister(znCHogMessageDispatcher::GHOST_HINT_BUTTON_PRESSED, this);
    game->listenerRegister(znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED, this);
}

void znCGhostSpriteComponent::messagesDeregister()
{
    znCHogMessageDispatcher* game = znCHogMessageDispatcher::instanceGet();
    game->listenerDeregister(znCHogMessageDispatcher::GHOST_HINT_BUTTON_PRESSED, this);
    game->listenerDeregister(znCHogMessageDispatcher::COLLECTABLE_ENTITY_COLLECTED, this);
}

bool znCGhostSpriteComponent::messageProcess(const znCUniqueId& pType, void*)
{
    mGhostOn = pType == znCHogMessageDispatcher::GHOST_HINT_BUTTON_PRESSED;
    refresh();
    return false;
}

void znCGhostSpriteComponent::enabledSet(bool pEnabled)
{
    mEnabled = pEnabled;
    refresh();
}

void znCGhostSpriteComponent::refresh()
{
    mDraw = mGhostOn && mEnabled;
    if (mDraw && mSprite.brushGet() == nullptr)
        spriteCreate();
}

void znCGhostSpriteComponent::spriteCreate()
{
    const auto* sprite = mEntity->componentGet<znCSpriteComponent>();
    if (sprite == nullptr)
    {
        const auto* parent = dynamic_cast<const znCEntity*>(mEntity->parentGet());
        sprite = parent != nullptr ? parent->componentGet<znCSpriteComponent>() : nullptr;
    }
    ZN_ASSERT(sprite != nullptr, "Expected %s to have a sprite component.\n", mEntity->nameGet().c_str());
    if (sprite == nullptr || sprite->brushGet() == nullptr)
        return;
    mSprite.brushSet(znCBrushManager::instanceGet()->alpha8BrushCreate(sprite->brushGet()));
    mSprite.alphaModeSet(znCMaterial::BLEND_ALPHA);
    mSprite.colourSet(mColourGraph.valueGet(mElapsedMs));
    matrixApply();
}

void znCGhostSpriteComponent::update(s32 pDeltaMs)
{
    if (!mEntity->activeInTreeGet())
        return;
    mElapsedMs += pDeltaMs;
    if (mElapsedMs > mColourGraph.lastTimeGet())
        mElapsedMs = 0;
    if (mDraw)
        mSprite.colourSet(mColourGraph.valueGet(mElapsedMs));
}

void znCGhostSpriteComponent::render()
{
    if (mDraw)
        mSprite.render();
}

void znCGhostSpriteComponent::matrixApply()
{
    mSprite.matrixApply(mEntity->worldMatrixGet());
}
