#include "loader/znCTextureStore.h"

#include <algorithm>
#include <cstring>

namespace
{
// How a format comes in and how OpenGL gets it. White of some alpha, premultiplied, is that alpha in all channels.
struct Layout
{
    size_t mBytesIn;
    size_t mBytesOut;
    GLenum mFormat;
};

constexpr Layout LAYOUTS[] = {{4, 4, GL_RGBA}, {3, 3, GL_RGB}, {1, 2, GL_LUMINANCE_ALPHA}}; // by S3E_DRAW_... number

bool isFormat(s32 pFormat)
{
    return pFormat >= 0 && static_cast<size_t>(pFormat) < std::size(LAYOUTS);
}

void rowCopy(const Layout& pLayout, const u8* pRow, s32 pWidth, u8* pTarget)
{
    if (pLayout.mBytesIn == pLayout.mBytesOut)
    {
        std::memcpy(pTarget, pRow, static_cast<size_t>(pWidth) * pLayout.mBytesIn);
        return;
    }
    for (s32 x = 0; x < pWidth; ++x)
        pTarget[2 * x] = pTarget[2 * x + 1] = pRow[x];
}
} // namespace

znCTextureStore::znCTextureStore(const znCGl& pGl) : mGl(pGl)
{
    mGl.GetIntegerv(GL_MAX_TEXTURE_SIZE, &mSizeLimit);
    mGl.PixelStorei(GL_UNPACK_ALIGNMENT, 1);
    mGl.PixelStorei(GL_PACK_ALIGNMENT, 1);
    mTextures.emplace_back();
    const u32 white = 0xffffffff;
    const u32 made = create(S3E_DRAW_ABGR_8888, 1, 1, &white, 4);
    std::swap(mTextures.front(), mTextures[made]);
}

znCTextureStore::~znCTextureStore()
{
    for (const Texture& texture : mTextures)
        mGl.DeleteTextures(1, &texture.mName);
}

const znCTextureStore::Texture* znCTextureStore::find(u32 pTexture) const
{
    const bool known = pTexture > 0 && pTexture < mTextures.size() && mTextures[pTexture].mName != 0;
    return known ? &mTextures[pTexture] : nullptr;
}

const void* znCTextureStore::rowsPack(s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
{
    const Layout& layout = LAYOUTS[pFormat];
    const size_t rowIn = static_cast<size_t>(pWidth) * layout.mBytesIn;
    const size_t rowOut = static_cast<size_t>(pWidth) * layout.mBytesOut;
    const bool asItIs = rowIn == rowOut && static_cast<size_t>(pPitch) == rowIn;
    if (pPixels != nullptr && asItIs)
        return pPixels;
    mPacked.assign(rowOut * static_cast<size_t>(pHeight), 0);
    for (s32 y = 0; pPixels != nullptr && y < pHeight; ++y)
        rowCopy(layout, static_cast<const u8*>(pPixels) + static_cast<std::ptrdiff_t>(y) * pPitch, pWidth,
                mPacked.data() + rowOut * static_cast<size_t>(y));
    return mPacked.data();
}

u32 znCTextureStore::create(s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
{
    if (!isFormat(pFormat) || pWidth < 1 || pHeight < 1 || pWidth > mSizeLimit || pHeight > mSizeLimit)
        return 0;
    Texture texture = {0, pFormat, pWidth, pHeight};
    const GLenum format = LAYOUTS[pFormat].mFormat;
    while (mGl.GetError() != GL_NO_ERROR)
        continue; // only what happens below counts
    mGl.GenTextures(1, &texture.mName);
    mGl.BindTexture(GL_TEXTURE_2D, texture.mName);
    mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    mGl.TexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(format), pWidth, pHeight, 0, format, GL_UNSIGNED_BYTE,
                   rowsPack(pFormat, pWidth, pHeight, pPixels, pPitch));
    if (mGl.GetError() != GL_NO_ERROR)
    {
        mGl.DeleteTextures(1, &texture.mName);
        return 0;
    }
    return store(texture);
}

// The number of the first free place, which the texture takes.
u32 znCTextureStore::store(const Texture& pTexture)
{
    const auto free = std::find_if(mTextures.begin() + 1, mTextures.end(),
                                   [](const Texture& pPlace) { return pPlace.mName == 0; });
    const auto place = static_cast<size_t>(free - mTextures.begin());
    if (place == mTextures.size())
        mTextures.push_back(pTexture);
    else
        mTextures[place] = pTexture;
    return static_cast<u32>(place);
}

bool znCTextureStore::update(u32 pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch)
{
    const Texture* texture = find(pTexture);
    if (texture == nullptr || pPixels == nullptr || pX < 0 || pY < 0 || pWidth < 1 || pHeight < 1 ||
        pWidth > texture->mWidth - pX || pHeight > texture->mHeight - pY)
        return false;
    mGl.BindTexture(GL_TEXTURE_2D, texture->mName);
    mGl.TexSubImage2D(GL_TEXTURE_2D, 0, pX, pY, pWidth, pHeight, LAYOUTS[texture->mFormat].mFormat, GL_UNSIGNED_BYTE,
                      rowsPack(texture->mFormat, pWidth, pHeight, pPixels, pPitch));
    return true;
}

void znCTextureStore::free(u32 pTexture)
{
    if (find(pTexture) == nullptr)
        return;
    mGl.DeleteTextures(1, &mTextures[pTexture].mName);
    mTextures[pTexture] = {};
}

GLuint znCTextureStore::nameGet(u32 pTexture) const
{
    const Texture* texture = find(pTexture);
    return texture == nullptr ? mTextures.front().mName : texture->mName;
}
