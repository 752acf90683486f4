#include "znappcore/components/znCScreenFadeComponent.h"

#include "znappcore/src/znCEntity.h"
#include "znappcore/znIDisplay.h"
#include "znappcore/znIRenderer.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/src/znCVariableTable.h"

void znCScreenFadeComponent::render()
{
    constexpr u32 ALPHA_BITS = 0xFF000000u;
    if ((mRenderData.colourGet() & ALPHA_BITS) == 0)
        return;
    if (znIRenderer* renderer = znIRenderer::instanceGet())
        renderer->spriteAddToBatch(&mRenderData);
}

void znCScreenFadeComponent::matrixApply()
{
    const znAffineMtx2d& matrix = mEntity->worldMatrixGet();
    for (s32 i = 0; i < 4; ++i)
        mWorldCorners[i] = {matrix.m00 * mLocalCorners[i].mX + matrix.m01 * mLocalCorners[i].mY + matrix.m02,
                            matrix.m10 * mLocalCorners[i].mX + matrix.m11 * mLocalCorners[i].mY + matrix.m12};
    mRenderData.verticesSet(mWorldCorners);
}

void znCScreenFadeComponent::initialiseFromVariableTableDo(const znCVariableTable& pTable)
{
    znIComponent::initialiseFromVariableTableDo(pTable);
    quadSet();
    const std::string colour = pTable.strGet("colourRGBA");
    ZN_ASSERT(!colour.empty(), "Expected a colourRGBA value for ScreenFadeComponent %s.\n",
              pTable.strGet("name").c_str());
    if (!colour.empty())
        colourSet(znCColour(colour));
}

void znCScreenFadeComponent::quadSet()
{
    const znIDisplay* display = znIDisplay::instanceGet();
    if (display == nullptr)
        return;
    const float width = static_cast<float>(display->canvasWidthGet() / 2);
    const float height = static_cast<float>(display->canvasHeightGet() / 2);
    mLocalCorners[0] = {-width, -height};
    mLocalCorners[1] = {-width, height};
    mLocalCorners[2] = {width, height};
    mLocalCorners[3] = {width, -height};
    mRenderData.verticesSet(mLocalCorners);
}
