#ifndef ZNHOGCORE_COMPONENTS_ZNCTAPPABLECOLLECTABLECOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCTAPPABLECOLLECTABLECOMPONENT_H

// A collectable that the player finds by tapping it: the press of the primary pointer must start and end on it. While
// it isn't active, taps go through to what lies behind.
//
// While it is active it shows in ghost mode: it gives its entity a znCGhostSpriteComponent.
//
// A press makes it the input manager's priority listener until the release. A second finger that comes down beside it
// may take the press away for a gesture of two (znCPointerMessage::mCaptureHolder).

#include "zncore/znPoint.h"
#include "znhogcore/components/znICollectableComponent.h"

class znCGhostSpriteComponent;
class znCSpriteComponent;
struct znCPointerMessage;

class znCTappableCollectableComponent : public znICollectableComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCTappableCollectableComponent"};

    explicit znCTappableCollectableComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void pointerCaptureCancel() override;
    void myLoad(std::string& pIn) override;
    void collectionProcessTrigger() override;
    void activateDo() override;
    void resetDo() override;

    // Takes the finger mask of the sub-scene that the entity stands in, which must be its parent.
    void touchHitSpriteStore();
    // pPoint in device pixels. With a finger mask: whether the sprite touches the mask there. Without: whether the
    // point hits the sprite. Never while the entity or a node above it is inactive.
    bool hitTest(const znPoint& pPoint);

protected:
    void ghostSet(bool pEnabled);

private:
    bool pointerMessageProcess(const znCUniqueId& pType, znCPointerMessage& pMessage);
    bool pointerDownProcess(znCPointerMessage& pMessage);
    bool pointerUpProcess(const znCPointerMessage& pMessage);
    bool touchMaskTest(znCSpriteComponent& pSprite, const znPoint& pLocal);
    void pressEnd();

    bool mPressed = false;                         // a primary press began here and hasn't ended
    znCSpriteComponent* mTouchHitSprite = nullptr; // the sub-scene's, null on a mouse device
    znCGhostSpriteComponent* mGhost = nullptr;     // the entity's
};

#endif
