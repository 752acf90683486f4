#ifndef TESTS_TOOLS_SCENEROBOT_H
#define TESTS_TOOLS_SCENEROBOT_H

#include "tools/author/znCAuthorGame.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"
#include "znhogcore/components/znCTappableCollectableComponent.h"
#include "znhogcore/src/znCHogCoreMain.h"
#include "znhogcore/znIHogLevel.h"

#include <string>

// Plays a scene by presses alone: what lies open to be found, keys onto locks, then doors. Things must not cover each
// other.
class SceneRobot
{
public:
    SceneRobot(const std::filesystem::path& pData, const std::string& pScene) : mGame(pData)
    {
        mGame.mPlatform.mWindow.modesSet({{1366, 768, 32, 60, 0}});
        mGame.open(pScene);
        framesRun(200);
    }

    // True if the scene came to its end.
    bool play()
    {
        for (s32 i = 0; i < 100 && !ended(); ++i)
        {
            step();
            framesRun(60);
        }
        return ended();
    }

private:
    static bool ended() { return znCHogCoreMain::instanceGet()->appDisplayChildFind("roundScoreGui") != nullptr; }
    void framesRun(s32 pCount)
    {
        for (s32 i = 0; i < pCount; ++i)
        {
            s3ePointerUpdate();
            mGame.framesRun(1);
        }
    }
    void pointer(bool pDown, const znPoint& pPos)
    {
        mGame.mPlatform.mInput.buttonQueue(0, pDown, pPos.mX, pPos.mY);
        framesRun(1);
    }
    void tap(const znPoint& pPos)
    {
        pointer(true, pPos);
        pointer(false, pPos);
    }
    void step()
    {
        znCEntity* room = znIHogLevel::levelGet()->currentSubSceneGet()->entityGet();
        for (znCEntity* thing : room->entitiesWithKindGet<znCTappableCollectableComponent>())
        {
            const auto* tappable = thing->componentFind<znCTappableCollectableComponent>();
            if (!tappable->inactiveGet() && !tappable->collectionStartedGet() &&
                thing->componentGet<znCLockComponent>() == nullptr)
                return tap(thing->worldPosGet());
        }
        for (znCEntity* key : room->entitiesWithComponentsGet({&typeid(znCDraggableKeyComponent)}))
            for (znCEntity* lock : room->entitiesWithComponentsGet({&typeid(znCLockComponent)}))
                if (key->activeInTreeGet() && lock->componentGet<znCLockComponent>()->keyNeeded(key))
                {
                    pointer(true, key->worldPosGet());
                    mGame.mPlatform.mInput.motionQueue(lock->worldPosGet().mX, lock->worldPosGet().mY);
                    framesRun(1);
                    return pointer(false, lock->worldPosGet());
                }
        for (znCEntity* door : room->entitiesWithComponentsGet({&typeid(znCSubSceneNavigateComponent)}))
            if (door->activeInTreeGet())
                return tap(door->worldPosGet());
    }

    znCAuthorGame mGame;
};

#endif
