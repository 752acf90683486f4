#ifndef ZNHOGCORE_COMPONENTS_ZNCGHOSTSPRITECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCGHOSTSPRITECOMPONENT_H

// A pulsing green mask of its object's shape, while ghost mode runs and the object can be found. Ghost mode begins with
// "ghostHintButtonPressed" and ends with the next find of anything.
//
// The shape is that of the entity's znCSpriteComponent, or of its parent's; the mask is made when it first shows, and
// kept.

#include "znappcore/src/znCSprite.h"
#include "znappcore/znIMessageListenerComponent.h"
#include "zncore/znCGraph.h"

class znCGhostSpriteComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCGhostSpriteComponent"};

    explicit znCGhostSpriteComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void update(s32 pDeltaMs) override;
    void render() override;
    void matrixApply() override;

    // Whether the object can be found now; false at first.
    void enabledSet(bool pEnabled);

private:
    void refresh();
    void spriteCreate();

    s32 mElapsedMs = 0;
    znCGraph<znCColour> mColourGraph; // one pulse
    znCSprite mSprite;
    bool mDraw = false;
    bool mEnabled = false;
    bool mGhostOn = false;
};

#endif
