#ifndef LOADER_ZNCTEXTURESTORE_H
#define LOADER_ZNCTEXTURESTORE_H

#include "loader/znCGl.h"
#include "zncore/impl/platform/s3eExtensions.h"

#include <vector>

// The module's textures by number, and the white one for plain colour, which has number 0. All filter linearly and
// clamp at their edges. Binds textures, so whoever draws has to bind its own again afterwards.
class znCTextureStore
{
public:
    // pGl must outlive the store, its context be current.
    explicit znCTextureStore(const znCGl& pGl);
    ~znCTextureStore();
    znCTextureStore(const znCTextureStore&) = delete;
    znCTextureStore& operator=(const znCTextureStore&) = delete;

    s32 sizeLimitGet() const { return mSizeLimit; }
    // 0 for an unknown format, a size that can't be, or when the driver has no room.
    u32 create(s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch);
    // False for an unknown texture and a rectangle that isn't wholly in it.
    bool update(u32 pTexture, s32 pX, s32 pY, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch);
    void free(u32 pTexture);
    // OpenGL's name of a texture; that of the white one for a number that there is not.
    GLuint nameGet(u32 pTexture) const;

private:
    struct Texture
    {
        GLuint mName = 0; // 0: free
        s32 mFormat = 0;
        s32 mWidth = 0;
        s32 mHeight = 0;
    };

    const Texture* find(u32 pTexture) const;
    u32 store(const Texture& pTexture);
    // The rows one behind the other, in the layout that OpenGL gets; valid until the next call.
    const void* rowsPack(s32 pFormat, s32 pWidth, s32 pHeight, const void* pPixels, s32 pPitch);

    const znCGl& mGl;
    std::vector<Texture> mTextures; // texture n at n
    std::vector<u8> mPacked;
    s32 mSizeLimit = 0;
};

#endif
