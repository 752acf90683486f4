#ifndef ZNAPPCORE_ZNIINPUTMANAGER_H
#define ZNAPPCORE_ZNIINPUTMANAGER_H

// Turns what pointers and keyboard did into messages. Platform events only note state; the messages go out from
// update(), at the very start of a frame, so that all listeners see input in one place and in one order.
//
// A press that ends within one frame shows in no message. A press or release brings its position along, without a move
// of its own.
//
// A singleton; it lives from start-up to shut-down and owns its input points.

#include "znappcore/src/znCInputPoint.h"
#include "znappcore/znIMessageDispatcher.h"

#include <memory>
#include <string>
#include <vector>

class znIInputManager : public znIMessageDispatcher
{
public:
    // Payload of these: znCPointerMessage.
    static constexpr znCUniqueId POINTER_DOWN{"pointerDown"};
    static constexpr znCUniqueId POINTER_MOVE{"pointerMove"}; // with a mouse also while no button is down
    static constexpr znCUniqueId POINTER_UP{"pointerUp"};
    // A collectable has given up its press; id 0, position (0, 0), down. Whoever asked it to takes this as its own
    // first pointer.
    static constexpr znCUniqueId POINTER_DOWN_STEAL{"pointerDownSteal"};
    // Payload: s32 character code.
    static constexpr znCUniqueId TYPED_CHAR{"typedChar"};
    // Payload: s32, one of the keys below. A key that moves through a screen's controls went down.
    static constexpr znCUniqueId NAVIGATION_KEY{"navigationKey"};
    static constexpr s32 KEY_ESCAPE = 0;
    static constexpr s32 KEY_ENTER = 1;
    static constexpr s32 KEY_SPACE = 2;
    static constexpr s32 KEY_TAB = 3;
    static constexpr s32 KEY_TAB_BACK = 4; // Tab with Shift
    static constexpr s32 KEY_LEFT = 5;
    static constexpr s32 KEY_RIGHT = 6;
    static constexpr s32 KEY_UP_ARROW = 7;
    static constexpr s32 KEY_DOWN_ARROW = 8;
    // Payload: znCEmptyMessageData. The mouse has come over the window or left it; sent by the hardware.
    static constexpr znCUniqueId ENTER_CLIENT{"enterClient"};
    static constexpr znCUniqueId LEAVE_CLIENT{"leaveClient"};
    // Names that data may use; nothing sends them.
    static constexpr znCUniqueId KEY_DOWN{"keyDown"};
    static constexpr znCUniqueId KEY_UP{"keyUp"};

    // Values of pointerTypeGet().
    static constexpr s32 POINTER_TYPE_MOUSE = 0;
    static constexpr s32 POINTER_TYPE_TOUCH = 1;
    static constexpr s32 POINTER_TYPE_MULTI_TOUCH = 2;

    // A second call logs "Already created znIInputManager.\n" and starts anew.
    static void create();
    // Logs "Not created.\n" and returns null without an instance.
    static znIInputManager* instanceGet();
    static void destroy();

    ~znIInputManager() override;
    virtual s32 pointerTypeGet() = 0;
    virtual bool hardKeyboardHas() = 0; // the device has an alphabetic keyboard
    // Asks the person for a text on the device's own input and waits for it. pDefault if they call it off; line feeds
    // are dropped, and at most pMaxLength characters kept.
    virtual std::string stringInputGet(const std::string& pPrompt, const std::string& pDefault, s32 pMaxLength) = 0;
    // Sets mMaxInputPoints and has the platform report its events here, until platformDeregister().
    virtual void platformRegister() = 0;
    virtual void platformDeregister() = 0;
    // For platforms that must be asked instead of reporting; called at the start of update().
    virtual void platformUpdate() {}

    void initialise();
    // Sends the messages for all that changed since the last call.
    void update();
    s32 maxInputPointsGet() const { return mMaxInputPoints; } // mouse 2 (buttons), one finger 1, several 10

protected:
    znIInputManager() = default;

    znCInputPoint* inputPointGet(s32 pId); // null if there is none of that id

    std::vector<std::unique_ptr<znCInputPoint>> mInputPoints; // by id
    std::vector<s32> mTypedChars;                             // character codes that wait for the next update
    std::vector<s32> mNavigationKeys;                         // that wait for the next update
    s32 mMaxInputPoints = 0;

private:
    void inputPointUpdate(znCInputPoint& pPoint);
    void codesSend(std::vector<s32>& pCodes, const znCUniqueId& pType);
};

#endif
