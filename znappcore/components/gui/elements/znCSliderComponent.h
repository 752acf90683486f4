#ifndef ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCSLIDERCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCSLIDERCOMPONENT_H

// A knob on a horizontal track. The entity is the knob; its position in the file is the middle of the track.
//
// Keys: "sliderImage"; "sliderImageDown", optional, shown while it is pressed or pointed at; "range": length of the
// track, above 0.

#include "znappcore/components/gui/elements/znCPressBrushes.h"
#include "znappcore/components/znIGestureHandlingComponent.h"

#include <string>

class znCSliderComponent : public znIGestureHandlingComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSliderComponent"};

    // Sent through znCGuiMessageDispatcher during and at the end of a drag. Payload: State.
    static constexpr znCUniqueId MOVED{"SliderMoved"};
    static constexpr znCUniqueId RELEASED{"SliderReleased"};

    struct State
    {
        const std::string* mName; // the entity's; not owned
        float mValue;             // 0 to 1
    };

    explicit znCSliderComponent(znCEntity* pEntity);

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    bool inputEnabled() override;
    bool highlightChanged() override;
    void onDragStart(const Pointer& pStart) override;
    void onDragMove(const znPoint& pPos) override;
    void onDragEnd(const znPoint& pPos) override;

    void valueSet(float pValue); // limited to 0 to 1; without a message
    void valueMove(float pBy);      // as a drag by that part of the range does, with its messages
    float valueGet() const { return mState.mValue; }

private:
    znPoint parentSpaceGet(const znPoint& pWorld) const;

    State mState;
    znCPressBrushes mBrushes;
    znPoint mDragStartPos{0, 0}; // in the parent's space
    znPoint mOrigin{0, 0};       // where the knob stands at value 0
    float mRange = 0.0f;
    float mDragStartValue = 0.0f;
};

#endif
