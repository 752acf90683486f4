#ifndef ZNHOGCORE_COMPONENTS_ZNCDRAGGABLEKEYCOMPONENT_H
#define ZNHOGCORE_COMPONENTS_ZNCDRAGGABLEKEYCOMPONENT_H

// A key that lies in the scene and is dragged onto the locks of the sub-scene that is on top. A press on it hides it
// and puts a picture of it under the pointer: "inventoryIcons/" + key + "C.png" if there is one, its own otherwise. At
// the drop all locks under the picture try the key. It goes back to its place unless one took it and none still needs
// it.
//
// The entity needs a znCSpriteComponent and a znCNameComponent.

#include "znappcore/src/znCBrush.h"
#include "znappcore/znIMessageListenerComponent.h"

struct znCPointerMessage;

class znCDraggableKeyComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCDraggableKeyComponent"};

    // Gives the entity a znCGhostSpriteComponent: a key that lies in the scene shows in ghost mode.
    explicit znCDraggableKeyComponent(znCEntity* pEntity);

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void mySave(std::string& pOut) override; // whether it is being dragged
    void myLoad(std::string& pIn) override;  // a key that was being dragged lies in its place again

private:
    bool startDragEventIfHit(const znCPointerMessage& pMessage);
    void dragEndHandle();
    void reset();
    znCEntity* dragEntityFind() const;
    bool locksTry(const znCEntity& pDragEntity);
    std::string keyGet() const;
    znCBrushPtr dragBrushGet() const;
    znCBrushPtr inventoryIconGet() const;

    bool mDragging = false;
};

#endif
