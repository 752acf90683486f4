#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNCNOTIFICATIONSGUI_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNCNOTIFICATIONSGUI_H

// The strip that slides down from the top of the screen with one line of text, and up again. Texts that come meanwhile
// wait for their turn. Its file must set "modal" to false, or it would take every pointer message.
//
// A singleton that hangs under the display, behind all application content, and dies with the tree.

#include "znappcore/components/gui/znIGuiComponent.h"
#include "zncore/znCGraph.h"

#include <string>
#include <vector>

class znCNotificationsGui : public znIGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCNotificationsGui"};
    static constexpr const char* FILE_NAME = "gui/notificationsGui/notificationsGui.txt";
    static constexpr const char* TEXT_ENTITY = "NotificationsGuiText";
    static constexpr const char* BACKGROUND_ENTITY = "NotificationsGuiBackground";
    static constexpr s32 SLIDE_MS = 200; // each way
    static constexpr s32 STAND_MS = 3000;

    using znIGuiComponent::znIGuiComponent;
    ~znCNotificationsGui() override;

    // Loads the file. Without the component in it there is no instance, which is logged.
    static void create();
    // Logs "Not created.\n" and returns null without an instance.
    static znCNotificationsGui* instanceGet();

    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void update(s32 pDeltaMs) override;

    // Shows pText when its turn comes; nothing if it stands on the strip or waits already.
    void notificationAdd(const std::string& pText);
    bool messageIsUniqueGet(const std::string& pText) const;

private:
    void slideBuild();
    void nextShow();

    std::vector<std::string> mQueue; // the oldest first
    std::string mShown;
    znCGraph<float> mSlide; // y against milliseconds
    s32 mElapsedMs = 0;
    bool mShowing = false;
};

#endif
