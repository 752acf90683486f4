#ifndef TESTS_ZNHOGCORE_SHIPPEDPLAYER_H
#define TESTS_ZNHOGCORE_SHIPPEDPLAYER_H

// Who plays the scenes that ship: by presses alone, knowing where everything lies.

#include "tests/znhogcore/shippedGame.h"
#include "znappcore/components/znCSpriteComponent.h"
#include "znhogcore/components/gui/znCGameGui.h"
#include "znhogcore/components/gui/znCPickListGui.h"
#include "znhogcore/components/znCBonusComponent.h"
#include "znhogcore/components/znCBonusListComponent.h"
#include "znhogcore/components/znCBonusSilhouetteComponent.h"
#include "znhogcore/components/znCDraggableKeyComponent.h"
#include "znhogcore/components/znCLockComponent.h"
#include "znhogcore/components/znCNameComponent.h"
#include "znhogcore/components/znCSubSceneComponent.h"
#include "znhogcore/components/znCSubSceneNavigateComponent.h"
#include "znhogcore/components/znCTappableCollectableComponent.h"
#include "znhogcore/src/znCHogLevel.h"

#include <gtest/gtest.h>

#include <algorithm>

// The pixels of an entity's picture, every pStep, that its hit map holds and that nothing in front of it covers.
inline std::vector<znPoint> pixelsInSight(znCEntity* pEntity, s32 pStep)
{
    auto* sprite = pEntity->componentGet<znCSpriteComponent>();
    std::vector<znCSpriteComponent*> inFront;
    bool behind = true;
    for (znINode* sibling : pEntity->parentGet()->childrenGet())
    {
        auto* entity = dynamic_cast<znCEntity*>(sibling);
        if (!behind && entity != nullptr && entity->componentGet<znCSpriteComponent>() != nullptr)
            inFront.push_back(entity->componentGet<znCSpriteComponent>());
        behind = behind && sibling != pEntity;
    }
    auto* gui = dynamic_cast<znCEntity*>(ShippedGame::level().childFind("GameGui"));
    for (znCEntity* piece : gui->entitiesWithComponentsGet({&typeid(znCSpriteComponent)}))
        inFront.push_back(piece->componentGet<znCSpriteComponent>());
    std::vector<znPoint> pixels;
    const znPoint middle = pEntity->worldPosGet();
    for (s32 y = middle.mY - sprite->heightGet() / 2; y < middle.mY + sprite->heightGet() / 2; y += pStep)
        for (s32 x = middle.mX - sprite->widthGet() / 2; x < middle.mX + sprite->widthGet() / 2; x += pStep)
        {
            const znPoint point(x, y);
            if (x >= 0 && y >= 0 && x < 1366 && y < 768 && sprite->hitTest(point, false) &&
                std::none_of(inFront.begin(), inFront.end(),
                             [&](znCSpriteComponent* pOther) { return pOther->hitTest(point, false); }))
                pixels.push_back(point);
        }
    return pixels;
}

// One that is well inside: the middle of the longest run.
inline znPoint pixelGet(znCEntity* pEntity)
{
    const std::vector<znPoint> pixels = pixelsInSight(pEntity, 3);
    return pixels.empty() ? pEntity->worldPosGet() : pixels[pixels.size() / 2];
}

inline bool ended()
{
    return znCHogCoreMain::instanceGet()->appDisplayChildFind("roundScoreGui") != nullptr;
}

// Plays a scene by what lies open to be found.
class ShippedPlayer
{
public:
    explicit ShippedPlayer(ShippedGame& pGame) : mGame(pGame) {}

    std::vector<std::string> mFound; // in order, without bonus things

    // One press or drag that brings the round on; false if there is nothing to do at the moment.
    bool step()
    {
        if (celebrated())
            return false;
        for (znCEntity* entity : activeFindables())
            if (entity->parentGet() == subSceneGet() && find(entity))
                return true;
        if (keyUse())
            return true;
        for (znCEntity* entity : activeFindables())
            if (wayTake(subSceneIndexOf(entity)))
                return true;
        return subSceneIndexGet() > 0 && stepBack();
    }

    // Presses on until the round has ended, its score is shown, or the time is over; answers whether it has ended.
    bool roundPlay(s32 pFramesMax)
    {
        for (const s32 end = mGame.mFrames + pFramesMax; !ended() && mGame.mFrames < end;)
            if (!step())
                mGame.framesRun(ShippedGame::SECOND / 4);
        return ended();
    }

    // Does what a hint at that place of the open sub-scene asks for.
    bool hintFollow(const znPoint& pPlace)
    {
        znCEntity* nearest = nullptr;
        s64 best = 20 * 20;
        for (znINode* node : subSceneGet()->childrenGet())
        {
            auto* entity = dynamic_cast<znCEntity*>(node);
            if (entity == nullptr || !entity->activeGet() || !hintable(entity))
                continue;
            const s64 x = entity->posGet().mX - pPlace.mX;
            const s64 y = entity->posGet().mY - pPlace.mY;
            if (x * x + y * y >= best)
                continue;
            best = x * x + y * y;
            nearest = entity;
        }
        // The sparkles may lie beside the open picture: at a door of the room, to which a press there leads back.
        if (nearest == nullptr)
            return subSceneIndexGet() > 0 && stepBack();
        if (nearest->componentGet<znCDraggableKeyComponent>() != nullptr)
            return keyUse();
        if (nearest->componentGet<znCSubSceneNavigateComponent>() != nullptr)
            return mGame.tap(pixelGet(nearest)), true;
        return find(nearest);
    }

    bool stepBack()
    {
        const s32 index = subSceneIndexGet();
        auto* button = dynamic_cast<znCEntity*>(ShippedGame::level().childFind("GameGuiSubSceneExitButton"));
        mGame.tap(button != nullptr && button->activeInTreeGet() ? button->worldPosGet() : znPoint(4, 384));
        mGame.framesRun(5);
        return subSceneIndexGet() != index;
    }

    // The round is won, and takes no presses any more.
    static bool celebrated() { return ShippedGame::level().childFind("WellDone") != nullptr; }
    static znCEntity* subSceneGet() { return ShippedGame::level().currentSubSceneGet()->entityGet(); }
    static s32 subSceneIndexGet() { return ShippedGame::level().currentSubSceneGet()->indexGet(); }

private:
    static bool bonus(const znCEntity* pEntity)
    {
        return pEntity->componentGet<znCBonusComponent>() != nullptr ||
               pEntity->componentGet<znCBonusListComponent>() != nullptr ||
               pEntity->componentGet<znCBonusSilhouetteComponent>() != nullptr;
    }

    static bool hintable(const znCEntity* pEntity)
    {
        const auto* tappable = pEntity->componentFind<znICollectableComponent>();
        return pEntity->componentGet<znCDraggableKeyComponent>() != nullptr ||
               pEntity->componentGet<znCSubSceneNavigateComponent>() != nullptr ||
               (tappable != nullptr && !tappable->inactiveGet() && !tappable->collectionStartedGet());
    }

    // Things that a tap finds now, bonus things last.
    static std::vector<znCEntity*> activeFindables()
    {
        std::vector<znCEntity*> found;
        for (znCEntity* entity : ShippedGame::level().entitiesWithKindGet<znCTappableCollectableComponent>())
        {
            const auto* tappable = entity->componentFind<znCTappableCollectableComponent>();
            if (!tappable->inactiveGet() && !tappable->collectionStartedGet() &&
                entity->componentGet<znCLockComponent>() == nullptr)
                found.push_back(entity);
        }
        std::stable_partition(found.begin(), found.end(), [](const znCEntity* pEntity) { return !bonus(pEntity); });
        return found;
    }

    bool find(znCEntity* pEntity)
    {
        const auto* tappable = pEntity->componentFind<znCTappableCollectableComponent>();
        if (tappable == nullptr)
            return keyUse(); // a task: its lock wants its keys
        if (pEntity->componentGet<znCLockComponent>() != nullptr)
            return keyUse();
        const std::vector<znPoint> pixels = pixelsInSight(pEntity, 3);
        for (std::size_t i = 0; i < 5 && !pixels.empty(); ++i)
        {
            mGame.tap(pixels[(pixels.size() / 2 + i * pixels.size() / 5) % pixels.size()]);
            if (!tappable->collectionStartedGet())
                continue;
            if (!bonus(pEntity))
                mFound.push_back(pEntity->nameGet());
            mGame.framesRun(ShippedGame::SECOND / 4);
            return true;
        }
        ADD_FAILURE() << pEntity->nameGet() << " can't be found with the mouse: " << pixels.size() << " places";
        return false;
    }

    // Drags a key onto a lock that needs it, both in the open sub-scene.
    bool keyUse()
    {
        for (znCEntity* lock : subSceneGet()->entitiesWithComponentsGet({&typeid(znCLockComponent)}))
            for (znCEntity* key : subSceneGet()->entitiesWithComponentsGet({&typeid(znCDraggableKeyComponent)}))
            {
                if (!key->activeInTreeGet() || !lock->componentGet<znCLockComponent>()->keyNeeded(key))
                    continue;
                mGame.drag(pixelGet(key), lock->worldPosGet());
                mGame.framesRun(ShippedGame::SECOND / 4);
                EXPECT_FALSE(lock->componentGet<znCLockComponent>()->keyNeeded(key))
                    << key->nameGet() << " can't be used on " << lock->nameGet();
                return true;
            }
        return false;
    }

    static s32 subSceneIndexOf(const znCEntity* pEntity)
    {
        return dynamic_cast<znCEntity*>(pEntity->parentGet())->componentGet<znCSubSceneComponent>()->indexGet();
    }

    // Through a door of the open sub-scene, or back from it.
    bool wayTake(s32 pIndex)
    {
        if (pIndex == subSceneIndexGet())
            return false;
        for (znCEntity* door : subSceneGet()->entitiesWithComponentsGet({&typeid(znCSubSceneNavigateComponent)}))
            if (door->activeInTreeGet() &&
                door->componentGet<znCSubSceneNavigateComponent>()->targetIndexGet() == pIndex)
            {
                mGame.tap(pixelGet(door));
                mGame.framesRun(5);
                EXPECT_EQ(subSceneIndexGet(), pIndex) << door->nameGet();
                return subSceneIndexGet() == pIndex;
            }
        return subSceneIndexGet() > 0 && stepBack();
    }

    ShippedGame& mGame;
};

inline std::vector<std::string> scenesGet()
{
    std::vector<std::string> scenes;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(PETREL_ROOT) / "data" / "scenes"))
    {
        const std::string name = entry.path().filename();
        if (std::filesystem::exists(entry.path() / "coords.txt") && name != "map" && name != "end")
            scenes.push_back(name);
    }
    std::sort(scenes.begin(), scenes.end());
    return scenes;
}

// Through the round score into what follows.
inline void sailOn(ShippedGame& pGame)
{
    const std::string next = ShippedGame::level().nextLevelGet();
    pGame.framesRun(8 * ShippedGame::SECOND);
    auto* button = dynamic_cast<znCEntity*>(
        znCHogCoreMain::instanceGet()->appDisplayChildFind("roundScoreGui")->childFind("roundScoreContinueButton"));
    pGame.tap(button->worldPosGet());
    pGame.framesRun(3 * ShippedGame::SECOND);
    if (next.find(".txt") == std::string::npos)
        EXPECT_EQ(ShippedGame::level().levelNameGet(), next.substr(0, next.find("->")));
    else
        EXPECT_FALSE(ShippedGame::open());
}

#endif
