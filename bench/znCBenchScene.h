#ifndef BENCH_ZNCBENCHSCENE_H
#define BENCH_ZNCBENCHSCENE_H

// A scene as large as the renderer takes: 1,023 turned sprites, one entity each, in 20 runs of one texture.
//
// It needs what draws: the graphics layer, the renderer, the component factory and the static vectors of the node tree.
// The brushes come from the caller, so that the scene draws through any platform table.

#include "znappcore/components/znCSpriteComponent.h"
#include "znappcore/src/znCEntity.h"
#include "znappcore/znIRenderer.h"

#include <vector>

class znCBenchScene
{
public:
    static constexpr s32 SPRITES = 1023;
    static constexpr s32 RUNS = 20;
    static constexpr s32 COLUMNS = 33;
    static constexpr s32 SPACING = 30;         // device pixels
    static constexpr float TURN_STEP = 0.001f; // radians a frame, where the sprites turn

    // pBrushes: RUNS of them, each on a texture of its own.
    explicit znCBenchScene(const std::vector<znCBrushPtr>& pBrushes)
    {
        for (s32 i = 0; i < SPRITES; ++i)
        {
            auto* entity = new znCEntity("sprite"); // owned by mRoot
            entity->componentAdd<znCSpriteComponent>()->brushSet(pBrushes[static_cast<std::size_t>(runGet(i))]);
            entity->posSet(i % COLUMNS * SPACING, i / COLUMNS * SPACING);
            entity->rotationSet(angleGet(i));
            mRoot.childAdd(entity);
        }
        mRoot.treeUpdate(0);
    }

    // Update and drawing of one frame; pTurn has every sprite move.
    void frame(bool pTurn)
    {
        if (pTurn)
            for (znINode* sprite : mRoot.childrenGet())
                sprite->rotationSet(sprite->rotationGet() + TURN_STEP);
        mRoot.treeUpdate(16);
        znIRenderer& renderer = *znIRenderer::instanceGet();
        renderer.frameClear();
        renderer.frameBegin();
        mRoot.treeRender();
        renderer.frameEnd();
    }

    static s32 runGet(s32 pSprite) { return pSprite * RUNS / SPRITES; }
    static float angleGet(s32 pSprite) { return static_cast<float>(pSprite) * 0.006f; }

private:
    znINode mRoot{"root"};
};

#endif
