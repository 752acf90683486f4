#include "media/znCGraphicsText.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "media/znCGraphicsFont.h"
#include "media/znCGraphicsTexture.h"
#include "media/znNFonts.h"
#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

namespace
{
constexpr s32 sWide = 10000; // a box in which nothing wraps
const char* const sClarendon = "fonts/clarendon.ttf";

std::string fontRead(const std::string& pName)
{
    std::ifstream file(PETREL_ROOT "/data/fonts/" + pName, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class znCGraphicsTextTest : public ::testing::Test
{
protected:
    znCGraphicsTextTest()
    {
        for (const char* name : {"clarendon.ttf", "fallback0.ttf", "fallback1.ttf", "fallback2.ttf"})
            mPlatform.mFiles.fileSet(std::string("fonts/") + name, fontRead(name));
        znIDebug::create();
        znNGraphics::initialise();
        znNFonts::initialise();
        for (const char* name : {"fonts/fallback0.ttf", "fonts/fallback1.ttf", "fonts/fallback2.ttf"})
            znNFonts::fallbackAdd(znCResourceName(name, znCResourceName::GAME_DATA));
        EXPECT_TRUE(mFont.load(znCResourceName(sClarendon, znCResourceName::GAME_DATA), 30));
    }
    ~znCGraphicsTextTest() override
    {
        znNFonts::terminate();
        znNGraphics::terminate();
        znIDebug::destroy();
        EXPECT_TRUE(mPlatform.mDraw.mFaults.empty());
        EXPECT_TRUE(mPlatform.mDraw.mTextures.empty());
    }

    znCGraphicsText textMake(const std::string& pText, s32 pWidth = sWide, s32 pHeight = 1000, s32 pAlignH = 0,
                             s32 pAlignV = 0) const
    {
        znCGraphicsText text;
        text.prepare(mFont, pText, pWidth, pHeight, pAlignH, pAlignV);
        return text;
    }

    // Where the glyph that a text of one letter shows stands in another text; -1 if it doesn't.
    s32 glyphFind(const znCGraphicsText& pText, const std::string& pLetter) const
    {
        const znCGraphicsText letter = textMake(pLetter);
        EXPECT_EQ(letter.glyphCountGet(), 1) << pLetter;
        for (s32 i = 0; i < pText.glyphCountGet(); ++i)
            if (pText.uvsGet()[4 * i].mX == letter.uvsGet()[0].mX && pText.uvsGet()[4 * i].mY == letter.uvsGet()[0].mY)
                return i;
        return -1;
    }

    // The texels that a glyph's UVs reach.
    std::vector<u8> texelsGet(const znCGraphicsText& pText, s32 pGlyph)
    {
        const znCTestDraw::Texture& texture = mPlatform.mDraw.mTextures.at(znNFonts::glyphTextureGet()->idGet());
        const znPointF* uvs = pText.uvsGet() + 4 * pGlyph;
        const auto texel = [](float pPart, s32 pSide)
        {
            return static_cast<s32>(std::lround(pPart * static_cast<float>(pSide)));
        };
        std::vector<u8> result;
        for (s32 y = texel(uvs[0].mY, texture.mHeight); y < texel(uvs[2].mY, texture.mHeight); ++y)
            for (s32 x = texel(uvs[0].mX, texture.mWidth); x < texel(uvs[2].mX, texture.mWidth); ++x)
                result.push_back(texture.mPixels[static_cast<std::size_t>(y * texture.mWidth + x)]);
        return result;
    }

    znCTestPlatform mPlatform;
    znCGraphicsFont mFont;
};

struct Extent
{
    float mLeft = 1e9f, mTop = 1e9f, mRight = -1e9f, mBottom = -1e9f;
};

Extent extentGet(const znCGraphicsText& pText)
{
    Extent extent;
    for (s32 i = 0; i < pText.glyphCountGet(); ++i)
    {
        const znCGlyphRect& rect = pText.glyphRectGet(i);
        extent.mLeft = std::min(extent.mLeft, rect.mX);
        extent.mTop = std::min(extent.mTop, rect.mY);
        extent.mRight = std::max(extent.mRight, rect.mX + rect.mWidth);
        extent.mBottom = std::max(extent.mBottom, rect.mY + rect.mHeight);
    }
    return extent;
}
} // namespace

TEST_F(znCGraphicsTextTest, AlignsInTheBox)
{
    for (s32 h = 0; h < 3; ++h)
        for (s32 v = 0; v < 3; ++v)
        {
            SCOPED_TRACE(testing::Message() << h << ", " << v);
            const znCGraphicsText text = textMake("Lamp", 400, 300, h, v);
            const Extent extent = extentGet(text);
            const float free = 400.0f - static_cast<float>(text.widthGet());
            EXPECT_NEAR(extent.mLeft, free * static_cast<float>(h) / 2.0f, 3.0f);
            EXPECT_NEAR(extent.mRight, 400.0f - free * static_cast<float>(2 - h) / 2.0f, 3.0f);
            // The line is 1.3 times as high as the font; the letters hang between its top and its bottom.
            EXPECT_GT(extent.mTop, static_cast<float>(v) * 130.0f);
            EXPECT_LT(extent.mBottom, 300.0f - static_cast<float>(2 - v) * 130.0f);
        }
}

TEST_F(znCGraphicsTextTest, WrapsBetweenWordsAndCutsAWordThatIsWiderThanTheBox)
{
    const std::string word(300, 'm');
    const struct
    {
        const char* mName;
        std::string mText;
        s32 mWidth;
        s32 mLines;
    } cases[] = {
        {"fits", "the lamp", 400, 1},
        {"two words", "the lamp", 100, 2},
        {"spaces hang", "lamp          ", textMake("lamp").widthGet() + 1, 1},
        {"line feeds", "a\nb\r\nc", 400, 3},
        {"empty lines", "a\n\nb\n", 400, 4},
        {"empty", "", 400, 1},
        {"no break space", "the\xC2\xA0lamp", 100, 2},
        {"hyphen", "lamp-lamp", 100, 2},
        {"one letter a line", "mmm", 1, 3},
        {"ideographs", "\xE6\xB8\xAF\xE6\xB8\xAF\xE6\xB8\xAF", 20, 3},
        {"tag", "a<br>b", 400, 2},
    };
    for (const auto& [name, text, width, lines] : cases)
    {
        SCOPED_TRACE(name);
        EXPECT_EQ(textMake(text, width).lineCountGet(), lines);
    }
    const znCGraphicsText cut = textMake(word, 300, 2000);
    EXPECT_EQ(cut.glyphCountGet(), 300);
    EXPECT_LE(cut.widthGet(), 300);
    EXPECT_EQ(cut.lineCountGet(),
              static_cast<s32>(std::ceil(300.0 / std::floor(300.0 / (textMake(word).widthGet() / 300.0)))));
}

TEST_F(znCGraphicsTextTest, TextsOfAllKindsStayInTheirBox)
{
    const char* const texts[] = {
        "Find the lamp, the letters and the captain's watch.",
        "\xD8\xA7\xD9\x84\xD8\xB3\xD9\x81\xD9\x8A\xD9\x86\xD8\xA9 "
        "\xD9\x88\xD8\xA7\xD9\x84\xD8\xA8\xD8\xB1\xD9\x8A\xD8\xAF 25 "
        "\xD9\x88\xD8\xA7\xD9\x84\xD9\x85\xD9\x86\xD8\xA7\xD8\xB1\xD8\xA9 \xD9\x81\xD9\x8A "
        "\xD8\xA7\xD9\x84\xD9\x84\xD9\x8A\xD9\x84",
        "\xE0\xA4\xB8\xE0\xA4\xAE\xE0\xA5\x81\xE0\xA4\xA6\xE0\xA5\x8D\xE0\xA4\xB0 \xE0\xA4\x95\xE0\xA5\x87 "
        "\xE0\xA4\x95\xE0\xA4\xBF\xE0\xA4\xA8\xE0\xA4\xBE\xE0\xA4\xB0\xE0\xA5\x87 "
        "\xE0\xA4\xA6\xE0\xA5\x80\xE0\xA4\xAA\xE0\xA4\x95",
        "\xE0\xB8\x99\xE0\xB9\x89\xE0\xB8\xB3\xE0\xB8\x97\xE0\xB8\xB5\xE0\xB9\x88\xE0\xB8\x97\xE0\xB9\x88\xE0\xB8\xB2"
        "\xE0\xB9\x80\xE0\xB8\xA3\xE0\xB8\xB7\xE0\xB8\xAD\xE0\xB9\x83\xE0\xB8\xAB\xE0\xB8\x8D\xE0\xB9\x88",
        "Z\xCC\x81\xCC\x82\xCC\xA3"
        "a\xCC\x88\xCC\xB1 n\xCC\x83"
        "e\xCC\x81",
        "Lopadotemachoselachogaleokranioleipsanodrimhypotrimmatosilphiokarabomelitokatakechymenokichl",
    };
    const float slack = 4.0f; // a glyph's ink may hang over its advance by that
    for (const char* const text : texts)
    {
        SCOPED_TRACE(text);
        const znCGraphicsText laid = textMake(text, 200, 400, 1, 1);
        const Extent extent = extentGet(laid);
        EXPECT_GT(laid.glyphCountGet(), 5);
        EXPECT_GE(extent.mLeft, -slack);
        EXPECT_LE(extent.mRight, 200.0f + slack);
        EXPECT_GE(extent.mTop, 0.0f);
        EXPECT_LE(extent.mBottom, 400.0f);
    }
    EXPECT_EQ(mPlatform.logCountGet("has no glyph"), 0);
    EXPECT_EQ(mPlatform.logCountGet("does not fit"), 0);
}

TEST_F(znCGraphicsTextTest, ReadsFromRightToLeftWhereItMust)
{
    const char* const alef = "\xD7\x90";
    const char* const bet = "\xD7\x91";
    const auto xGet = [this](const znCGraphicsText& pText, const char* pLetter)
    {
        const s32 glyph = glyphFind(pText, pLetter);
        EXPECT_GE(glyph, 0) << pLetter;
        return glyph < 0 ? 0.0f : pText.glyphRectGet(glyph).mX;
    };
    const znCGraphicsText hebrew = textMake(std::string(alef) + bet + " 17");
    EXPECT_GT(xGet(hebrew, alef), xGet(hebrew, bet));
    EXPECT_GT(xGet(hebrew, bet), xGet(hebrew, "7")) << "a number follows to the left";
    EXPECT_GT(xGet(hebrew, "7"), xGet(hebrew, "1")) << "but reads from left to right";

    const znCGraphicsText mixed = textMake(std::string("w ") + alef + bet + " z");
    EXPECT_LT(xGet(mixed, "w"), xGet(mixed, bet));
    EXPECT_LT(xGet(mixed, bet), xGet(mixed, alef));
    EXPECT_LT(xGet(mixed, alef), xGet(mixed, "z"));

    // Each line is ordered by itself: what is read first stands on the first line.
    const znCGraphicsText lines = textMake(std::string(alef) + alef + alef + alef + " " + bet + bet + bet, 100, 200);
    ASSERT_EQ(lines.lineCountGet(), 2);
    EXPECT_LT(lines.glyphRectGet(glyphFind(lines, alef)).mY + 20.0f, lines.glyphRectGet(glyphFind(lines, bet)).mY);
}

TEST_F(znCGraphicsTextTest, ShapesAsTheScriptAsks)
{
    EXPECT_LT(textMake("AVAVAVAV").widthGet(), textMake("AAAAVVVV").widthGet()) << "kerning";
    EXPECT_EQ(textMake("Z\xCC\x81").widthGet(), textMake("Z").widthGet()) << "a mark takes no room";
    const znCGraphicsText composed = textMake("e\xCC\x81");
    EXPECT_GE(glyphFind(composed, "\xC3\xA9"), 0) << "letter and mark as the one letter that the font has";
    const char* const beh = "\xD8\xA8";
    EXPECT_EQ(glyphFind(textMake(std::string(beh) + beh), beh), -1) << "joined letters have other forms";
    // A vowel sign that is written before the consonant that it follows.
    const znCGraphicsText ki = textMake("\xE0\xA4\x95\xE0\xA4\xBF");
    ASSERT_EQ(ki.glyphCountGet(), 2);
    EXPECT_EQ(glyphFind(ki, "\xE0\xA4\x95"), 1);
}

TEST_F(znCGraphicsTextTest, AMissingLetterIsABoxAndOneLogLine)
{
    const char* const unknown = "\xF4\x8F\xBF\xBD"; // U+10FFFD
    const znCGraphicsText text = textMake(std::string("a") + unknown + unknown + "b");
    ASSERT_EQ(text.glyphCountGet(), 4);
    EXPECT_GT(text.glyphRectGet(1).mWidth, 10.0f);
    const std::vector<u8> box = texelsGet(text, 1);
    EXPECT_EQ(box.front(), 255);
    EXPECT_EQ(box[box.size() / 2], 0);
    EXPECT_GE(text.glyphRectGet(2).mX, text.glyphRectGet(1).mX + text.glyphRectGet(1).mWidth);
    textMake(unknown);
    znCGraphicsFont larger;
    EXPECT_TRUE(larger.load(znCResourceName(sClarendon, znCResourceName::GAME_DATA), 40));
    znCGraphicsText again;
    again.prepare(larger, unknown, 100, 100, 0, 0);
    EXPECT_EQ(mPlatform.logCountGet("U+10FFFD"), 1);
    textMake("\xF4\x8F\xBF\xBC");
    EXPECT_EQ(mPlatform.logCountGet("has no glyph"), 2);
}

TEST_F(znCGraphicsTextTest, FaultyBytesAreReplacedAndTagsTakeNoPlace)
{
    const std::string replaced = "\xEF\xBF\xBD";
    const struct
    {
        std::string mText;
        std::string mAsIf;
    } cases[] = {
        {"a\xFFz", "a" + replaced + "z"},
        {"\xC3", replaced},
        {"\xE2\x82", replaced + replaced},
        {"\xC0\xAF", replaced + replaced},
        {"\xED\xA0\x80", replaced + replaced + replaced},
        {std::string("a\0z", 3), "az"},
        {"a\tz\x1B\r", "a z"},
        {"<b>a</b><i></i><u>z</u>", "az"},
    };
    for (const auto& [text, asIf] : cases)
    {
        SCOPED_TRACE(text);
        EXPECT_EQ(textMake(text).widthGet(), textMake(asIf).widthGet());
        EXPECT_EQ(textMake(text).glyphCountGet(), textMake(asIf).glyphCountGet());
    }
    EXPECT_EQ(textMake("1<2, <c>, <b").glyphCountGet(), 10) << "anything else is shown";
    const znCGraphicsText longest = textMake(std::string(20000, 'a'));
    EXPECT_EQ(longest.glyphCountGet(), znCGraphicsText::sCodePointsMax);
    EXPECT_EQ(mPlatform.logCountGet("too long"), 1);
}

TEST_F(znCGraphicsTextTest, EachGlyphIsDrawnOnceASizeAndAgainForAnotherScale)
{
    znCGraphicsText text = textMake("lamp and lamp");
    const s32 letters = znNFonts::glyphsRasterisedGet();
    textMake("lamp and lamp", 100);
    EXPECT_EQ(znNFonts::glyphsRasterisedGet(), letters);
    EXPECT_FALSE(text.refresh());

    const s32 width = text.widthGet();
    const Extent before = extentGet(text);
    for (const float scale : {1.5f, 0.75f, 1.0f})
    {
        SCOPED_TRACE(scale);
        znNFonts::frameBegin(scale);
        const s32 drawn = znNFonts::glyphsRasterisedGet();
        EXPECT_TRUE(text.refresh());
        EXPECT_FALSE(text.refresh());
        EXPECT_EQ(znNFonts::glyphsRasterisedGet(), drawn + letters);
        EXPECT_EQ(text.widthGet(), width);
        EXPECT_NEAR(extentGet(text).mRight, before.mRight, 2.0f);
        EXPECT_NEAR(extentGet(text).mBottom, before.mBottom, 2.0f);
        for (s32 i = 0; i < text.glyphCountGet(); ++i)
        {
            // As many texels as device pixels, and on whole pixels from the middle of the box.
            const znCGlyphRect& rect = text.glyphRectGet(i);
            EXPECT_EQ(texelsGet(text, i).size(),
                      static_cast<std::size_t>(std::lround(rect.mWidth * scale) * std::lround(rect.mHeight * scale)));
            const float x = (rect.mX - sWide / 2) * scale;
            EXPECT_NEAR(x, std::round(x), 0.01f);
        }
    }
    const float scale = znNFonts::displayScaleGet();
    for (const float bad : {0.0f, -1.0f, NAN})
        znNFonts::frameBegin(bad);
    EXPECT_EQ(znNFonts::displayScaleGet(), scale);
}

TEST_F(znCGraphicsTextTest, AGrowingGlyphTextureKeepsTheGlyphsOfOlderTexts)
{
    const znCGraphicsText text = textMake("lamp");
    std::vector<std::vector<u8>> texels;
    for (s32 i = 0; i < text.glyphCountGet(); ++i)
        texels.push_back(texelsGet(text, i));
    const s32 width = znNFonts::glyphTextureGet()->widthGet();
    for (s32 size = 40; size < 200; size += 20)
    {
        znCGraphicsFont font;
        EXPECT_TRUE(font.load(znCResourceName(sClarendon, znCResourceName::GAME_DATA), size));
        znCGraphicsText large;
        large.prepare(font, "abcdefghijklmnopqrstuvwxyz", sWide, 100, 0, 0);
        EXPECT_EQ(large.glyphCountGet(), 26);
    }
    EXPECT_GT(znNFonts::glyphTextureGet()->widthGet(), width);
    for (s32 i = 0; i < text.glyphCountGet(); ++i)
        EXPECT_EQ(texelsGet(text, i), texels[static_cast<std::size_t>(i)]);
}

TEST_F(znCGraphicsTextTest, AFullGlyphTextureStartsAnewWithTheNextFrame)
{
    mPlatform.mDraw.mSizeLimit = 64;
    znCGraphicsText first = textMake("abcdefghij");
    znCGraphicsText second = textMake("klmn");
    EXPECT_LT(second.glyphCountGet(), 4);
    EXPECT_FALSE(second.refresh()) << "what this frame has queued still needs the glyphs";
    znNGraphics::flush();
    znNFonts::frameBegin(1.0f);
    EXPECT_TRUE(second.refresh());
    EXPECT_EQ(second.glyphCountGet(), 4);
    EXPECT_EQ(mPlatform.logCountGet("glyph texture is full"), 1);
    EXPECT_TRUE(first.refresh());
    znNGraphics::flush();
}

TEST_F(znCGraphicsTextTest, AFaultyFontIsOneLogLineAndItsTextIsStillReadable)
{
    mPlatform.mFiles.fileSet("fonts/rubbish.ttf", "this is no font");
    std::string cut = fontRead("clarendon.ttf");
    cut.resize(cut.size() / 3);
    mPlatform.mFiles.fileSet("fonts/cut.ttf", cut);
    for (const char* const name : {"fonts/missing.ttf", "fonts/rubbish.ttf", "fonts/cut.ttf"})
    {
        SCOPED_TRACE(name);
        znCGraphicsFont font;
        znCGraphicsFont twin;
        const bool loaded = font.load(znCResourceName(name, znCResourceName::GAME_DATA), 30);
        twin.load(znCResourceName(name, znCResourceName::GAME_DATA), 20);
        znCGraphicsText text;
        text.prepare(font, "lamp 5", 400, 100, 1, 1);
        if (!loaded)
        {
            EXPECT_EQ(text.glyphCountGet(), 5);
            EXPECT_EQ(mPlatform.logCountGet(name), 1);
        }
    }
}

TEST_F(znCGraphicsTextTest, TooManyLinesShrinkToFitAndAreLoggedOnce)
{
    znCGraphicsText text;
    for (s32 i = 0; i < 3; ++i)
        text.prepare(mFont, "a\nb\nc", 100, 60, 0, 1);
    EXPECT_EQ(text.glyphCountGet(), 3);
    EXPECT_EQ(text.lineCountGet(), 3);
    EXPECT_GE(extentGet(text).mTop, 0.0f);
    EXPECT_LE(extentGet(text).mBottom, 60.0f);
    EXPECT_EQ(mPlatform.logCountGet("does not fit its box"), 1);
    text.prepare(mFont, "a", 100, 20, 0, 0);
    EXPECT_EQ(mPlatform.logCountGet("does not fit its box"), 1) << "one line is no fault";
    text.prepare(mFont, std::string(5000, 'm'), 100, 60, 0, 2);
    EXPECT_GT(text.glyphCountGet(), 10);
    EXPECT_GE(extentGet(text).mTop, 0.0f);
    EXPECT_LE(extentGet(text).mBottom, 60.0f);
    EXPECT_EQ(mPlatform.logCountGet("does not fit its box"), 2);
}

TEST_F(znCGraphicsTextTest, GrowsWithTheTextScaleWhereThereIsRoom)
{
    struct Case
    {
        const char* mText;
        s32 mWidth;
        s32 mHeight;
        bool mGrows;
        bool mFully; // as far as the scale asks
    };
    const Case cases[] = {
        {"lamp", 400, 100, true, true},
        {"lamp", 1, 100, false, false},     // breaks within the word as it is, and stays
        {"a\nb\nc", 100, 60, false, false}, // had to shrink
        {"mm mm", 400, 20, false, false},   // no higher than the box
    };
    for (const Case& c : cases)
    {
        znCGraphicsText text;
        znNFonts::textScaleSet(1.0f);
        text.prepare(mFont, c.mText, c.mWidth, c.mHeight, 0, 0);
        const s32 width = text.widthGet();
        const s32 lines = text.lineCountGet();
        znNFonts::textScaleSet(1.5f);
        text.prepare(mFont, c.mText, c.mWidth, c.mHeight, 0, 0);
        EXPECT_EQ(text.widthGet() > width, c.mGrows) << c.mText << " " << c.mWidth;
        EXPECT_EQ(text.widthGet() > width * 14 / 10, c.mFully) << c.mText;
        EXPECT_EQ(text.lineCountGet(), lines) << c.mText;
    }
    // A label that just fits grows a little or not at all, and never breaks.
    znCGraphicsText text;
    znNFonts::textScaleSet(1.0f);
    text.prepare(mFont, "Continue", 400, 100, 0, 0);
    const s32 room = text.widthGet() * 5 / 4;
    znNFonts::textScaleSet(1.5f);
    text.prepare(mFont, "Continue", room, 100, 0, 0);
    EXPECT_EQ(text.lineCountGet(), 1);
    EXPECT_LE(text.widthGet(), room);
    znNFonts::textScaleSet(0.0f);
    EXPECT_EQ(znNFonts::textScaleGet(), 1.0f);
    EXPECT_EQ(mPlatform.logCountGet("does not fit its box"), 2);
}

TEST_F(znCGraphicsTextTest, GrowsByAScaleThatWasSetBeforeThereAreFonts)
{
    const s32 width = textMake("lamp").widthGet();
    znNFonts::terminate();
    znNFonts::textScaleSet(1.5f);
    znNFonts::initialise();
    znCGraphicsFont font;
    ASSERT_TRUE(font.load(znCResourceName(sClarendon, znCResourceName::GAME_DATA), 30));
    znCGraphicsText text;
    text.prepare(font, "lamp", sWide, 1000, 0, 0);
    EXPECT_GT(text.widthGet(), width * 14 / 10);
}

TEST(znCGraphicsText, IsEmptyWithoutTheFontLayer)
{
    znCGraphicsFont font;
    EXPECT_FALSE(font.load(znCResourceName(sClarendon, znCResourceName::GAME_DATA), 30));
    znCGraphicsText text;
    text.prepare(font, "lamp", 100, 100, 0, 0);
    EXPECT_EQ(text.glyphCountGet(), 0);
    EXPECT_EQ(text.widthGet(), 0);
    EXPECT_FALSE(text.refresh());
    EXPECT_EQ(znNFonts::glyphTextureGet(), nullptr);
}
