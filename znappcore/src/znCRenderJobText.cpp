#include "znappcore/src/znCRenderJobText.h"

#include "znappcore/znIRenderer.h"

void znCRenderJobText::execute()
{
    mRenderer->textDraw(mFirst, mLast);
}
