#ifndef ZNAPPCORE_COMPONENTS_ZNCDRAGDROPCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_ZNCDRAGDROPCOMPONENT_H

// Lets the player drag its entity: the sprite's centre follows the pointer. The end of a drag is told to all by a GUI
// message; whoever waits for a drop finds the entity where it was let go.

#include "znappcore/components/znIGestureHandlingComponent.h"
#include "znappcore/src/znCBrush.h"

#include <string>

class znCDragDropComponent : public znIGestureHandlingComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCDragDropComponent"};
    // On the GUI dispatcher; payload: znCEmptyMessageData.
    static constexpr znCUniqueId DRAG_END{"DragDropCompDragEnd"};

    explicit znCDragDropComponent(znCEntity* pEntity);

    // A new entity that can be dragged, in no tree: it belongs to the caller until it is added to a node.
    static znCEntity* entityCreate(const std::string& pName, const znCBrushPtr& pBrush, const znPoint& pPos);

    // Takes over a press that another component has seen, at pPos in device pixels, of input point pId. There must be
    // no gesture in progress.
    void dragStart(const znPoint& pPos, s32 pId);

    bool inputEnabled() override;
    void onDragMove(const znPoint& pPos) override;
    void onDragEnd(const znPoint& pPos) override;
};

#endif
