#ifndef ZNAPPCORE_ZNITEXTRENDERDATA_H
#define ZNAPPCORE_ZNITEXTRENDERDATA_H

#include "media/znCGraphicsMaterial.h"
#include "znappcore/znNRenderChanges.h"
#include "zncore/znAffineMtx2d.h"
#include "zncore/znCColour.h"
#include "zncore/znPoint.h"
#include "zncore/znPointF.h"

#include <string>

class znIFont;

// The glyphs of a laid-out text that share one glyph texture: one draw call. Corners in the order of sprites.
struct znCGlyphRun
{
    znCGraphicsMaterial mMaterial;       // with the text's colour
    const znPointF* mVertices = nullptr; // 4 a glyph, in device pixels
    const znPointF* mUvs = nullptr;      // 4 a glyph
    s32 mGlyphCount = 0;
};

// One text as the renderer takes it. Owned by what submits it, and left alone from submission to the end of the frame,
// the glyph runs included. A derived class marks whatever changes vertices, colour or glyphs, see znNRenderChanges;
// where glyphs lie in their texture is no change of its own.
class znITextRenderData
{
public:
    // Stores the matrix and moves the glyphs; no layout.
    virtual void matrixApply(const znAffineMtx2d& pMatrix) = 0;
    // Width of the laid-out text in canvas units.
    virtual s32 textWidthGet() const = 0;
    virtual ~znITextRenderData() = default;

protected:
    virtual void layoutUpdate() = 0;
    virtual void alignmentSetDo(s32 pH, s32 pV) = 0;

public:
    virtual void colourSet(const znCColour& pColour) = 0;
    // The runs of the text, from 0 on, in the order in which they are drawn; null behind the last. A text whose glyphs
    // all lie in one texture has one run, an empty one has none.
    virtual const znCGlyphRun* glyphRunGet(s32 pIndex) const = 0;

    // Lays the text out with this font, which outlives this object.
    void initialise(const std::string& pText, znIFont* pFont);
    void textSet(const std::string& pText);
    const std::string& textGet() const { return mText; }
    // The box that the text is laid out in, its centre at the origin; the size of the canvas at first. Before
    // initialise both log "Not initialised.\n", and what was set counts from initialise on.
    void formattingRectSizeSet(s32 pWidth, s32 pHeight);
    // 0 left, 1 centre, 2 right; 0 top, 1 middle, 2 bottom. Other values log "Unhandled horizontal text alignment.\n"
    // or "Unhandled vertical text alignment.\n" and mean 2.
    void alignmentSet(s32 pH, s32 pV);
    const znPoint& formattingRectSizeGet() const { return mFormattingRectSize; }
    // Null until initialise.
    znIFont* fontGet() const { return mFont; }

protected:
    znITextRenderData();
    znITextRenderData(const znITextRenderData&) = default;
    znITextRenderData& operator=(const znITextRenderData&) = default;

    std::string mText;
    znPoint mFormattingRectSize;
    znIFont* mFont = nullptr; // owned by the font manager

private:
    [[no_unique_address]] znNRenderChanges::Marker mMarker;
};

#endif
