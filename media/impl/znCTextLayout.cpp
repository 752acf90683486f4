#include "media/impl/znCTextLayout.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include <linebreak.h>

#include "media/impl/znCFontLayer.h"
#include "media/impl/znNTextDecoder.h"
#include "zncore/debug/znIDebug.h"

namespace
{
constexpr u32 sFirstRightToLeft = 0x0590; // below it no code point is written from right to left

bool isSpace(u32 pCodePoint)
{
    return pCodePoint == ' ' || pCodePoint == 0x3000 ||
           (pCodePoint >= 0x2000 && pCodePoint <= 0x200B && pCodePoint != 0x2007);
}

bool isMark(u32 pCodePoint)
{
    if (pCodePoint < 0x0300)
        return false;
    const hb_unicode_general_category_t category =
        hb_unicode_general_category(hb_unicode_funcs_get_default(), pCodePoint);
    return category == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK;
}

// Joiners, direction marks and variation selectors: they act on their neighbours and show nothing themselves.
bool isInvisible(u32 pCodePoint)
{
    return (pCodePoint >= 0x200B && pCodePoint <= 0x200F) || (pCodePoint >= 0x202A && pCodePoint <= 0x202E) ||
           (pCodePoint >= 0x2060 && pCodePoint <= 0x206F) || (pCodePoint >= 0xFE00 && pCodePoint <= 0xFE0F) ||
           pCodePoint == 0x00AD || pCodePoint == 0xFEFF || (pCodePoint >= 0xE0000 && pCodePoint <= 0xE0FFF);
}

hb_script_t scriptGet(u32 pCodePoint)
{
    if (pCodePoint < 0x80)
    {
        const u32 lower = pCodePoint | 0x20;
        return lower >= 'a' && lower <= 'z' ? HB_SCRIPT_LATIN : HB_SCRIPT_COMMON;
    }
    return hb_unicode_script(hb_unicode_funcs_get_default(), pCodePoint);
}

bool isReal(hb_script_t pScript)
{
    return pScript != HB_SCRIPT_COMMON && pScript != HB_SCRIPT_INHERITED;
}

// How much of the free room lies before what is aligned.
s32 leadGet(s32 pRoom, s32 pAlignment)
{
    return pAlignment == 0 ? 0 : pAlignment == 1 ? pRoom / 2 : pRoom;
}
} // namespace

znCTextLayout::znCTextLayout() : mBuffer(hb_buffer_create())
{
    init_linebreak();
}

znCTextLayout::~znCTextLayout()
{
    hb_buffer_destroy(mBuffer);
}

void znCTextLayout::textSet(const std::string& pText)
{
    if (!znNTextDecoder::decode(pText, znCGraphicsText::sCodePointsMax, &mCodePoints))
        ZN_LOG("A text is too long (%d bytes). Its end is left out.\n", static_cast<s32>(pText.size()));
}

void znCTextLayout::layOut(znCFontLayer* pLayer, const znCGraphicsFont& pFont, s32 pBoxWidth, s32 pBoxHeight,
                           s32 pAlignH, s32 pAlignV, bool pCut, std::vector<znCLaidGlyph>* pGlyphs)
{
    mLayer = pLayer;
    mFont = &pFont;
    mLaid = pGlyphs;
    mLaid->clear();
    mBoxWidth = pBoxWidth * 64;
    mHeightMax = pCut ? static_cast<float>(pBoxHeight) : std::numeric_limits<float>::max();
    mAlignH = pAlignH;
    mFull = false;
    mWidest = 0;
    mBottom = 0.0f;
    mLineCount = 0;

    const s32 count = static_cast<s32>(mCodePoints.size());
    for (s32 start = 0; start <= count && !mFull;)
    {
        const auto end = std::find(mCodePoints.begin() + start, mCodePoints.end(), u32{'\n'});
        const s32 length = static_cast<s32>(end - mCodePoints.begin()) - start;
        paragraphLayOut(mCodePoints.data() + start, length);
        start += length + 1;
    }
    const float room = static_cast<float>(pBoxHeight) - mBottom;
    const float top = pAlignV == 0 ? 0.0f : pAlignV == 1 ? room / 2.0f : room;
    for (znCLaidGlyph& glyph : *mLaid)
        glyph.mY += top;
}

void znCTextLayout::paragraphLayOut(const u32* pText, s32 pCount)
{
    mText = pText;
    mCount = pCount;
    mGlyphs.clear();
    mLetters.assign(static_cast<std::size_t>(pCount), Letter{});
    mBreaksKnown = false;
    directionsFind();
    scriptsFind();
    fontsFind();
    runsShape();

    mAdvance = 0;
    for (const Letter& letter : mLetters)
        mAdvance += letter.mAdvance;
    s32 start = 0;
    do
    {
        const s32 end = lineEndFind(start);
        lineLayOut(start, end < mCount ? trailingSpacesSkip(start, end) : end);
        start = end;
    } while (start < mCount && !mFull);
}

void znCTextLayout::directionsFind()
{
    mOneDirection = std::all_of(mText, mText + mCount, [](u32 pLetter) { return pLetter < sFirstRightToLeft; });
    if (mOneDirection)
        return;
    const auto count = static_cast<std::size_t>(mCount);
    mBidiTypes.resize(count);
    mBrackets.resize(count);
    mLevels.resize(count);
    fribidi_get_bidi_types(mText, mCount, mBidiTypes.data());
    fribidi_get_bracket_types(mText, mCount, mBidiTypes.data(), mBrackets.data());
    mBaseDirection = FRIBIDI_PAR_ON;
    const FriBidiLevel levels = fribidi_get_par_embedding_levels_ex(mBidiTypes.data(), mBrackets.data(), mCount,
                                                                    &mBaseDirection, mLevels.data());
    // One more than the highest level; 0 is a failure.
    mOneDirection = levels <= 1;
}

// What all scripts use, such as spaces and digits, goes with what stands before it, at the start with what follows.
void znCTextLayout::scriptsFind()
{
    hb_script_t script = HB_SCRIPT_COMMON;
    s32 unsettled = 0;
    for (s32 i = 0; i < mCount; ++i)
    {
        const hb_script_t own = scriptGet(mText[i]);
        if (isReal(own))
        {
            if (script == HB_SCRIPT_COMMON)
                for (; unsettled < i; ++unsettled)
                    mLetters[static_cast<std::size_t>(unsettled)].mScript = own;
            script = own;
        }
        mLetters[static_cast<std::size_t>(i)].mScript = script;
    }
}

void znCTextLayout::fontsFind()
{
    const znCGraphicsFont* before = mFont;
    for (s32 i = 0; i < mCount; ++i)
    {
        Letter& letter = mLetters[static_cast<std::size_t>(i)];
        const u32 codePoint = mText[i];
        if (before == mFont && mFont->glyphHas(codePoint))
            letter.mFont = mFont;
        else if (isInvisible(codePoint) || (isSpace(codePoint) && before->glyphHas(codePoint)))
            letter.mFont = before; // so that a run doesn't end here
        else if (i > 0 && isMark(codePoint))
            markFontFind(i);
        else
            letter.mFont = fontFind(codePoint);
        before = letter.mFont;
    }
}

// The first font with that code point; the text's own if there is none.
const znCGraphicsFont* znCTextLayout::fontFind(u32 pCodePoint) const
{
    if (mFont->glyphHas(pCodePoint))
        return mFont;
    for (s32 i = 0; const znCGraphicsFont* font = mLayer->fallbackGet(i, mFont->sizeGet()); ++i)
        if (font->glyphHas(pCodePoint))
            return font;
    return mFont;
}

// A mark is drawn by the font of its base, or the two as one letter; failing that, by a font that has both.
void znCTextLayout::markFontFind(s32 pIndex)
{
    Letter& letter = mLetters[static_cast<std::size_t>(pIndex)];
    Letter& base = mLetters[static_cast<std::size_t>(pIndex - 1)];
    letter.mFont = base.mFont;
    hb_codepoint_t composed = 0;
    if (base.mFont->glyphHas(mText[pIndex]) ||
        (hb_unicode_compose(hb_unicode_funcs_get_default(), mText[pIndex - 1], mText[pIndex], &composed) &&
         base.mFont->glyphHas(composed)))
        return;
    if (const znCGraphicsFont* both = fontOfBothFind(mText[pIndex - 1], mText[pIndex]))
    {
        letter.mFont = both;
        base.mFont = both;
    }
}

const znCGraphicsFont* znCTextLayout::fontOfBothFind(u32 pBase, u32 pMark) const
{
    for (s32 i = 0; const znCGraphicsFont* font = mLayer->fallbackGet(i, mFont->sizeGet()); ++i)
        if (font->glyphHas(pMark) && font->glyphHas(pBase))
            return font;
    return nullptr;
}

void znCTextLayout::runsShape()
{
    s32 start = 0;
    while (start < mCount)
    {
        const auto first = static_cast<std::size_t>(start);
        s32 end = start + 1;
        for (; end < mCount; ++end)
        {
            const auto next = static_cast<std::size_t>(end);
            if (mLetters[next].mFont != mLetters[first].mFont || mLetters[next].mScript != mLetters[first].mScript ||
                (!mOneDirection && mLevels[next] != mLevels[first]))
                break;
        }
        runShape(start, end);
        start = end;
    }
}

void znCTextLayout::runShape(s32 pStart, s32 pEnd)
{
    const Letter& first = mLetters[static_cast<std::size_t>(pStart)];
    if (first.mFont->shaperGet() == nullptr)
    {
        boxesShape(pStart, pEnd);
        return;
    }
    const bool leftToRight = mOneDirection || mLevels[static_cast<std::size_t>(pStart)] % 2 == 0;
    hb_buffer_clear_contents(mBuffer);
    hb_buffer_add_codepoints(mBuffer, mText, mCount, static_cast<unsigned>(pStart), pEnd - pStart);
    hb_buffer_set_direction(mBuffer, leftToRight ? HB_DIRECTION_LTR : HB_DIRECTION_RTL);
    hb_buffer_set_script(mBuffer, first.mScript);
    hb_buffer_set_flags(mBuffer, HB_BUFFER_FLAG_REMOVE_DEFAULT_IGNORABLES);
    hb_shape(first.mFont->shaperGet(), mBuffer, nullptr, 0);
    clustersTake(pStart);
}

// What a font without a usable file shows: a box for every letter.
void znCTextLayout::boxesShape(s32 pStart, s32 pEnd)
{
    for (s32 i = pStart; i < pEnd; ++i)
    {
        Letter& letter = mLetters[static_cast<std::size_t>(i)];
        if (isMark(mText[i]) || isInvisible(mText[i]))
            continue;
        ShapedGlyph glyph = {letter.mFont, 0, 0, 0, 0};
        missingTake(&glyph, i);
        letter.mFirstGlyph = static_cast<s32>(mGlyphs.size());
        letter.mGlyphCount = 1;
        letter.mAdvance = glyph.mAdvance;
        mGlyphs.push_back(glyph);
    }
}

// The buffer holds the glyphs of each cluster side by side, whichever way they run.
void znCTextLayout::clustersTake(s32 pStart)
{
    const Letter& first = mLetters[static_cast<std::size_t>(pStart)];
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(mBuffer, &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(mBuffer, &count);
    // Far beyond what a sound font does, and far from where sums overflow.
    const s32 limit = first.mFont->sizeGet() * 64 * 64;
    for (unsigned i = 0; i < count; ++i)
    {
        ShapedGlyph glyph = {first.mFont, infos[i].codepoint, std::clamp(positions[i].x_advance, -limit, limit),
                             std::clamp(positions[i].x_offset, -limit, limit),
                             std::clamp(positions[i].y_offset, -limit, limit)};
        const s32 index = static_cast<s32>(infos[i].cluster);
        Letter& letter = mLetters[static_cast<std::size_t>(index)];
        if (glyph.mGlyph == 0)
            missingTake(&glyph, index);
        if (letter.mGlyphCount == 0)
            letter.mFirstGlyph = static_cast<s32>(mGlyphs.size());
        ++letter.mGlyphCount;
        letter.mAdvance += glyph.mAdvance;
        mGlyphs.push_back(glyph);
    }
}

void znCTextLayout::missingTake(ShapedGlyph* pGlyph, s32 pLetter)
{
    const s32 em = mFont->sizeGet() * 64;
    pGlyph->mGlyph = znCGlyphStore::sBoxGlyph;
    pGlyph->mAdvance = em * 6 / 10;
    if (isSpace(mText[pLetter]))
    {
        pGlyph->mGlyph = 0;
        pGlyph->mAdvance = em / 4;
    }
    else if (mFont->faceGet() != nullptr && mFont->shaperGet() != nullptr)
        mFont->faceGet()->missingReport(mText[pLetter]);
}

// The code point behind the last one on the line that starts at pStart.
s32 znCTextLayout::lineEndFind(s32 pStart)
{
    if (pStart == 0 && mAdvance <= mBoxWidth)
        return mCount;
    if (!mBreaksKnown)
    {
        mBreaks.resize(static_cast<std::size_t>(mCount));
        set_linebreaks_utf32(mText, static_cast<std::size_t>(mCount), "", mBreaks.data());
        mBreaksKnown = true;
    }
    s64 width = 0;
    s32 breakAt = pStart;
    bool hasLetters = false;
    for (s32 i = pStart; i < mCount; ++i)
    {
        const Letter& letter = mLetters[static_cast<std::size_t>(i)];
        width += letter.mAdvance;
        // Spaces at the end of a line hang over. A word that is wider than the line is cut between clusters, and at
        // least one cluster stands on each line.
        if (width > mBoxWidth && letter.mGlyphCount > 0 && hasLetters && !isSpace(mText[i]))
            return breakAt > pStart ? breakAt : i;
        hasLetters = hasLetters || letter.mAdvance > 0;
        if (mBreaks[static_cast<std::size_t>(i)] == LINEBREAK_ALLOWBREAK)
            breakAt = i + 1;
    }
    return mCount;
}

s32 znCTextLayout::trailingSpacesSkip(s32 pStart, s32 pEnd) const
{
    s32 end = pEnd;
    while (end > pStart && isSpace(mText[end - 1]))
        --end;
    return end;
}

// Puts the code points of a line into the order in which they stand from left to right.
void znCTextLayout::lineOrder(s32 pStart, s32 pEnd)
{
    mOrder.resize(static_cast<std::size_t>(mCount));
    std::iota(mOrder.begin() + pStart, mOrder.begin() + pEnd, pStart);
    if (mOneDirection || pEnd == pStart)
        return;
    // A failure leaves the order as it is read.
    [[maybe_unused]] const FriBidiLevel levels =
        fribidi_reorder_line(FRIBIDI_FLAGS_DEFAULT, mBidiTypes.data(), pEnd - pStart, pStart, mBaseDirection,
                             mLevels.data(), nullptr, mOrder.data());
}

void znCTextLayout::lineLayOut(s32 pStart, s32 pEnd)
{
    lineOrder(pStart, pEnd);
    s64 width = 0;
    float ascent = mFont->ascentGet();
    float descent = mFont->descentGet();
    const znCGraphicsFont* before = mFont;
    for (s32 i = pStart; i < pEnd; ++i)
    {
        const Letter& letter = mLetters[static_cast<std::size_t>(i)];
        width += letter.mAdvance;
        if (letter.mFont == before)
            continue;
        before = letter.mFont;
        ascent = std::max(ascent, before->ascentGet());
        descent = std::max(descent, before->descentGet());
    }
    const float top = mLineCount > 0 ? mBottom + mFont->lineGapGet() : 0.0f;
    mFull = mLineCount > 0 && top + ascent + descent > mHeightMax;
    if (mFull)
        return;
    const s32 lineWidth = static_cast<s32>(std::clamp<s64>(width, 0, 0x7FFFFFFF));
    mWidest = std::max(mWidest, lineWidth);
    const float baseline = top + ascent;
    mBottom = baseline + descent;
    ++mLineCount;

    s32 pen = leadGet(mBoxWidth - lineWidth, mAlignH);
    for (s32 place = pStart; place < pEnd; ++place)
    {
        const Letter& letter = mLetters[static_cast<std::size_t>(mOrder[static_cast<std::size_t>(place)])];
        for (s32 i = 0; i < letter.mGlyphCount; ++i)
        {
            const ShapedGlyph& glyph = mGlyphs[static_cast<std::size_t>(letter.mFirstGlyph + i)];
            mLaid->push_back({glyph.mFont, glyph.mGlyph, static_cast<float>(pen + glyph.mOffsetX) / 64.0f,
                              baseline - static_cast<float>(glyph.mOffsetY) / 64.0f});
            pen += glyph.mAdvance;
        }
    }
}
