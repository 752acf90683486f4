#ifndef LOADER_ZNCGLCONTEXT_H
#define LOADER_ZNCGLCONTEXT_H

#include "loader/znCGl.h"
#include "zncore/znTypes.h"

#include <string>

struct SDL_Window;

// SDL's video, one window and the OpenGL ES 2 context in it; there is at most one object at a time.
class znCGlContext
{
public:
    enum class Kind
    {
        WINDOW,   // a window on the person's display
        OFFSCREEN // no display; Mesa's software rasteriser, whose pixels are the same on every machine
    };

    znCGlContext() = default;
    ~znCGlContext();
    znCGlContext(const znCGlContext&) = delete;
    znCGlContext& operator=(const znCGlContext&) = delete;

    // False with one sentence in pError that says what is missing.
    bool create(Kind pKind, const char* pTitle, s32 pWidth, s32 pHeight, std::string& pError);
    SDL_Window* windowGet() const { return mWindow; }
    const znCGl& glGet() const { return mGl; }

private:
    bool videoStart(Kind pKind, std::string& pError);
    bool windowMake(Kind pKind, const char* pTitle, s32 pWidth, s32 pHeight);
    bool rendererCheck(std::string& pError) const;

    znCGl mGl;
    SDL_Window* mWindow = nullptr; // owned
    void* mContext = nullptr;      // owned
    bool mVideoStarted = false;
};

#endif
