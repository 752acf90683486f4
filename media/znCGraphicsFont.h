#ifndef MEDIA_ZNCGRAPHICSFONT_H
#define MEDIA_ZNCGRAPHICSFONT_H

// A font file at one size, ready to shape text. Owned by whoever loads it; neither copied nor moved, so that texts may
// point at it. Fonts of one file share its bytes.

#include <bitset>

#include "zncore/znTypes.h"

class znCFontFace;
class znCResourceName;
struct hb_font_t;

class znCGraphicsFont
{
public:
    static constexpr s32 sSizeMax = 512;

    znCGraphicsFont() = default;
    ~znCGraphicsFont();
    znCGraphicsFont(const znCGraphicsFont&) = delete;
    znCGraphicsFont& operator=(const znCGraphicsFont&) = delete;

    // A TrueType or OpenType file; pSize is the height of the em square in canvas units, cut to 1 to sSizeMax. A
    // missing or faulty file is one log line, false, and a font whose letters come from the fallback fonts or are
    // boxes.
    bool load(const znCResourceName& pName, s32 pSize);

    s32 sizeGet() const { return mSize; }
    // Canvas units: from the baseline up, from the baseline down, and between the lines.
    float ascentGet() const { return mAscent; }
    float descentGet() const { return mDescent; }
    float lineGapGet() const { return mLineGap; }

    // --- for this folder ---
    // As load, with a file that is already read.
    bool faceUse(znCFontFace* pFace, s32 pSize);
    znCFontFace* faceGet() const { return mFace; }
    hb_font_t* shaperGet() const { return mShaper; } // null without a usable file; in units of 1/64
    bool glyphHas(u32 pCodePoint) const
    {
        return pCodePoint < sQuickCount ? mQuick[pCodePoint] : glyphLookUp(pCodePoint);
    }

private:
    static constexpr u32 sQuickCount = 256;

    void free();
    bool glyphLookUp(u32 pCodePoint) const;

    znCFontFace* mFace = nullptr;    // owned by the font layer
    hb_font_t* mShaper = nullptr;    // owned
    std::bitset<sQuickCount> mQuick; // which of the first code points it has
    s32 mSize = 1;
    float mAscent = 0.8f;
    float mDescent = 0.2f;
    float mLineGap = 0.0f;
};

#endif
