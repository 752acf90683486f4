#ifndef MEDIA_IMPL_ZNCTEXTLAYOUT_H
#define MEDIA_IMPL_ZNCTEXTLAYOUT_H

// From a text to glyphs on lines. Keeps the memory that it needs from one text to the next.
//
// A text is a series of paragraphs, each ended by a line feed. A paragraph is cut into runs of one font, script and
// direction, each run is shaped, and the shaped clusters (letters with what belongs to them) are laid on lines from the
// first to the last; each line's clusters are then set from left to right as they are read.

#include <string>
#include <vector>

#include <fribidi.h>
#include <hb.h>

#include "media/znCGraphicsText.h"
#include "zncore/znTypes.h"

class znCFontLayer;

class znCTextLayout
{
public:
    znCTextLayout();
    ~znCTextLayout();
    znCTextLayout(const znCTextLayout&) = delete;
    znCTextLayout& operator=(const znCTextLayout&) = delete;

    // The text of the following layOut calls.
    void textSet(const std::string& pText);

    // Replaces *pGlyphs, which keeps its memory. As znCGraphicsText::prepare says, but at this font's size; pCut leaves
    // out the lines behind the last one that fits the box's height.
    void layOut(znCFontLayer* pLayer, const znCGraphicsFont& pFont, s32 pBoxWidth, s32 pBoxHeight, s32 pAlignH,
                s32 pAlignV, bool pCut, std::vector<znCLaidGlyph>* pGlyphs);

    // Of the last layOut, in canvas units.
    float widthGet() const { return static_cast<float>(mWidest) / 64.0f; }
    float heightGet() const { return mBottom; }
    s32 lineCountGet() const { return mLineCount; }

private:
    struct ShapedGlyph
    {
        const znCGraphicsFont* mFont;
        u32 mGlyph;
        s32 mAdvance; // these in 1/64 of a canvas unit
        s32 mOffsetX;
        s32 mOffsetY;
    };

    // By code point of the paragraph. Those that belong to the cluster of an earlier one have no glyphs.
    struct Letter
    {
        const znCGraphicsFont* mFont;
        hb_script_t mScript;
        s32 mFirstGlyph;
        s32 mGlyphCount;
        s32 mAdvance; // of the whole cluster
    };

    void paragraphLayOut(const u32* pText, s32 pCount);
    void directionsFind();
    void scriptsFind();
    void fontsFind();
    const znCGraphicsFont* fontFind(u32 pCodePoint) const;
    void markFontFind(s32 pIndex);
    const znCGraphicsFont* fontOfBothFind(u32 pBase, u32 pMark) const;
    void runsShape();
    void runShape(s32 pStart, s32 pEnd);
    void boxesShape(s32 pStart, s32 pEnd);
    void clustersTake(s32 pStart);
    void missingTake(ShapedGlyph* pGlyph, s32 pLetter);
    s32 lineEndFind(s32 pStart);
    s32 trailingSpacesSkip(s32 pStart, s32 pEnd) const;
    void lineLayOut(s32 pStart, s32 pEnd);
    void lineOrder(s32 pStart, s32 pEnd);

    // The text at hand.
    znCFontLayer* mLayer = nullptr;
    const znCGraphicsFont* mFont = nullptr;
    std::vector<znCLaidGlyph>* mLaid = nullptr;
    s32 mBoxWidth = 0;       // in 1/64 of a canvas unit
    float mHeightMax = 0.0f; // of all lines but the first
    s32 mAlignH = 0;
    bool mFull = false; // no further line fits
    s32 mWidest = 0;
    float mBottom = 0.0f; // of the last line
    s32 mLineCount = 0;

    // The paragraph at hand, by code point.
    const u32* mText = nullptr;
    s32 mCount = 0;
    bool mOneDirection = true; // left to right all through
    FriBidiParType mBaseDirection = FRIBIDI_PAR_ON;
    s64 mAdvance = 0;
    bool mBreaksKnown = false;

    hb_buffer_t* mBuffer;
    std::vector<u32> mCodePoints; // of the whole text
    std::vector<Letter> mLetters;
    std::vector<ShapedGlyph> mGlyphs;
    std::vector<FriBidiCharType> mBidiTypes;
    std::vector<FriBidiBracketType> mBrackets;
    std::vector<FriBidiLevel> mLevels;
    std::vector<FriBidiStrIndex> mOrder; // of the line at hand: from place on the line to code point
    std::vector<char> mBreaks;
};

#endif
