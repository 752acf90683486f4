#include "loader/znCRenderTarget.h"

znCRenderTarget::~znCRenderTarget()
{
    release();
}

void znCRenderTarget::release()
{
    mGl.DeleteFramebuffers(1, &mFramebuffer);
    mGl.DeleteTextures(1, &mTexture);
    mFramebuffer = 0;
    mTexture = 0;
    mWidth = 0;
    mHeight = 0;
}

bool znCRenderTarget::build(s32 pWidth, s32 pHeight)
{
    release();
    mGl.GenTextures(1, &mTexture);
    mGl.BindTexture(GL_TEXTURE_2D, mTexture);
    mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    mGl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    mGl.TexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, pWidth, pHeight, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    mGl.GenFramebuffers(1, &mFramebuffer);
    mGl.BindFramebuffer(GL_FRAMEBUFFER, mFramebuffer);
    mGl.FramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, mTexture, 0);
    if (mGl.CheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE)
        return false;
    mGl.ClearColor(0.0f, 0.0f, 0.0f, 1.0f);
    mGl.Clear(GL_COLOR_BUFFER_BIT);
    mWidth = pWidth;
    mHeight = pHeight;
    return true;
}

bool znCRenderTarget::bind(s32 pWidth, s32 pHeight)
{
    if (pWidth != mWidth || pHeight != mHeight)
        return build(pWidth, pHeight);
    mGl.BindFramebuffer(GL_FRAMEBUFFER, mFramebuffer);
    return true;
}
