#ifndef ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCCHECKBOXCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCCHECKBOXCOMPONENT_H

// A box that a tap checks and unchecks. Below an entity with a znCCheckBoxGroupComponent it is one of several of which
// exactly one is checked: the player can check it, and it is unchecked by checking another.
//
// Keys: "imageOff", "imageOffOver", "imageOn", "imageOnOver": its four pictures, "Over" while pressed or pointed at.

#include "znappcore/components/znIGestureHandlingComponent.h"
#include "znappcore/src/znCBrush.h"

#include <array>
#include <string>

class znCCheckBoxGroupComponent;
class znCSpriteComponent;

class znCCheckBoxComponent : public znIGestureHandlingComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCCheckBoxComponent"};

    // Sent through znCGuiMessageDispatcher when the player has tapped a box. Payload: State.
    static constexpr znCUniqueId TOGGLED{"CheckBoxToggled"};

    struct State
    {
        const std::string* mName; // the entity's; not owned
        bool mChecked;
    };

    explicit znCCheckBoxComponent(znCEntity* pEntity);
    ~znCCheckBoxComponent() override;

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool inputEnabled() override;
    bool highlightChanged() override;
    void onTap() override;

    void checkedSet(bool pChecked); // without a message
    bool checkedGet() const { return mState.mChecked; }
    void groupForget() { mGroup = nullptr; }

private:
    void brushShow();

    State mState;
    znCCheckBoxGroupComponent* mGroup = nullptr; // a component of the parent entity
    znCSpriteComponent* mSprite = nullptr;       // owned by the entity
    std::array<znCBrushPtr, 4> mBrushes;         // (checked ? 2 : 0) | (highlighted ? 1 : 0)
};

#endif
