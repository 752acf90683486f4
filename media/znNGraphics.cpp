#include "media/znNGraphics.h"

#include "media/impl/znNDrawTable.h"
#include "media/znCFrameMemory.h"
#include "media/znCGraphicsTexture.h"

namespace
{
s3eDraw sTable = {};
bool sAvailable = false;
znCFrameMemory sFrameMemory;
u32 sFrameNumber = 0;
s3eDrawRun sRun = {}; // the state that the next quadsDraw uses

void sizeGet(void (*pOperation)(s32*, s32*), s32* pWidth, s32* pHeight)
{
    *pWidth = 0;
    *pHeight = 0;
    if (sAvailable)
        pOperation(pWidth, pHeight);
}
} // namespace

const s3eDraw* znNDrawTable::get()
{
    return sAvailable ? &sTable : nullptr;
}

void znNGraphics::initialise()
{
    sAvailable = s3eExtGetHash(S3E_DRAW_HASH, &sTable, sizeof sTable) == S3E_RESULT_SUCCESS;
    sRun = {};
    materialSet(znCGraphicsMaterial());
}

void znNGraphics::terminate()
{
    sAvailable = false;
    sTable = {};
    sRun = {};
    sFrameMemory.free();
}

bool znNGraphics::isAvailable()
{
    return sAvailable;
}

void znNGraphics::deviceSizeGet(s32* pWidth, s32* pHeight)
{
    sizeGet(sTable.deviceSizeGet, pWidth, pHeight);
}

void znNGraphics::displaySizeGet(s32* pWidth, s32* pHeight)
{
    sizeGet(sTable.displaySizeGet, pWidth, pHeight);
}

void znNGraphics::surfaceSizeGet(s32* pWidth, s32* pHeight)
{
    sizeGet(sTable.surfaceSizeGet, pWidth, pHeight);
}

s32 znNGraphics::textureSizeLimitGet()
{
    return sAvailable ? sTable.textureSizeLimitGet() : znCImage::sSideMax;
}

void* znNGraphics::frameMemoryTake(std::size_t pBytes)
{
    return sFrameMemory.take(pBytes);
}

std::size_t znNGraphics::frameMemoryCapacityGet()
{
    return sFrameMemory.capacityGet();
}

void znNGraphics::clear(u32 pColour)
{
    if (sAvailable)
        sTable.clear(pColour);
}

void znNGraphics::materialSet(const znCGraphicsMaterial& pMaterial)
{
    sRun.mTexture = pMaterial.mTexture != nullptr ? pMaterial.mTexture->idGet() : 0;
    sRun.mBlend = pMaterial.mBlend;
    sRun.mColour = pMaterial.mColour;
}

void znNGraphics::positionsSet(const znPointF* pPositions)
{
    sRun.mPositions = reinterpret_cast<const float*>(pPositions);
}

void znNGraphics::uvsSet(const znPointF* pUvs)
{
    sRun.mUvs = reinterpret_cast<const float*>(pUvs);
}

void znNGraphics::coloursSet(const u32* pColours)
{
    sRun.mColours = pColours;
}

void znNGraphics::quadsDraw(s32 pVertexCount)
{
    if (!sAvailable || pVertexCount < 4 || sRun.mPositions == nullptr)
        return;
    s3eDrawRun run = sRun;
    run.mVertexCount = pVertexCount & ~3;
    // The table asks for the one or for both of texture and UVs.
    if (run.mUvs == nullptr)
        run.mTexture = 0;
    if (run.mTexture == 0)
        run.mUvs = nullptr;
    sTable.runAdd(&run);
}

void znNGraphics::flush()
{
    if (sAvailable)
        sTable.flush();
    sFrameMemory.frameReset();
    ++sFrameNumber;
    sRun.mPositions = nullptr;
    sRun.mUvs = nullptr;
    sRun.mColours = nullptr;
}

u32 znNGraphics::frameNumberGet()
{
    return sFrameNumber;
}

void znNGraphics::present()
{
    if (sAvailable)
        sTable.present();
}

bool znNGraphics::pixelsRead(s32 pX, s32 pY, s32 pWidth, s32 pHeight, u8* pPixels)
{
    return sAvailable && sTable.pixelsRead(pX, pY, pWidth, pHeight, pPixels) == S3E_RESULT_SUCCESS;
}
