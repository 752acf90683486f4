#ifndef ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCBUTTONCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCBUTTONCOMPONENT_H

// A button: a picture that is pressed on its opaque pixels, and the message that it sends then. A button without an
// action asks its GUI.
//
// Keys: "buttonImage"; "buttonDownImage", optional, shown while it is pressed or pointed at; "action", optional: the
// name of a message of znCGuiMessageDispatcher, a blank and a parameter; "font", optional: makes a label, with the keys
// of a text.

#include "znappcore/components/gui/elements/znCPressBrushes.h"
#include "znappcore/components/znIGestureHandlingComponent.h"
#include "znappcore/znCButtonActionData.h"

#include <string>

class znCButtonComponent : public znIGestureHandlingComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCButtonComponent"};
    static constexpr znCUniqueId UNSET_ACTION{"znCButtonComponent_UnsetAction"};

    explicit znCButtonComponent(znCEntity* pEntity);

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool inputEnabled() override;
    bool highlightChanged() override;
    void onTap() override;

    // What a press does: the sound of a click, then the action; logged if neither action nor GUI took it.
    void actionPerform();
    // The text of the key "action". The message's payload is znCButtonActionData; the messages of other controls, which
    // carry something else, are refused with a line in the log.
    void actionSet(const std::string& pAction);

protected:
    // See znCPressBrushes::otherShow.
    void otherImageShow(const znCBrushPtr& pBrush) { mBrushes.otherShow(pBrush); }

private:
    znCPressBrushes mBrushes;
    znCUniqueId mActionType = UNSET_ACTION;
    znCButtonActionData mAction;
};

#endif
