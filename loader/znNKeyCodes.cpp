#include "loader/znNKeyCodes.h"

#include "zncore/impl/platform/s3e.h"

#include <SDL_scancode.h>

namespace
{
// Neighbouring scan codes with neighbouring key codes.
struct Range
{
    s32 mFirst;
    s32 mLast;
    s32 mCode;
};

constexpr Range RANGES[] = {
    {SDL_SCANCODE_A, SDL_SCANCODE_Z, 23},
    {SDL_SCANCODE_1, SDL_SCANCODE_9, 14},
    {SDL_SCANCODE_0, SDL_SCANCODE_0, 13},
    {SDL_SCANCODE_F1, SDL_SCANCODE_F12, 49},
    {SDL_SCANCODE_ESCAPE, SDL_SCANCODE_ESCAPE, 1},
    {SDL_SCANCODE_TAB, SDL_SCANCODE_TAB, 2},
    {SDL_SCANCODE_BACKSPACE, SDL_SCANCODE_BACKSPACE, znNKeyCodes::BACKSPACE},
    {SDL_SCANCODE_RETURN, SDL_SCANCODE_RETURN, S3E_KEY_ENTER},
    {SDL_SCANCODE_KP_ENTER, SDL_SCANCODE_KP_ENTER, S3E_KEY_ENTER},
    {SDL_SCANCODE_LSHIFT, SDL_SCANCODE_LSHIFT, 5},
    {SDL_SCANCODE_RSHIFT, SDL_SCANCODE_RSHIFT, 5},
    {SDL_SCANCODE_LCTRL, SDL_SCANCODE_LCTRL, 6},
    {SDL_SCANCODE_RCTRL, SDL_SCANCODE_RCTRL, 6},
    {SDL_SCANCODE_SPACE, SDL_SCANCODE_SPACE, 8},
    {SDL_SCANCODE_LEFT, SDL_SCANCODE_LEFT, 9},
    {SDL_SCANCODE_UP, SDL_SCANCODE_UP, 10},
    {SDL_SCANCODE_RIGHT, SDL_SCANCODE_RIGHT, 11},
    {SDL_SCANCODE_DOWN, SDL_SCANCODE_DOWN, 12},
    {SDL_SCANCODE_LALT, SDL_SCANCODE_LALT, S3E_KEY_ALT},
    {SDL_SCANCODE_RALT, SDL_SCANCODE_RALT, S3E_KEY_ALT},
    {SDL_SCANCODE_AC_BACK, SDL_SCANCODE_AC_BACK, S3E_KEY_BACK},
};
} // namespace

s32 znNKeyCodes::fromScanCode(s32 pScanCode)
{
    for (const Range& range : RANGES)
        if (pScanCode >= range.mFirst && pScanCode <= range.mLast)
            return range.mCode + pScanCode - range.mFirst;
    return 0;
}
