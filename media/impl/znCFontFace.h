#ifndef MEDIA_IMPL_ZNCFONTFACE_H
#define MEDIA_IMPL_ZNCFONTFACE_H

// A font file: its bytes, and the two libraries' views of them. Owned by the font layer.

#include <memory>
#include <set>
#include <string>

#include <ft2build.h>
#include FT_FREETYPE_H
#include <hb.h>

#include "zncore/znTypes.h"

class znCResourceName;

class znCFontFace
{
public:
    // One glyph's coverage, valid until the next one is drawn.
    struct Bitmap
    {
        const u8* mPixels = nullptr; // null: nothing shows
        s32 mWidth = 0;
        s32 mHeight = 0;
        s32 mPitch = 0;
        s32 mLeft = 0; // from the pen to the left edge, to the right
        s32 mTop = 0;  // from the baseline to the top edge, upwards
    };

    znCFontFace(FT_Library pLibrary, const znCResourceName& pName, s32 pId);
    ~znCFontFace();
    znCFontFace(const znCFontFace&) = delete;
    znCFontFace& operator=(const znCFontFace&) = delete;

    // False for a file that is missing or no scalable font; that has been logged.
    bool isUsable() const { return mShaperFace != nullptr; }
    hb_face_t* shaperFaceGet() const { return mShaperFace; }
    s32 idGet() const { return mId; }

    // pSize: height of the em square in 1/64 of a device pixel.
    Bitmap glyphRasterise(u32 pGlyph, u32 pSize);

    // Logs the code point, once.
    void missingReport(u32 pCodePoint);

private:
    static constexpr std::size_t sMissingMax = 1000; // code points to remember; beyond them nothing is logged

    bool fileRead(const znCResourceName& pName);
    const char* open(FT_Library pLibrary);

    std::string mName;
    s32 mId;
    std::shared_ptr<u8[]> mBytes; // the shaper may hold on to them longer than this object
    s32 mSize = 0;
    FT_Face mFace = nullptr;          // owned; reads mBytes
    hb_face_t* mShaperFace = nullptr; // owned; reads mBytes
    u32 mRasterSize = 0;              // what mFace is set to
    std::set<u32> mMissing;
};

#endif
