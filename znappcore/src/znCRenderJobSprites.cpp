#include "znappcore/src/znCRenderJobSprites.h"

#include "znappcore/znIRenderer.h"

void znCRenderJobSprites::execute()
{
    mRenderer->spritesDraw(mFirst, mLast);
}
