#include "loader/znCVirtualWindow.h"

#include <SDL.h>

void znCVirtualWindow::eventsPump(znCInputQueue& pQueue)
{
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0)
        if (event.type == SDL_QUIT)
            pQueue.eventAdd({.mKind = znCInputEvent::Kind::QUIT});
}

void znCVirtualWindow::drawableSizeGet(s32& pWidth, s32& pHeight) const
{
    pWidth = 0;
    pHeight = 0;
}

void znCVirtualWindow::idle(s32 pMs)
{
    SDL_Delay(static_cast<u32>(pMs));
}
