#ifndef ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCKEYFOCUSCOMPONENT_H
#define ZNAPPCORE_COMPONENTS_GUI_ELEMENTS_ZNCKEYFOCUSCOMPONENT_H

// Lets the keyboard work a screen. Tab and the arrows move a frame through the controls at and below the component's
// parent, Space and Enter press the framed one; on a slider the arrows to its sides move the knob. Without a frame
// Enter presses the screen's default control, and Escape its way out. A press is the press of a pointer at the
// control's middle, so whatever covers a control keeps it from the keyboard too. The frame goes when a pointer is used.
//
// Of several screens the one that opened last has the keys, and it keeps them from those behind it.
//
// Keys, all optional: "enter", "escape": names of controls of the screen, blanks between them, of which the first that
// is on view is pressed; "escapeGui": GUI file that Escape opens below
// the screen if there is no control for it. Names of which none
// is there are logged when their key is pressed.

#include "znappcore/src/znCSpriteRenderData.h"
#include "znappcore/znIMessageListenerComponent.h"
#include "zncore/znPoint.h"

#include <string>
#include <vector>

class znCKeyFocusComponent : public znIMessageListenerComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCKeyFocusComponent"};
    static constexpr float SLIDER_STEP = 0.1f; // of a slider's whole way

    explicit znCKeyFocusComponent(znCEntity* pEntity);

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void update(s32 pDeltaMs) override;
    void render() override;
    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;

    const std::string& focusGet() const { return mFocus; } // name of the framed control; empty: none

private:
    void keyProcess(s32 pKey);
    void focusStep(s32 pStep);
    void focusMove(s32 pX, s32 pY);
    bool sliderMove(s32 pStep);
    void enterProcess();
    void escapeProcess();
    void controlPress(const std::string& pNames);
    void pointerPress(const znPoint& pPos);
    void frameUpdate();
    bool textEntryHas() const;
    znCEntity* controlFind(const std::string& pName) const;
    std::vector<znCEntity*> controlsGet() const; // that can be seen, from the top left to the bottom right

    static constexpr s32 SIDES = 4;

    std::string mFocus;
    std::string mEnter;
    std::string mEscape;
    std::string mEscapeGui;
    znCSpriteRenderData mFrame[SIDES];
    bool mFrameShown = false;
    bool mPressing = false; // the pointer message under way is this component's own
};

#endif
