#ifndef ZNHOGCORE_COMPONENTS_ZNCSUBSCENECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCSUBSCENECOMPONENT_H

// Makes a background a sub-scene: the room, which is sub-scene 0 and always open, or a close-up over it. A close-up is
// open while its entity is active; an open sub-scene swallows all pointer messages that its objects left over, so that
// nothing behind it can be tapped.
//
// A sub-scene has work while something in it can be collected or is being collected, while a way out of the scene
// stands open in it, or while a door in it leads on to a close-up with work. Doors to a close-up show as long as it has
// work. A close-up that runs out of work closes by itself; a reset of the level closes it too.
//
// On a touch device it carries the finger mask "cursors/software/touchHitMask.png", if there is one: a finger hits
// whatever touches that shape, not just one pixel.
//
// A tap on nothing, in a sub-scene with differences to find, plays the animation "diffNotFoundMarker" of the
// application's settings with the sound "sfxDiffMissedClick" ("audio/sfx/find.wav"); input waits until it is over.

#include "znappcore/znIMessageListenerComponent.h"
#include "zncore/znPoint.h"

#include <vector>

class znCAnimatingSpriteComponent;
class znCSpriteComponent;
struct znCPointerMessage;

class znCSubSceneComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSubSceneComponent"};

    explicit znCSubSceneComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void update(s32 pDeltaMs) override;

    // Once, when the entity's picture is known. pIndex: place among the level's sub-scenes. A picture that covers the
    // playable canvas has no outside to press: it loses its znCSubSceneExitComponent and has the GUI's exit button.
    void initialise(s32 pIndex);
    s32 indexGet() const { return mIndex; }
    bool fullScreenGet() const { return mFullScreen; }
    // Null on a mouse device and without a mask; its entity is a child of the sub-scene.
    znCSpriteComponent* touchHitSpriteGet() const { return mTouchHitSprite; }

private:
    void touchHitSpriteCreate();
    void open();
    void close();
    bool closeIfClosable();
    void outOfWorkCheck();
    bool hintGive();
    void pointerUpProcess(const znCPointerMessage& pMessage);
    void missedTapHandle(const znPoint& pPoint);

    znCAnimatingSpriteComponent* mMissAnim = nullptr; // of an entity below; null if none plays
    znCSpriteComponent* mTouchHitSprite = nullptr;    // its entity is owned by the tree
    s32 mIndex = 0;
    bool mFullScreen = false; // the picture covers the playable canvas
};

#endif
