#ifndef LOADER_ZNCRENDERTARGET_H
#define LOADER_ZNCRENDERTARGET_H

#include "loader/znCGl.h"
#include "zncore/znTypes.h"

// A framebuffer object of the surface's size, for what can't be drawn into a window directly.
class znCRenderTarget
{
public:
    // pGl must outlive the target, its context be current.
    explicit znCRenderTarget(const znCGl& pGl) : mGl(pGl) {}
    ~znCRenderTarget();
    znCRenderTarget(const znCRenderTarget&) = delete;
    znCRenderTarget& operator=(const znCRenderTarget&) = delete;

    // Binds it; another size than before makes a new one, black. False if the driver can't make it.
    bool bind(s32 pWidth, s32 pHeight);
    // Its picture, the first row at the bottom; 0 if it was never bound.
    GLuint textureGet() const { return mTexture; }

private:
    bool build(s32 pWidth, s32 pHeight);
    void release();

    const znCGl& mGl;
    GLuint mFramebuffer = 0;
    GLuint mTexture = 0;
    s32 mWidth = 0;
    s32 mHeight = 0;
};

#endif
