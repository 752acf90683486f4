#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNCSPLASHSCREENGUI_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNCSPLASHSCREENGUI_H

// The pictures that open the program, one after the other, and then the first screen. A press goes on to the next
// picture once it has stood for a while; nothing below gets a press.
//
// Keys: "minDurationMs" (s32, 1000): a press can't end a picture before; "maxDurationMs" (s32, 10000): a picture goes
// by itself then; "screen0", "screen1" and on to the first that is missing: image files; "nextGui": the GUI file that
// follows.

#include "znappcore/components/gui/znIMessageListenerGuiComponent.h"

#include <string>
#include <vector>

class znCSpriteComponent;

class znCSplashScreenGui : public znIMessageListenerGuiComponent
{
public:
    static constexpr znCUniqueId TYPE{"znCSplashScreenGui"};
    static constexpr s32 FADE_MS = 500;

    explicit znCSplashScreenGui(znCEntity* pEntity) : znIMessageListenerGuiComponent(pEntity) {}

    void messagesRegister() override;
    void messagesDeregister() override;
    bool messageProcess(const znCUniqueId& pType, void* pData) override;
    void initialiseFromVariableTableDo(const znCVariableTable& pTable) override;
    void update(s32 pDeltaMs) override;

private:
    void next();
    void nextPreload() const;
    void guiEnd();

    std::vector<std::string> mScreens;
    std::string mNextGui;
    znCSpriteComponent* mImage = nullptr; // owned by the entity; null until the first update
    s32 mScreenIndex = 0;                 // of the next picture; 0: none was shown yet
    s32 mMinDurationMs = 1000;
    s32 mMaxDurationMs = 10000;
    s32 mElapsedMs = 0; // of the present picture
    bool mEnded = false;
};

#endif
