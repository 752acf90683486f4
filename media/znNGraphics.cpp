#include "media/znNGraphics.h"

#include "media/impl/znNDrawTable.h"
#include "media/znCFrameMemory.h"
#include "media/znCGraphicsTexture.h"

namespace
{
s3eDraw sTable = {};
bool sAvailable = false;
znCFrameMemory sFrameMemory;
u32 sFrameMemoryNumber = 0;
u32 sFrameNumber = 0;
s3eDrawRun sRun = {}; // the state that the next quadsDraw uses

void sizeGet(void (*pOperation)(s32*, s32*), s32* pWidth, s32* pHeight)
{
    *pWidth = 0;
    *pHeight = 0;
    if (sAvailable)
        pOperation(pWidth, pHeight);
}

void streamsClear()
{
    sRun.mStride = 0;
    sRun.mPositions = nullptr;
    sRun.mUvs = nullptr;
    sRun.mColours = nullptr;
}

// Before a stream of its own is set: it doesn't mix with those that lie side by side.
void packedBegin()
{
    if (sRun.mStride != 0)
        streamsClear();
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
    ++sFrameMemoryNumber;
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

void znNGraphics::frameMemoryReset()
{
    sFrameMemory.frameReset();
    ++sFrameMemoryNumber;
}

u32 znNGraphics::frameMemoryNumberGet()
{
    return sFrameMemoryNumber;
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
    packedBegin();
    sRun.mPositions = reinterpret_cast<const float*>(pPositions);
}

void znNGraphics::uvsSet(const znPointF* pUvs)
{
    packedBegin();
    sRun.mUvs = reinterpret_cast<const float*>(pUvs);
}

void znNGraphics::coloursSet(const u32* pColours)
{
    packedBegin();
    sRun.mColours = pColours;
}

void znNGraphics::verticesSet(const znCGraphicsVertex* pVertices)
{
    static_assert(sizeof(znCGraphicsVertex) == sizeof(s3eDrawVertex) &&
                  offsetof(znCGraphicsVertex, mUv) == offsetof(s3eDrawVertex, mU) &&
                  offsetof(znCGraphicsVertex, mColour) == offsetof(s3eDrawVertex, mColour));
    sRun.mStride = sizeof(znCGraphicsVertex);
    sRun.mPositions = &pVertices->mPosition.mX;
    sRun.mUvs = &pVertices->mUv.mX;
    sRun.mColours = &pVertices->mColour;
}

void znNGraphics::unchangedSet(bool pUnchanged)
{
    sRun.mUnchanged = pUnchanged ? 1 : 0;
}

void znNGraphics::quadsDraw(s32 pVertexCount)
{
    if (!sAvailable || pVertexCount < 4 || sRun.mPositions == nullptr)
        return;
    s3eDrawRun run = sRun;
    run.mVertexCount = pVertexCount & ~3;
    if (run.mUvs == nullptr)
        run.mTexture = 0; // the table asks for UVs with a texture
    sTable.runAdd(&run);
}

void znNGraphics::flush()
{
    if (sAvailable)
        sTable.flush();
    ++sFrameNumber;
    streamsClear();
    sRun.mUnchanged = 0;
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
