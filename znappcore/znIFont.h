#ifndef ZNAPPCORE_ZNIFONT_H
#define ZNAPPCORE_ZNIFONT_H

#include "zncore/znTypes.h"

class znCResourceName;

// A font file at one size. Owned by the font manager; texts hold plain pointers to it.
class znIFont
{
public:
    znIFont() = default;
    virtual ~znIFont() = default;
    // pSize: height of the em square in canvas units. A missing or faulty file is one log line; texts in it show in the
    // fallback fonts.
    virtual void load(const znCResourceName& pName, s32 pSize) = 0;

    znIFont(const znIFont&) = delete;
    znIFont& operator=(const znIFont&) = delete;
};

#endif
