#ifndef ZNAPPCORE_SRC_ZNCGUIMESSAGEDISPATCHER_H
#define ZNAPPCORE_SRC_ZNCGUIMESSAGEDISPATCHER_H

// The message bus of the GUI. It acts on four messages itself, which no listener gets: they open and close screens and
// web addresses, and are what the actions of buttons in GUI files mostly name.
//
// Lives from start-up to the very end of shut-down.

#include "znappcore/znIMessageDispatcher.h"

#include <string>

struct znCButtonActionData;
class znIComponent;

class znCGuiMessageDispatcher : public znIMessageDispatcher
{
public:
    // Payload of these four: znCButtonActionData.
    // mParam: name of the entity to destroy; one that isn't there, or that no file made, logs
    // "Gui %s not found for closing.\n".
    static constexpr znCUniqueId CLOSE_GUI{"closeGui"};
    static constexpr znCUniqueId LOAD_GUI{"loadGui"};             // mParam: GUI file, opened below the button's own GUI
    static constexpr znCUniqueId LOAD_GUI_TUT{"loadGuiTut"};      // the same, then TUTORIAL_BUTTON_PRESSED
    static constexpr znCUniqueId LAUNCH_BROWSER{"launchBrowser"}; // mParam: web address

    // Payload: std::string, the name of the button's entity.
    static constexpr znCUniqueId TUTORIAL_BUTTON_PRESSED{"tutorialButtonPressed"};

    // Payload: s32, the index of a player who was chosen from the list.
    static constexpr znCUniqueId PLAYER_SLOT_SELECTED{"PlayerSlotSelected"};

    // A second call logs "Already created znCGuiMessageDispatcher.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCGuiMessageDispatcher* instanceGet();
    static void destroy();

    bool messageSend(const znCUniqueId& pType, void* pData) override;

private:
    znCGuiMessageDispatcher() = default;

    void closeGuiMessageHandle(const znCButtonActionData& pAction);
    void loadGuiMessageHandle(const znCButtonActionData& pAction);
    static std::string buttonNameGet(const znCButtonActionData& pAction);
};

#endif
