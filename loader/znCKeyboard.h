#ifndef LOADER_ZNCKEYBOARD_H
#define LOADER_ZNCKEYBOARD_H

#include "loader/znCCallbackTable.h"
#include "loader/znCInputEvent.h"

#include <array>
#include <cstddef>

// Keys and typed characters, in the loader's own numbering of keys (znNKeyCodes).
class znCKeyboard
{
public:
    // A touch device has no alphabetic keyboard.
    explicit znCKeyboard(bool pHasAlpha) : mHasAlpha(pHasAlpha) {}

    znCCallbackTable& callbacksGet() { return mCallbacks; }
    s32 stateGet(s32 pKey) const;
    s32 intGet(s32 pProperty) const;
    s3eResult intSet(s32 pProperty, s32 pValue);
    void keyApply(const znCInputEvent& pEvent);
    // Characters are dropped while the module hasn't turned them on.
    void characterApply(const znCInputEvent& pEvent);

private:
    znCCallbackTable mCallbacks;
    std::array<bool, 256> mDown{};
    bool mHasAlpha;
    bool mCharactersOn = false;
};

#endif
