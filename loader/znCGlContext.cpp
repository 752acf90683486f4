#include "loader/znCGlContext.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <link.h>
#include <SDL.h>

namespace
{
const char* const GL_PACKAGES = " (OpenGL ES 2 comes with the packages libegl1, libgles2 and libgl1-mesa-dri)";

s32 libraryKeep(dl_phdr_info* pInfo, size_t, void*)
{
    if (pInfo->dlpi_name != nullptr && *pInfo->dlpi_name != '\0')
        dlopen(pInfo->dlpi_name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
    return 0;
}

// Unloading the drivers takes time at the end of a run and makes what they keep for the life of the process look like
// leaks, since nothing points to it any more.
void driversKeep()
{
    dl_iterate_phdr(libraryKeep, nullptr);
}

bool isNoDriver(const char* pDriver)
{
    return std::strcmp(pDriver, "offscreen") == 0 || std::strcmp(pDriver, "dummy") == 0;
}
} // namespace

znCGlContext::~znCGlContext()
{
    driversKeep();
    if (mContext != nullptr)
        SDL_GL_DeleteContext(mContext);
    if (mWindow != nullptr)
        SDL_DestroyWindow(mWindow);
    if (mVideoStarted)
        SDL_Quit();
}

bool znCGlContext::videoStart(Kind pKind, std::string& pError)
{
    if (pKind == Kind::OFFSCREEN)
    {
        setenv("LIBGL_ALWAYS_SOFTWARE", "1", 0);
        SDL_SetHintWithPriority(SDL_HINT_VIDEODRIVER, "offscreen", SDL_HINT_OVERRIDE);
    }
    SDL_SetHint(SDL_HINT_APP_NAME, pKind == Kind::WINDOW ? "The Petrel Mail" : nullptr);
    SDL_SetHint(SDL_HINT_OPENGL_ES_DRIVER, "1");
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
    {
        pError = std::string("cannot start SDL's video: ") + SDL_GetError();
        return false;
    }
    mVideoStarted = true;
    const char* driver = SDL_GetCurrentVideoDriver();
    const bool right = pKind == Kind::WINDOW ? !isNoDriver(driver) : std::strcmp(driver, "offscreen") == 0;
    if (!right)
        pError = pKind == Kind::WINDOW
                     ? "there is no display to open a window on; --headless does without"
                     : std::string("SDL lacks its \"offscreen\" video driver and started \"") + driver + "\"";
    return right;
}

bool znCGlContext::windowMake(Kind pKind, const char* pTitle, s32 pWidth, s32 pHeight)
{
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_PROFILE_MASK, SDL_GL_CONTEXT_PROFILE_ES);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MAJOR_VERSION, 2);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MINOR_VERSION, 0);
    SDL_GL_SetAttribute(SDL_GL_DEPTH_SIZE, 0);
    SDL_GL_SetAttribute(SDL_GL_ALPHA_SIZE, 0);
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    const u32 flags = SDL_WINDOW_OPENGL | (pKind == Kind::WINDOW ? SDL_WINDOW_RESIZABLE : SDL_WINDOW_HIDDEN);
    mWindow = SDL_CreateWindow(pTitle, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, pWidth, pHeight, flags);
    if (mWindow != nullptr)
        mContext = SDL_GL_CreateContext(mWindow);
    return mContext != nullptr;
}

bool znCGlContext::rendererCheck(std::string& pError) const
{
    const auto* text = reinterpret_cast<const char*>(mGl.GetString(GL_RENDERER));
    const std::string renderer = text == nullptr ? "nothing" : text;
    for (const char* known : {"llvmpipe", "softpipe", "NOOP"})
        if (renderer.find(known) != std::string::npos)
            return true;
    pError = "headless pictures need Mesa's software rasteriser (package libgl1-mesa-dri), but " + renderer + " draws";
    return false;
}

bool znCGlContext::create(Kind pKind, const char* pTitle, s32 pWidth, s32 pHeight, std::string& pError)
{
    if (!videoStart(pKind, pError))
        return false;
    std::string missing;
    if (!windowMake(pKind, pTitle, pWidth, pHeight))
        missing = SDL_GetError();
    else
        mGl.load(missing);
    if (!missing.empty())
    {
        pError = "cannot start OpenGL ES 2: " + missing + GL_PACKAGES;
        return false;
    }
    return pKind == Kind::WINDOW || rendererCheck(pError);
}
