#ifndef ZNHOGCORE_COMPONENTS_ZNCSUBSCENECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCSUBSCENECOMPONENT_H

// Makes a background a sub-scene: the room, which is sub-scene 0, or a close-up over it. A close-up is open while its
// entity is active; an open sub-scene swallows all pointer messages that its objects left over, so that nothing behind
// it can be tapped.
//
// On a touch device it carries the finger mask "cursors/software/touchHitMask.png", if there is one: a finger hits
// whatever touches that shape, not just one pixel.

#include "znappcore/znIMessageListenerComponent.h"

class znCSpriteComponent;

class znCSubSceneComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSubSceneComponent"};

    explicit znCSubSceneComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    // Once, when the entity's picture is known. pIndex: place among the level's sub-scenes.
    void initialise(s32 pIndex);
    s32 indexGet() const { return mIndex; }
    // Null on a mouse device and without a mask; its entity is a child of the sub-scene.
    znCSpriteComponent* touchHitSpriteGet() const { return mTouchHitSprite; }

private:
    void touchHitSpriteCreate();
    void open();

    znCSpriteComponent* mTouchHitSprite = nullptr; // its entity is owned by the tree
    s32 mIndex = 0;
    bool mFullScreen = false; // the picture covers the playable canvas
};

#endif
