#ifndef MEDIA_IMPL_ZNCFONTLAYER_H
#define MEDIA_IMPL_ZNCFONTLAYER_H

// What znNFonts brings up: the libraries, the font files, the fallback fonts, the glyph store and the layout's memory.

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "media/impl/znCFontFace.h"
#include "media/impl/znCGlyphStore.h"
#include "media/impl/znCTextLayout.h"
#include "media/znCGraphicsFont.h"
#include "zncore/znCResourceName.h"

class znCFontLayer
{
public:
    znCFontLayer();
    ~znCFontLayer();
    znCFontLayer(const znCFontLayer&) = delete;
    znCFontLayer& operator=(const znCFontLayer&) = delete;

    // Null outside znNFonts::initialise() and terminate().
    static znCFontLayer* instanceGet();

    // The file of that name, read on first use.
    znCFontFace* faceGet(const znCResourceName& pName);

    void fallbackAdd(const znCResourceName& pName);
    // The fallback font of that number at a size; null behind the last one.
    const znCGraphicsFont* fallbackGet(s32 pIndex, s32 pSize);

    // A file at another size; pFace may be null.
    const znCGraphicsFont& sizedGet(znCFontFace* pFace, s32 pSize);

    znCGlyphStore mStore;
    znCTextLayout mLayout;
    float mDisplayScale = 1.0f;
    float mTextScale = 1.0f;

private:
    FT_Library mLibrary = nullptr;
    std::map<std::string, std::unique_ptr<znCFontFace>> mFaces; // by resource name
    std::vector<znCResourceName> mFallbackNames;
    std::vector<znCFontFace*> mFallbackFaces;                                        // null: not yet read
    std::map<std::pair<znCFontFace*, s32>, std::unique_ptr<znCGraphicsFont>> mSized; // by file and size
};

#endif
