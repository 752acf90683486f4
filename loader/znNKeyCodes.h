#ifndef LOADER_ZNNKEYCODES_H
#define LOADER_ZNNKEYCODES_H

#include "zncore/znTypes.h"

// The loader's numbering of keys; the four that the module knows stand in s3e.h.
//   1 escape, 2 tab, 3 backspace, 4 enter (of the keypad too), 5 shift, 6 control, 8 space,
//   9 left, 10 up, 11 right, 12 down, 13 to 22 digits 0 to 9, 23 to 48 letters A to Z,
//   49 to 60 F1 to F12, 99 alt, 210 back
namespace znNKeyCodes
{
constexpr s32 BACKSPACE = 3;

// The code of an SDL scan code; 0 for a key without one.
s32 fromScanCode(s32 pScanCode);
} // namespace znNKeyCodes

#endif
