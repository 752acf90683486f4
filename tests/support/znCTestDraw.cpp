#include "tests/support/znCTestDraw.h"
#include <cstring>
#include <utility>

namespace
{
// 0 for a format that doesn't exist.
s32 texelSizeGet(s32 pFormat)
{
    switch (pFormat)
    {
    case S3E_DRAW_ABGR_8888:
        return 4;
    case S3E_DRAW_RGB_888:
        return 3;
    case S3E_DRAW_ALPHA_8:
        return 1;
    default:
        return 0;
    }
}

bool blendKnown(u32 pBlend)
{
    return pBlend == S3E_DRAW_BLEND_NONE || pBlend == S3E_DRAW_BLEND_ADD || pBlend == S3E_DRAW_BLEND_SUBTRACT ||
           pBlend == S3E_DRAW_BLEND_ALPHA;
}

// Of each vertex so many numbers.
template <class T>
std::vector<T> streamCopy(const T* pStream, s32 pVertices, s32 pNumbers, s32 pStride)
{
    std::vector<T> copy;
    const std::ptrdiff_t step = pStride == 0 ? pNumbers : pStride / static_cast<s32>(sizeof(T));
    for (s32 i = 0; pStream != nullptr && i < pVertices; ++i, pStream += step)
        copy.insert(copy.end(), pStream, pStream + pNumbers);
    return copy;
}
} // namespace

u32 znCTestDraw::textureCreate(s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
{
    const s32 texel = texelSizeGet(pFormat);
    if (texel == 0 || pWidth <= 0 || pHeight <= 0 || pWidth > mSizeLimit || pHeight > mSizeLimit)
    {
        mFaults.push_back("textureCreate: format or size out of range");
        return 0;
    }
    if (mCreateFailCount != 0)
    {
        mCreateFailCount -= mCreateFailCount > 0;
        return 0;
    }
    const u32 id = mNextTexture++;
    mTextures[id] = {pFormat, pWidth, pHeight, {}, 0};
    if (mRecording)
        mTextures[id].mPixels.resize(static_cast<std::size_t>(pWidth) * static_cast<std::size_t>(pHeight * texel));
    if (pPixels != nullptr)
    {
        textureUpdate(id, 0, 0, pWidth, pHeight, pPixels, pPitch);
        mTextures[id].mUpdateCount = 0;
    }
    return id;
}

s3eResult znCTestDraw::textureUpdate(u32 pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const void* pPixels,
                                     s32 pPitch)
{
    const auto found = mTextures.find(pTexture);
    if (found == mTextures.end() || pX < 0 || pY < 0 || pWidth < 0 || pHeight < 0 ||
        pWidth > found->second.mWidth - pX || pHeight > found->second.mHeight - pY)
    {
        mFaults.push_back("textureUpdate: unknown texture or area outside it");
        return S3E_RESULT_ERROR;
    }
    Texture& texture = found->second;
    const s32 texel = texelSizeGet(texture.mFormat);
    for (s32 row = 0; row < pHeight && !texture.mPixels.empty(); ++row)
        std::memcpy(texture.mPixels.data() + ((pY + row) * texture.mWidth + pX) * texel,
                    static_cast<const u8*>(pPixels) + static_cast<std::ptrdiff_t>(row) * pPitch,
                    static_cast<std::size_t>(pWidth * texel));
    ++texture.mUpdateCount;
    return S3E_RESULT_SUCCESS;
}

void znCTestDraw::textureFree(u32 pTexture)
{
    if (mTextures.erase(pTexture) == 0)
        mFaults.push_back("textureFree: unknown texture");
}

void znCTestDraw::clear(u32 pColour)
{
    mClearColour = pColour;
    ++mClearCount;
    mFrame.clear();
}

void znCTestDraw::runAdd(const s3eDrawRun* pRun)
{
    ++mRunCount;
    mVertexCount += pRun->mVertexCount;
    runCheck(*pRun);
    if (mRecording)
        mQueued.push_back(*pRun);
}

void znCTestDraw::runCheck(const s3eDrawRun& pRun)
{
    if (pRun.mTexture != 0 && mTextures.count(pRun.mTexture) == 0)
        mFaults.push_back("runAdd: unknown texture");
    if (pRun.mVertexCount <= 0 || pRun.mVertexCount % 4 != 0)
        mFaults.push_back("runAdd: vertex count is no multiple of 4");
    if (!blendKnown(pRun.mBlend))
        mFaults.push_back("runAdd: unknown blend");
    if (pRun.mPositions == nullptr || (pRun.mTexture != 0 && pRun.mUvs == nullptr))
        mFaults.push_back("runAdd: a stream is missing");
}

void znCTestDraw::flush()
{
    ++mFlushCount;
    for (const s3eDrawRun& run : mQueued)
        mFrame.push_back({run.mTexture, run.mBlend, run.mColour, run.mVertexCount,
                          streamCopy(run.mPositions, run.mVertexCount, 2, run.mStride),
                          streamCopy(run.mTexture != 0 ? run.mUvs : nullptr, run.mVertexCount, 2, run.mStride),
                          streamCopy(run.mColours, run.mVertexCount, 1, run.mStride), run.mUnchanged != 0});
    unchangedCheck();
    mQueued.clear();
}

// Runs that are said to be those of the flush before are compared with them.
void znCTestDraw::unchangedCheck()
{
    for (std::size_t i = 0; i < mFrame.size() && mFrame[i].mUnchanged; ++i)
        if (i >= mFlushed.size() || mFrame[i].mPositions != mFlushed[i].mPositions ||
            mFrame[i].mUvs != mFlushed[i].mUvs || mFrame[i].mColours != mFlushed[i].mColours)
            mFaults.push_back("flush: a run that should be unchanged differs");
    if (mRecording)
        mFlushed = mFrame;
}

void znCTestDraw::present()
{
    ++mPresentCount;
    if (!mQueued.empty())
        mFaults.push_back("present: runs are still queued");
    if (mRecording)
        mPresented = mFrame;
}

s3eResult znCTestDraw::pixelsRead(s32, s32, s32 pWidth, s32 pHeight, void* pPixels)
{
    u8* out = static_cast<u8*>(pPixels);
    for (s32 i = 0; i < pWidth * pHeight; ++i, out += 4)
        std::memcpy(out, &mClearColour, 4);
    return S3E_RESULT_SUCCESS;
}
