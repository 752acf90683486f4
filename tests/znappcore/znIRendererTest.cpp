#include "znappcore/znIRenderer.h"

#include "media/znCGraphicsTexture.h"
#include "tests/support/allocationCount.h"
#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/src/znCSpriteRenderData.h"
#include "znappcore/znITextRenderData.h"

#include <limits>

namespace
{
// A text of one glyph run, two glyphs long, in a font that is known by its address alone.
class TextData : public znITextRenderData
{
public:
    explicit TextData(s32 pFont)
    {
        static char sFonts[8];
        mFont = reinterpret_cast<znIFont*>(&sFonts[pFont]);
        mRun.mVertices = mCorners;
        mRun.mUvs = mCorners;
        mRun.mGlyphCount = 2;
        mRun.mMaterial.mColour = 0x11223344u;
    }

    void matrixApply(const znAffineMtx2d&) override {}
    s32 textWidthGet() const override { return 0; }
    void colourSet(const znCColour&) override {}
    const znCGlyphRun* glyphRunGet(s32 pIndex) const override { return pIndex == 0 ? &mRun : nullptr; }

protected:
    void layoutUpdate() override {}
    void alignmentSetDo(s32, s32) override {}

private:
    znPointF mCorners[8] = {{1, 2}, {3, 4}};
    znCGlyphRun mRun;
};

class znIRendererTest : public znCPresentationTest
{
protected:
    znIRendererTest()
    {
        for (const char* name : {"a.png", "b.png", "c.png"})
        {
            imageSet(name, 2, 2, "#");
            mBrushes.push_back(brushGet(name));
            mSprites.emplace_back().brushApply(*mBrushes.back());
        }
        mSprites.push_back(mSprites[0]);
        mSprites.back().alphaModeSet(znCMaterial::BLEND_ADD);
    }

    // Draws a frame of what the letters say: a, b, c sprites by texture, A texture a added, t and u texts by font.
    // Answers the draw calls: the letter and the quads of each.
    std::string frame(const std::string& pLetters)
    {
        znIRenderer& renderer = *znIRenderer::instanceGet();
        renderer.frameClear();
        renderer.frameBegin();
        for (const char letter : pLetters)
            add(letter);
        renderer.frameEnd();
        std::string calls;
        for (const znCTestDraw::Run& run : mCore.mPlatform.mDraw.mPresented)
            calls += letterOf(run) + std::to_string(run.mVertexCount / 4);
        return calls;
    }

    void add(char pLetter)
    {
        znIRenderer& renderer = *znIRenderer::instanceGet();
        if (pLetter == 't' || pLetter == 'u')
            renderer.textAddToBatch(pLetter == 't' ? &mText : &mOtherText);
        else
            renderer.spriteAddToBatch(&mSprites[pLetter == 'A' ? 3 : static_cast<std::size_t>(pLetter - 'a')]);
    }

    std::string letterOf(const znCTestDraw::Run& pRun) const
    {
        if (pRun.mTexture == 0)
            return "t";
        for (std::size_t i = 0; i < mBrushes.size(); ++i)
            if (mBrushes[i]->textureGet()->graphicsTextureGet()->idGet() == pRun.mTexture)
                return std::string(1, static_cast<char>((pRun.mBlend == 4 ? 'a' : 'A') + static_cast<char>(i)));
        return "?";
    }

    std::vector<znCBrushPtr> mBrushes;
    std::vector<znCSpriteRenderData> mSprites;
    TextData mText{0};
    TextData mOtherText{1};
};
} // namespace

TEST_F(znIRendererTest, mergesNeighboursAndKeepsTheOrder)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"a", "a1"},
        {"aaa", "a3"},
        {"aab", "a2b1"},
        {"aba", "a1b1a1"}, // never merged with an earlier run
        {"ata", "a1t2a1"}, // nor across a text
        {"aA", "a1A1"},    // one texture, two alpha modes
        {"aaAAa", "a2A2a1"},
        {"tt", "t2t2"}, // a call for each text
        {"ttuta", "t2t2t2t2a1"},
        {"taabtbu", "t2a2b1t2b1t2"},
        {"abcabc", "a1b1c1a1b1c1"},
    };
    for (const auto& [letters, calls] : cases)
        EXPECT_EQ(frame(letters), calls) << letters;
    EXPECT_EQ(mCore.mPlatform.mDraw.mPresentCount, static_cast<s32>(std::size(cases)));
    EXPECT_EQ(mCore.mPlatform.mDraw.mClearColour, 0xFF000000u);
    EXPECT_EQ(logTake(), "");
}

TEST_F(znIRendererTest, handsStreamsOverInCornerOrder)
{
    const znPointF corners[4] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}};
    mSprites[1].verticesSet(corners);
    mSprites[1].colourSet(znCColour(1.0f, 0.5f, 0.0f, 0.999f));
    mSprites[1].uvsSet(0.1f, 0.2f, 0.3f, 0.4f);
    frame("abt");
    const znCTestDraw::Run& run = mCore.mPlatform.mDraw.mPresented[1];
    EXPECT_EQ(run.mPositions, (std::vector<float>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(run.mUvs, (std::vector<float>{0.1f, 0.3f, 0.1f, 0.4f, 0.2f, 0.4f, 0.2f, 0.3f}));
    EXPECT_EQ(run.mColours, std::vector<u32>(4, 0xFE007FFFu));
    const znCTestDraw::Run& text = mCore.mPlatform.mDraw.mPresented[2];
    EXPECT_EQ(text.mColours, std::vector<u32>(8, 0x11223344u));
}

TEST_F(znIRendererTest, drawsTheStreamsOfAnUnchangedFrameAgain)
{
    const auto unchangedCount = [&](const std::string& pLetters)
    {
        frame(pLetters);
        s32 count = 0;
        for (const znCTestDraw::Run& run : mCore.mPlatform.mDraw.mPresented)
            count += run.mUnchanged;
        return count;
    };
    const znPointF corners[4] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}};
    const std::pair<const char*, s32> cases[] = {{"aatb", 0}, {"aatb", 3}, {"atab", 0}, {"atab", 4}, {"ata", 0},
                                                 {"atab", 0}, {"", 0},     {"atab", 0}, {"atab", 4}};
    for (const auto& [letters, count] : cases)
        EXPECT_EQ(unchangedCount(letters), count) << letters;
    mSprites[1].verticesSet(corners);
    EXPECT_EQ(unchangedCount("atab"), 0);
    EXPECT_EQ(mCore.mPlatform.mDraw.mPresented[3].mPositions[6], 7.0f);
    EXPECT_EQ(unchangedCount("atab"), 4);
    mSprites[0] = znCSpriteRenderData(mSprites[1]);
    EXPECT_EQ(unchangedCount("atab"), 0);
    EXPECT_EQ(mCore.mPlatform.mDraw.mPresented[0].mPositions[6], 7.0f);
}

TEST_F(znIRendererTest, packsColoursOfAnyComponents)
{
    EXPECT_EQ(znCSpriteRenderData::colourPack(znCColour(-1.0f, 2.0f, 1.0f, 0.0f)), 0x00FFFF00u);
    EXPECT_EQ(znCSpriteRenderData::colourPack(znCColour(std::numeric_limits<float>::quiet_NaN(), 0.0f, 0.0f, 1.0f)),
              0xFF000000u);
}

TEST_F(znIRendererTest, dropsWhatIsTooMuchAndDrawsTheRest)
{
    EXPECT_EQ(frame(std::string(1025, 'a')), "a1023");
    EXPECT_EQ(mCore.mPlatform.logCountGet("No room to batch another sprite. Increase mMaxSprites."), 1);
    logTake();
    frame(std::string(1024, 't') + "a");
    EXPECT_EQ(mCore.mPlatform.mDraw.mPresented.size(), 1024u);
    EXPECT_EQ(mCore.mPlatform.logCountGet("No room to batch another text. Increase mMaxSprites."), 1);

    znIRenderer::destroy();
    znIRenderer::create(100, 3);
    EXPECT_EQ(frame("abcat"), "a1b1c1t2");
    EXPECT_EQ(frame("tatbtutc"), "t2a1t2b1t2t2c1"); // the other font has no room
    EXPECT_EQ(frame("ab"), "a1b1");

    znIRenderer::destroy();
    logTake();
    znIRenderer::create(0, -1);
    EXPECT_EQ(frame("a"), "");
    const std::string log = logTake();
    EXPECT_NE(log.find("pMaxSprites needs to be greater than 0!"), std::string::npos);
    EXPECT_NE(log.find("pMaxMaterialChanges needs to be greater than 0!"), std::string::npos);
}

TEST_F(znIRendererTest, keepsToFramesWhateverTheOrderOfCalls)
{
    znIRenderer& renderer = *znIRenderer::instanceGet();
    add('a'); // belongs to no frame
    add('t');
    EXPECT_EQ(frame("b"), "b1");
    renderer.frameEnd(); // without a beginning
    renderer.frameBegin();
    add('c');
    renderer.frameBegin(); // once is enough
    renderer.frameEnd();
    EXPECT_EQ(letterOf(mCore.mPlatform.mDraw.mPresented.back()), "c");
    renderer.frameBegin();
    add('a'); // dies with the renderer
}

TEST_F(znIRendererTest, takesNothingFromTheHeapOnceTheFullestFrameHasBeen)
{
    mCore.mPlatform.mDraw.mRecording = false;
    const std::string letters = "aabbctaAtutaabbcccabcabcabcabcttttt" + std::string(500, 'b');
    frame(letters);
    frame(letters);
    const std::size_t before = allocationCountGet();
    for (s32 i = 0; i < 10; ++i)
    {
        frame(letters);
        frame("ab");
    }
    EXPECT_EQ(allocationCountGet(), before);
}

TEST_F(znIRendererTest, holdsTwoLights)
{
    znIRenderer& renderer = *znIRenderer::instanceGet();
    znCLight lights[3];
    for (znCLight& light : lights)
        renderer.lightAdd(light);
    EXPECT_EQ(lights[0].mIndex, 0);
    EXPECT_EQ(lights[1].mIndex, 1);
    EXPECT_EQ(lights[2].mIndex, 1);
    EXPECT_NE(logTake().find("only 2 lights are supported."), std::string::npos);
    renderer.lightRemove(lights[0]);
    renderer.lightRemove(lights[0]); // in no slot any more
    EXPECT_EQ(lights[0].mIndex, 0x7FFFFFFF);
    renderer.lightAdd(lights[0]);
    EXPECT_EQ(lights[0].mIndex, 0);
}
