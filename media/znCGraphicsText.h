#ifndef MEDIA_ZNCGRAPHICSTEXT_H
#define MEDIA_ZNCGRAPHICSTEXT_H

// A text laid out in a box: a rectangle for each glyph that shows, and where that glyph lies in the glyph texture.
//
// Laid out in canvas units, the same at every scale of the display; then each glyph is moved by less than half a device
// pixel, so that it is painted pixel by pixel where the text isn't turned or scaled further. Shaped as its script asks
// (kerning, ligatures, combining marks, joined letters), from right to left where it must, wrapped between words and,
// where a single word is wider than the box, inside it.
//
// A code point that neither the font nor the fallback fonts have shows as a box, with one log line for each font and
// code point. Bytes that are no UTF-8 show as U+FFFD. A line feed starts a line, and so does "<br>"; the tags "<b>",
// "<i>", "<u>" and their ends take no place and have no effect; any other text is shown as it stands.

#include <string>
#include <vector>

#include "zncore/znPointF.h"
#include "zncore/znTypes.h"

class znCGraphicsFont;

// In canvas units from the top left corner of the box; y downwards.
struct znCGlyphRect
{
    float mX;
    float mY;
    float mWidth;
    float mHeight;
};

// One glyph of a layout: the pen's place on the baseline.
struct znCLaidGlyph
{
    const znCGraphicsFont* mFont;
    u32 mGlyph;
    float mX;
    float mY;
};

class znCGraphicsText
{
public:
    static constexpr s32 sCodePointsMax = 16384; // what a longer text has beyond them is left out, with a log line

    // Alignment: 0 left, 1 centre, 2 right; 0 top, 1 middle, 2 bottom. The font outlives this object or its next
    // prepare. A box without width or height is 1 wide or high. Memory is kept for the next time.
    // Several lines that are too high for the box are laid out anew with smaller letters; if they are too high even
    // with the smallest, the last lines are left out. One log line says so, until a text fits again.
    // With znNFonts::textScaleSet the letters are larger, as far as the box has room: a single line stays one.
    void prepare(const znCGraphicsFont& pFont, const std::string& pText, s32 pBoxWidth, s32 pBoxHeight, s32 pAlignH,
                 s32 pAlignV);

    // Places the glyphs anew, without a new layout, if znNFonts::frameBegin asks for it. True if
    // that was so: the rectangles, and even their number, may have changed. Cheap when nothing has.
    bool refresh();

    s32 glyphCountGet() const { return static_cast<s32>(mRects.size()); }
    const znCGlyphRect& glyphRectGet(s32 pIndex) const { return mRects[static_cast<std::size_t>(pIndex)]; }
    // Four a glyph, as quads have them. Brought up to date if the glyph texture grew since the last call.
    const znPointF* uvsGet() const;
    // The widest line in canvas units, rounded up; with the spaces at the end of the text, without those at a wrap.
    s32 widthGet() const { return mWidth; }
    s32 lineCountGet() const { return mLineCount; }

private:
    void place();
    void uvsWrite() const;
    void enlarge(const znCGraphicsFont& pFont, s32 pBoxWidth, s32 pBoxHeight, s32 pAlignH, s32 pAlignV);
    void fit(const znCGraphicsFont& pFont, s32 pBoxWidth, s32 pBoxHeight, s32 pAlignH, s32 pAlignV);

    std::vector<znCLaidGlyph> mLaid;
    std::vector<znCGlyphRect> mRects;
    std::vector<s32> mStored;           // each rectangle's glyph in the glyph store
    mutable std::vector<znPointF> mUvs; // follow the glyph texture when it is drawn
    mutable u32 mUvGeneration = 0;
    u32 mPlaceGeneration = 0;
    bool mTooHigh = false; // did not fit its box, and that has been logged
    s32 mHalfWidth = 0;    // of the box: where the node stands
    s32 mHalfHeight = 0;
    s32 mWidth = 0;
    s32 mLineCount = 0;
};

#endif
