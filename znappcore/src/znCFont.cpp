#include "znappcore/src/znCFont.h"

void znCFont::load(const znCResourceName& pName, s32 pSize)
{
    mGxFont = std::make_unique<znCGraphicsFont>();
    mGxFont->load(pName, pSize);
}
