#ifndef ZNHOGCORE_COMPONENTS_ZNCSUBSCENEEXITCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCSUBSCENEEXITCOMPONENT_H

// Darkens what lies around a close-up and closes it by a press there: anywhere but on the entity's sprite, which it
// needs.

#include "znappcore/src/znCSpriteRenderData.h"
#include "znappcore/znIMessageListenerComponent.h"
#include "zncore/znPoint.h"

class znCSubSceneExitComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSubSceneExitComponent"};

    explicit znCSubSceneExitComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void posChangeHandle() override;
    void matrixApply() override;
    void render() override;

private:
    void subSceneCloseIfClickedOutside(const znPoint& pPoint);

    znCSpriteRenderData mRenderData;
    znPointF mLocalCorners[4] = {}; // of the canvas, in the entity's space
    znPointF mWorldCorners[4] = {};
    bool mPressed = false;
};

#endif
