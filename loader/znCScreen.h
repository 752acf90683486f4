#ifndef LOADER_ZNCSCREEN_H
#define LOADER_ZNCSCREEN_H

#include "loader/znCQuadDrawer.h"
#include "loader/znCRenderTarget.h"
#include "loader/znCTextureStore.h"
#include "loader/znIWindow.h"

// The picture of each frame and its way to the window: drawn straight into a window of the surface's size, else into a
// render target that is then drawn scaled into the window, or, headless, stays where it is.
class znCScreen
{
public:
    // Both must outlive the screen, the context be current. pKeepsFrames: frames stay readable after they are
    // presented, which shots need; it costs a copy a frame in a window.
    znCScreen(const znCGl& pGl, znIWindow& pWindow, bool pKeepsFrames);

    // A sentence if drawing can't work here; else empty.
    const std::string& errorGet() const { return mQuads.errorGet(); }
    znCTextureStore& texturesGet() { return mTextures; }

    // Also gives the window the moment to follow what was asked of it, since a new frame starts.
    void clear(u32 pColour);
    void runAdd(const s3eDrawRun& pRun) { mQuads.runAdd(pRun); }
    void flush();
    void present();
    // The size that the frame drawn last has.
    s32 widthGet() const { return mWidth; }
    s32 heightGet() const { return mHeight; }
    u64 presentedGet() const { return mPresented; } // frames so far
    // Rows from the top, R, G, B, A; false for a rectangle that isn't wholly on the surface.
    bool pixelsRead(s32 pX, s32 pY, s32 pWidth, s32 pHeight, void* pPixels);

private:
    void frameBegin();
    void surfaceBind();
    void scaledPresent(s32 pWindowWidth, s32 pWindowHeight);

    const znCGl& mGl;
    znIWindow& mWindow;
    znCTextureStore mTextures;
    znCQuadDrawer mQuads;
    znCRenderTarget mTarget;
    bool mKeepsFrames;
    bool mTargetUsed = false; // by the frame that is being drawn
    bool mFrameBegun = false;
    bool mBound = false; // the surface is what drawing goes to
    s32 mWidth = 0;      // of the surface that the frame is drawn to
    s32 mHeight = 0;
    u64 mPresented = 0;
};

#endif
