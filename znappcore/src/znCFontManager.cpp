#include "znappcore/src/znCFontManager.h"

#include "media/znNFonts.h"
#include "znappcore/src/znCFont.h"
#include "znappcore/znIDisplay.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"

#include <algorithm>

namespace
{
std::unique_ptr<znCFontManager> sInstance;

std::string keyGet(const znCResourceName& pName, s32 pSize)
{
    const std::string& name = pName.nameGet();
    const std::size_t slash = name.rfind('/');
    const std::size_t start = slash == std::string::npos ? 0 : slash + 1;
    const std::size_t dot = name.rfind('.');
    const std::size_t end = dot == std::string::npos || dot < start ? name.size() : dot;
    return name.substr(start, end - start) + std::to_string(pSize);
}
} // namespace

void znCFontManager::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCFontManager.\n");
    sInstance.reset(new znCFontManager());
}

znCFontManager* znCFontManager::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance.get();
}

void znCFontManager::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    sInstance.reset();
}

znCFontManager::~znCFontManager() = default;

znIFont* znCFontManager::fontGet(const znCResourceName& pName, s32 pSize)
{
    if (!mFallbacksAdded)
        fallbacksAdd();
    std::unique_ptr<znIFont>& font = mFonts[keyGet(pName, pSize)];
    if (font == nullptr)
    {
        font = std::make_unique<znCFont>();
        font->load(pName, pSize);
    }
    return font.get();
}

void znCFontManager::fallbacksAdd()
{
    mFallbacksAdded = true;
    for (s32 i = 0;; ++i)
    {
        const znCResourceName name(FALLBACK_NAME + std::to_string(i) + FALLBACK_EXTENSION, znCResourceName::GAME_DATA);
        if (!znIFile::existsGet(name))
            return;
        znNFonts::fallbackAdd(name);
    }
}

void znCFontManager::frameBegin()
{
    if (!znIDisplay::existsGet())
        return;
    // A screen of other proportions than the canvas stretches glyphs; the larger scale loses less.
    const znAffineMtx2d& matrix = znIDisplay::instanceGet()->worldMatrixGet();
    znNFonts::frameBegin(std::max(matrix.m00, matrix.m11));
}
