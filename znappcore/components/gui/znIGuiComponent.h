#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNIGUICOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNIGUICOMPONENT_H

// Base of the components that stand for a whole screen or dialog, and the way from a GUI file to its entities.
//
// A GUI file is a tree of elements; docs/gui-files.md tells authors its form. Every element becomes an entity with one
// component of the element's type, made before the element's children, and gets its settings after them.
//
// The key "modal" (bool, true): false lets pointer messages pass to what lies behind a GUI that was loaded as modal.

#include "znappcore/znIComponent.h"

class znCButtonComponent;
class znCEntity;
class znCResourceName;
class znINode;

class znIGuiComponent : public znIComponent
{
public:
    using znIComponent::znIComponent;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    // A button without an action, of this GUI, was pressed. True if that was handled.
    virtual bool onButtonClicked(znCButtonComponent* pButton);

    // Builds the elements of a file below pParent and returns the last one on the file's top level; null, with "No GUI
    // elements created from file %s\n", if it has none. Without a parent the returned entity belongs to the caller, and
    // only it is kept. With pModal the elements on the top level claim all pointer messages that their children leave.
    //
    // What is wrong in the file is logged with file and line, and the rest is built.
    static znCEntity* guiCreateFromFile(const znCResourceName& pFile, znINode* pParent, bool pModal);

    // A new entity without a name, with that component, below pParent if there is one; otherwise the caller's.
    static znCEntity* entityWithComponentCreate(const znCUniqueId& pType, znINode* pParent);
    // The entity's first component that is a GUI; null if it has none.
    static znIGuiComponent* guiComponentGet(const znCEntity* pEntity);
    // The GUI that the component is part of: the nearest one above its entity; null if there is none.
    static znIGuiComponent* owningGuiGet(const znIComponent* pComponent);
};

#endif
