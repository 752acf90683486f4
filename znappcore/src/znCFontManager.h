#ifndef ZNAPPCORE_SRC_ZNCFONTMANAGER_H
#define ZNAPPCORE_SRC_ZNCFONTMANAGER_H

#include "zncore/znTypes.h"

#include <map>
#include <memory>
#include <string>

class znCResourceName;
class znIFont;

// Hands out fonts, each loaded once. A singleton that the renderer creates and destroys; fonts live as long as it does.
class znCFontManager
{
public:
    // "fonts/fallback0.ttf" and on, up to the first number without a file: where a letter is looked for that a font
    // lacks.
    static constexpr const char* FALLBACK_NAME = "fonts/fallback";
    static constexpr const char* FALLBACK_EXTENSION = ".ttf";

    // A second call logs "Already created znCFontManager.\n" and starts anew.
    static void create();
    // Without an instance both log "Not created.\n"; instanceGet answers null then.
    static znCFontManager* instanceGet();
    static void destroy();

    ~znCFontManager();
    znCFontManager(const znCFontManager&) = delete;
    znCFontManager& operator=(const znCFontManager&) = delete;

    // Never null. Fonts are told apart by file name, without folder and extension, and size.
    znIFont* fontGet(const znCResourceName& pName, s32 pSize);

    // Once a frame, before anything is painted: has glyphs drawn for the scale that the display now has.
    void frameBegin();

private:
    znCFontManager() = default;
    void fallbacksAdd();

    std::map<std::string, std::unique_ptr<znIFont>> mFonts;
    bool mFallbacksAdded = false;
};

#endif
