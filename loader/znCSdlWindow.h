#ifndef LOADER_ZNCSDLWINDOW_H
#define LOADER_ZNCSDLWINDOW_H

#include "loader/znCTouchIds.h"
#include "loader/znCView.h"
#include "loader/znIWindow.h"

struct SDL_Window;
union SDL_Event;

// A window on the person's display. It shows with the first frame. A person may resize it: the surface keeps its size
// and is drawn scaled, with bars beside it where the shapes differ. A full-screen mode that the display lacks is shown
// scaled on the desktop's own.
class znCSdlWindow : public znIWindow
{
public:
    // pWindow belongs to the context and outlives this object; its current OpenGL context is the one to swap.
    znCSdlWindow(SDL_Window* pWindow, s32 pWidth, s32 pHeight, bool pTouch, const znCDisplayModes& pModes);

    // What the first display offers, one mode a size and depth.
    static znCDisplayModes displayModesGet();
    // Wait for the display at each swap, or not.
    void displayWaitSet(bool pWait);

    void wishesApply() override;
    void eventsPump(znCInputQueue& pQueue) override;
    void drawableSizeGet(s32& pWidth, s32& pHeight) const override;
    void swap() override;
    s32 refreshGet() const override;
    void idle(s32 pMs) override;

private:
    void fullScreenApply();
    bool displayModeApply(const s3eWindowMode& pMode);
    znCView viewGet() const;
    void eventHandle(const SDL_Event& pEvent, znCInputQueue& pQueue);
    void windowEventHandle(const SDL_Event& pEvent, znCInputQueue& pQueue);
    void keyHandle(const SDL_Event& pEvent, znCInputQueue& pQueue);
    void mouseHandle(const SDL_Event& pEvent, znCInputQueue& pQueue);
    void fingerHandle(const SDL_Event& pEvent, znCInputQueue& pQueue);
    void fingerAdd(s64 pFinger, u32 pType, s32 pWindowX, s32 pWindowY, znCInputQueue& pQueue);
    void clientAreaFollow(znCInputQueue& pQueue);

    SDL_Window* mWindow; // not owned
    znCTouchIds mTouchIds;
    std::optional<s3eWindowMode> mAppliedMode;
    s32 mAppliedWidth;
    s32 mAppliedHeight;
    bool mShown = false;
    bool mInClientArea = true;
};

#endif
