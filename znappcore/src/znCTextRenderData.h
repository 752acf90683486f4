#ifndef ZNAPPCORE_SRC_ZNCTEXTRENDERDATA_H
#define ZNAPPCORE_SRC_ZNCTEXTRENDERDATA_H

#include "media/znCGraphicsText.h"
#include "znappcore/znITextRenderData.h"

#include <vector>

// A text as the font layer laid it out, moved by a matrix. White, centred in its box both ways at first.
class znCTextRenderData final : public znITextRenderData
{
public:
    static constexpr s32 ALIGN_LEFT = 0;
    static constexpr s32 ALIGN_CENTRE = 1;
    static constexpr s32 ALIGN_RIGHT = 2;
    static constexpr s32 ALIGN_TOP = 0;
    static constexpr s32 ALIGN_MIDDLE = 1;
    static constexpr s32 ALIGN_BOTTOM = 2;

    // Where the text is neither turned nor scaled beyond the display's own scale, it lies on whole device pixels.
    void matrixApply(const znAffineMtx2d& pMatrix) override;
    s32 textWidthGet() const override;
    void colourSet(const znCColour& pColour) override;
    const znCGlyphRun* glyphRunGet(s32 pIndex) const override;

    // Before each painting: takes over what znNFonts::frameBegin changed, without a layout, and a new text scale.
    void glyphsRefresh();

    s32 glyphCountGet() const { return mGlyphCount; }

protected:
    void layoutUpdate() override;
    void alignmentSetDo(s32 pH, s32 pV) override;

private:
    void verticesBuild();

    znCGraphicsText mPrepared;
    znAffineMtx2d mMatrix;
    std::vector<znPointF> mLocalVertices; // 4 a glyph; they only grow, mGlyphCount counts
    std::vector<znPointF> mWorldVertices;
    float mTextScale = 1.0f; // of the last layout
    s32 mAlignH = ALIGN_CENTRE;
    s32 mAlignV = ALIGN_MIDDLE;
    u32 mColour = 0xFFFFFFFFu;
    s32 mGlyphCount = 0;
    mutable znCGlyphRun mRun; // made for the renderer at each draw
};

#endif
