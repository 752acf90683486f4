#include "loader/znCSdlWindow.h"

#include "loader/znNKeyCodes.h"

#include <SDL.h>

namespace
{
using Kind = znCInputEvent::Kind;

constexpr s64 MOUSE_FINGER = -1; // the mouse on a touch device

s32 buttonGet(u8 pSdlButton)
{
    switch (pSdlButton)
    {
    case SDL_BUTTON_LEFT:
        return 0;
    case SDL_BUTTON_RIGHT:
        return 1;
    case SDL_BUTTON_MIDDLE:
        return 2;
    default:
        return -1;
    }
}
} // namespace

znCSdlWindow::znCSdlWindow(SDL_Window* pWindow, s32 pWidth, s32 pHeight, bool pTouch, const znCDisplayModes& pModes)
    : znIWindow(pWidth, pHeight, pTouch, pModes), mWindow(pWindow), mAppliedWidth(0), mAppliedHeight(0)
{
    SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, pTouch ? "0" : "1");
    SDL_SetHint(SDL_HINT_MOUSE_TOUCH_EVENTS, "0");
    if (!pTouch)
        SDL_StartTextInput();
}

znCDisplayModes znCSdlWindow::displayModesGet()
{
    znCDisplayModes modes;
    s32 widthBefore = 0;
    s32 heightBefore = 0;
    for (s32 i = 0; i < SDL_GetNumDisplayModes(0); ++i) // widest first, those of one size by falling refresh
    {
        SDL_DisplayMode mode = {};
        const bool known = SDL_GetDisplayMode(0, i, &mode) == 0;
        if (known && (mode.w != widthBefore || mode.h != heightBefore))
            modes.modeAdd(mode.w, mode.h, SDL_BITSPERPIXEL(mode.format), mode.refresh_rate);
        widthBefore = mode.w;
        heightBefore = mode.h;
    }
    return modes;
}

void znCSdlWindow::displayWaitSet(bool pWait)
{
    SDL_GL_SetSwapInterval(pWait ? 1 : 0);
}

bool znCSdlWindow::displayModeApply(const s3eWindowMode& pMode)
{
    const s32 display = std::max(SDL_GetWindowDisplayIndex(mWindow), 0);
    SDL_DisplayMode desktop = {};
    if (SDL_GetDesktopDisplayMode(display, &desktop) == 0 && desktop.w == pMode.mWidth && desktop.h == pMode.mHeight)
        return false; // nothing to switch
    for (s32 i = 0; i < SDL_GetNumDisplayModes(display); ++i)
    {
        SDL_DisplayMode mode = {};
        if (SDL_GetDisplayMode(display, i, &mode) != 0 || mode.w != pMode.mWidth || mode.h != pMode.mHeight)
            continue;
        return SDL_SetWindowDisplayMode(mWindow, &mode) == 0 &&
               SDL_SetWindowFullscreen(mWindow, SDL_WINDOW_FULLSCREEN) == 0;
    }
    return false;
}

void znCSdlWindow::fullScreenApply()
{
    if (!fullScreenModeGet().has_value())
        SDL_SetWindowFullscreen(mWindow, 0);
    else if (!displayModeApply(*fullScreenModeGet()))
        SDL_SetWindowFullscreen(mWindow, SDL_WINDOW_FULLSCREEN_DESKTOP);
    mAppliedMode = fullScreenModeGet();
}

void znCSdlWindow::wishesApply()
{
    // Only what differs: a resize by the person stays, and leaving and entering full screen in one go doesn't flicker.
    const auto sameMode = [this]
    {
        const std::optional<s3eWindowMode>& wished = fullScreenModeGet();
        return wished.has_value() == mAppliedMode.has_value() &&
               (!wished || (wished->mWidth == mAppliedMode->mWidth && wished->mHeight == mAppliedMode->mHeight));
    };
    if (!isFullScreen() && !sameMode())
        fullScreenApply();
    if (!isFullScreen() && (windowedWidthGet() != mAppliedWidth || windowedHeightGet() != mAppliedHeight))
    {
        mAppliedWidth = windowedWidthGet();
        mAppliedHeight = windowedHeightGet();
        SDL_SetWindowSize(mWindow, mAppliedWidth, mAppliedHeight);
        SDL_SetWindowPosition(mWindow, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED);
    }
    if (!mShown)
        SDL_ShowWindow(mWindow);
    mShown = true;
    if (!sameMode())
        fullScreenApply();
    SDL_ShowCursor(isCursorVisible() || !mInClientArea ? SDL_ENABLE : SDL_DISABLE);
}

void znCSdlWindow::drawableSizeGet(s32& pWidth, s32& pHeight) const
{
    SDL_GL_GetDrawableSize(mWindow, &pWidth, &pHeight);
}

void znCSdlWindow::swap()
{
    SDL_GL_SwapWindow(mWindow);
}

s32 znCSdlWindow::refreshGet() const
{
    SDL_DisplayMode mode = {};
    return SDL_GetWindowDisplayMode(mWindow, &mode) == 0 && mode.refresh_rate > 0 ? mode.refresh_rate : 60;
}

void znCSdlWindow::idle(s32 pMs)
{
    SDL_WaitEventTimeout(nullptr, pMs);
}

znCView znCSdlWindow::viewGet() const
{
    s32 width = 0;
    s32 height = 0;
    SDL_GetWindowSize(mWindow, &width, &height);
    return znCView::fit(surfaceWidthGet(), surfaceHeightGet(), width, height);
}

void znCSdlWindow::eventsPump(znCInputQueue& pQueue)
{
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0)
        eventHandle(event, pQueue);
    clientAreaFollow(pQueue);
}

void znCSdlWindow::eventHandle(const SDL_Event& pEvent, znCInputQueue& pQueue)
{
    switch (pEvent.type)
    {
    case SDL_QUIT:
        return pQueue.eventAdd({.mKind = Kind::QUIT});
    case SDL_APP_WILLENTERBACKGROUND:
        return pQueue.eventAdd({.mKind = Kind::SUSPEND});
    case SDL_APP_DIDENTERFOREGROUND:
        return pQueue.eventAdd({.mKind = Kind::RESUME});
    case SDL_WINDOWEVENT:
        return windowEventHandle(pEvent, pQueue);
    case SDL_KEYDOWN:
    case SDL_KEYUP:
        return keyHandle(pEvent, pQueue);
    case SDL_TEXTINPUT:
        return pQueue.textAdd(pEvent.text.text);
    case SDL_MOUSEMOTION:
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        return mouseHandle(pEvent, pQueue);
    case SDL_FINGERDOWN:
    case SDL_FINGERUP:
    case SDL_FINGERMOTION:
        return fingerHandle(pEvent, pQueue);
    default:
        return;
    }
}

void znCSdlWindow::windowEventHandle(const SDL_Event& pEvent, znCInputQueue& pQueue)
{
    switch (pEvent.window.event)
    {
    case SDL_WINDOWEVENT_MINIMIZED:
        return pQueue.eventAdd({.mKind = Kind::SUSPEND});
    case SDL_WINDOWEVENT_RESTORED:
    case SDL_WINDOWEVENT_MAXIMIZED:
    case SDL_WINDOWEVENT_FOCUS_GAINED:
        return pQueue.eventAdd({.mKind = Kind::RESUME});
    default:
        return;
    }
}

void znCSdlWindow::keyHandle(const SDL_Event& pEvent, znCInputQueue& pQueue)
{
    const s32 key = znNKeyCodes::fromScanCode(pEvent.key.keysym.scancode);
    if (key == 0)
        return;
    if (pEvent.key.repeat == 0)
        pQueue.keyAdd(key, pEvent.type == SDL_KEYDOWN);
    else if (key == znNKeyCodes::BACKSPACE) // held down, it goes on deleting
        pQueue.eventAdd({.mKind = Kind::CHARACTER, .mId = 8});
}

void znCSdlWindow::mouseHandle(const SDL_Event& pEvent, znCInputQueue& pQueue)
{
    const bool isMotion = pEvent.type == SDL_MOUSEMOTION;
    s32 x = isMotion ? pEvent.motion.x : pEvent.button.x;
    s32 y = isMotion ? pEvent.motion.y : pEvent.button.y;
    const s32 button = isMotion ? 0 : buttonGet(pEvent.button.button);
    if (isTouch())
    {
        const u32 type = isMotion                             ? SDL_FINGERMOTION
                         : pEvent.type == SDL_MOUSEBUTTONDOWN ? SDL_FINGERDOWN
                                                              : SDL_FINGERUP;
        if (button == 0)
            fingerAdd(MOUSE_FINGER, type, x, y, pQueue);
        return;
    }
    viewGet().toSurface(surfaceWidthGet(), surfaceHeightGet(), x, y);
    if (isMotion)
        pQueue.eventAdd({.mKind = Kind::MOTION, .mX = x, .mY = y});
    else if (button >= 0)
        pQueue.eventAdd({Kind::BUTTON, button, pEvent.type == SDL_MOUSEBUTTONDOWN, x, y});
}

void znCSdlWindow::fingerHandle(const SDL_Event& pEvent, znCInputQueue& pQueue)
{
    s32 width = 0;
    s32 height = 0;
    SDL_GetWindowSize(mWindow, &width, &height);
    if (isTouch()) // on a desktop SDL makes mouse events of them
        fingerAdd(pEvent.tfinger.fingerId, pEvent.type, static_cast<s32>(pEvent.tfinger.x * static_cast<float>(width)),
                  static_cast<s32>(pEvent.tfinger.y * static_cast<float>(height)), pQueue);
}

void znCSdlWindow::fingerAdd(s64 pFinger, u32 pType, s32 pWindowX, s32 pWindowY, znCInputQueue& pQueue)
{
    const s32 id = pType == SDL_FINGERDOWN ? mTouchIds.idTake(pFinger)
                   : pType == SDL_FINGERUP ? mTouchIds.idRelease(pFinger)
                                           : mTouchIds.idFind(pFinger);
    if (id < 0)
        return;
    viewGet().toSurface(surfaceWidthGet(), surfaceHeightGet(), pWindowX, pWindowY);
    const Kind kind = pType == SDL_FINGERMOTION ? Kind::TOUCH_MOTION : Kind::TOUCH;
    pQueue.eventAdd({kind, id, pType == SDL_FINGERDOWN, pWindowX, pWindowY});
}

void znCSdlWindow::clientAreaFollow(znCInputQueue& pQueue)
{
    s32 x = 0;
    s32 y = 0;
    SDL_GetMouseState(&x, &y);
    const bool inside = SDL_GetMouseFocus() == mWindow && viewGet().holds(x, y);
    if (inside == mInClientArea)
        return;
    mInClientArea = inside;
    pQueue.eventAdd({.mKind = Kind::CLIENT_AREA, .mPressed = inside});
}
