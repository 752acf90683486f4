#include "loader/znCScreen.h"
#include "loader/znCGlContext.h"
#include "loader/znCVirtualWindow.h"

#include <array>
#include <gmock/gmock.h>
#include <memory>

namespace
{
constexpr s32 WIDTH = 64;
constexpr s32 HEIGHT = 48;

using Pixel = std::array<int, 4>;

constexpr u32 colour(u32 pRed, u32 pGreen, u32 pBlue, u32 pAlpha)
{
    return (pAlpha << 24) | (pBlue << 16) | (pGreen << 8) | pRed;
}

class znCScreenTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string error;
        znCDisplayModes modes;
        modes.textParse("100x80");
        ASSERT_TRUE(mContext.create(znCGlContext::Kind::OFFSCREEN, "test", WIDTH, HEIGHT, error)) << error;
        mWindow = std::make_unique<znCVirtualWindow>(WIDTH, HEIGHT, false, modes);
        mScreen = std::make_unique<znCScreen>(mContext.glGet(), *mWindow, true);
        ASSERT_EQ(mScreen->errorGet(), "");
    }

    void quadAdd(u32 pTexture, u32 pBlend, u32 pColour, float pLeft, float pTop, float pRight, float pBottom)
    {
        mPositions.push_back(std::make_unique<std::array<float, 8>>(
            std::array<float, 8>{pLeft, pTop, pLeft, pBottom, pRight, pBottom, pRight, pTop}));
        mScreen->runAdd({pTexture, pBlend, pColour, 4, mPositions.back()->data(), UVS.data(), nullptr});
    }

    Pixel pixelAt(s32 pX, s32 pY)
    {
        u8 bytes[4] = {};
        EXPECT_TRUE(mScreen->pixelsRead(pX, pY, 1, 1, bytes));
        return {bytes[0], bytes[1], bytes[2], bytes[3]};
    }

    // One quad over the whole of a cleared surface.
    Pixel blended(u32 pBeneath, u32 pTexture, u32 pBlend, u32 pColour)
    {
        mScreen->clear(pBeneath);
        quadAdd(pTexture, pBlend, pColour, 0, 0, WIDTH, HEIGHT);
        mScreen->flush();
        return pixelAt(WIDTH / 2, HEIGHT / 2);
    }

    u32 texture(s32 pFormat, std::vector<u8> pBytes)
    {
        return mScreen->texturesGet().create(pFormat, 1, 1, pBytes.data(), static_cast<s32>(pBytes.size()));
    }

    static constexpr std::array<float, 8> UVS = {0, 0, 0, 1, 1, 1, 1, 0};

    znCGlContext mContext;
    std::unique_ptr<znCVirtualWindow> mWindow;
    std::unique_ptr<znCScreen> mScreen;
    std::vector<std::unique_ptr<std::array<float, 8>>> mPositions; // streams live until flush
};

void near(const Pixel& pFound, const Pixel& pExpected, const std::string& pWhat)
{
    for (size_t i = 0; i < pFound.size(); ++i)
        EXPECT_NEAR(pFound[i], pExpected[i], 1) << pWhat << " channel " << i;
}
} // namespace

TEST_F(znCScreenTest, BlendModes)
{
    const u32 beneath = colour(100, 50, 200, 255);
    const u32 half = texture(S3E_DRAW_ABGR_8888, {100, 0, 50, 128}); // premultiplied: straight 200, 0, 100
    const struct
    {
        const char* mName;
        u32 mTexture, mBlend, mColour;
        Pixel mExpected;
    } cases[] = {
        {"none", 0, S3E_DRAW_BLEND_NONE, colour(10, 20, 30, 255), {10, 20, 30, 255}},
        {"alpha, plain", 0, S3E_DRAW_BLEND_ALPHA, colour(200, 100, 0, 128), {150, 75, 100, 255}},
        {"alpha 0", 0, S3E_DRAW_BLEND_ALPHA, colour(200, 100, 0, 0), {100, 50, 200, 255}},
        {"add", 0, S3E_DRAW_BLEND_ADD, colour(100, 100, 100, 128), {150, 100, 250, 255}},
        {"add saturates", 0, S3E_DRAW_BLEND_ADD, colour(255, 0, 255, 255), {255, 50, 255, 255}},
        {"subtract", 0, S3E_DRAW_BLEND_SUBTRACT, colour(100, 100, 100, 128), {50, 0, 150, 255}},
        {"texture", half, S3E_DRAW_BLEND_ALPHA, 0xffffffff, {150, 25, 150, 255}},
        {"texture, tinted", half, S3E_DRAW_BLEND_ALPHA, colour(255, 255, 255, 128), {125, 37, 175, 255}},
        {"unknown number", 0, 77, colour(200, 100, 0, 128), {150, 75, 100, 255}},
    };
    for (const auto& [name, textureId, blend, packed, expected] : cases)
        near(blended(beneath, textureId, blend, packed), expected, name);
}

TEST_F(znCScreenTest, ALaterRunWithAnotherModeDoesntKeepTheOlderOne)
{
    mScreen->clear(colour(0, 0, 0, 255));
    quadAdd(0, S3E_DRAW_BLEND_SUBTRACT, 0xffffffff, 0, 0, 16, 16);
    quadAdd(0, S3E_DRAW_BLEND_ADD, colour(10, 10, 10, 255), 0, 0, 16, 16);
    quadAdd(0, S3E_DRAW_BLEND_NONE, colour(90, 0, 0, 255), 16, 0, 32, 16);
    quadAdd(0, S3E_DRAW_BLEND_ALPHA, colour(0, 0, 255, 255), 32, 0, 48, 16);
    quadAdd(0, S3E_DRAW_BLEND_ADD, colour(5, 0, 0, 255), 32, 0, 48, 16);
    mScreen->flush();
    near(pixelAt(8, 8), {10, 10, 10, 255}, "add after subtract");
    near(pixelAt(24, 8), {90, 0, 0, 255}, "none");
    near(pixelAt(40, 8), {5, 0, 255, 255}, "add after alpha");
}

TEST_F(znCScreenTest, Formats)
{
    const u32 rgb = texture(S3E_DRAW_RGB_888, {10, 20, 30});
    const u32 alpha = texture(S3E_DRAW_ALPHA_8, {128});
    const u32 nothing = mScreen->texturesGet().create(S3E_DRAW_ABGR_8888, 4, 4, nullptr, 16);
    near(blended(colour(0, 0, 0, 255), rgb, S3E_DRAW_BLEND_ALPHA, 0xffffffff), {10, 20, 30, 255}, "rgb");
    near(blended(colour(0, 0, 0, 255), alpha, S3E_DRAW_BLEND_ALPHA, colour(255, 100, 0, 255)), {128, 50, 0, 255},
         "alpha");
    near(blended(colour(9, 8, 7, 255), nothing, S3E_DRAW_BLEND_ALPHA, 0xffffffff), {9, 8, 7, 255}, "no pixels");
    near(blended(colour(0, 0, 0, 255), 999, S3E_DRAW_BLEND_ALPHA, colour(1, 2, 3, 255)), {1, 2, 3, 255}, "unknown");
    mScreen->texturesGet().free(rgb);
    near(blended(colour(0, 0, 0, 255), rgb, S3E_DRAW_BLEND_ALPHA, colour(1, 2, 3, 255)), {1, 2, 3, 255}, "freed");
    EXPECT_EQ(texture(S3E_DRAW_RGB_888, {1, 1, 1}), rgb); // its number is free again
}

TEST_F(znCScreenTest, QuadsFillTheirPixelsWithoutGapsFromTheTopLeft)
{
    mScreen->clear(0);
    quadAdd(0, S3E_DRAW_BLEND_ADD, colour(100, 0, 0, 255), 0, 0, 10, 10);
    quadAdd(0, S3E_DRAW_BLEND_ADD, colour(100, 0, 0, 255), 10, 0, 20, 10);
    mScreen->flush();
    for (s32 x = 0; x < 20; ++x)
        EXPECT_EQ(pixelAt(x, 9), (Pixel{100, 0, 0, 255})) << x;
    EXPECT_EQ(pixelAt(20, 9)[0], 0);
    EXPECT_EQ(pixelAt(0, 10)[0], 0);
    EXPECT_EQ(pixelAt(0, HEIGHT - 1)[0], 0);
}

TEST_F(znCScreenTest, TexturesFilterLinearlyAndClamp)
{
    const u8 texels[] = {0, 0, 0, 255, 200, 200, 200, 255};
    const u32 ramp = mScreen->texturesGet().create(S3E_DRAW_ABGR_8888, 2, 1, texels, 8);
    mScreen->clear(0);
    quadAdd(ramp, S3E_DRAW_BLEND_NONE, 0xffffffff, 0, 0, 40, 10);
    mScreen->flush();
    EXPECT_EQ(pixelAt(0, 5)[0], 0);
    EXPECT_NEAR(pixelAt(19, 5)[0], 97, 3);
    EXPECT_NEAR(pixelAt(14, 5)[0], 47, 3);
    EXPECT_EQ(pixelAt(39, 5)[0], 200);
}

TEST_F(znCScreenTest, UpdatesReplaceTheirRectangleOnly)
{
    znCTextureStore& textures = mScreen->texturesGet();
    const std::vector<u8> black(static_cast<size_t>(8 * 8 * 3), 0);
    const u32 id = textures.create(S3E_DRAW_RGB_888, 8, 8, black.data(), 24);
    std::vector<u8> rows(static_cast<size_t>(2 * 10), 77); // rows of 2 texels, 10 bytes apart
    for (size_t at : {6u, 7u, 8u, 9u, 16u, 17u, 18u, 19u})
        rows[at] = 1; // between the rows: never seen
    EXPECT_TRUE(textures.update(id, 4, 2, 2, 2, rows.data(), 10));
    mScreen->clear(0);
    quadAdd(id, S3E_DRAW_BLEND_NONE, 0xffffffff, 0, 0, 8, 8);
    mScreen->flush();
    for (s32 y = 0; y < 8; ++y)
        for (s32 x = 0; x < 8; ++x)
            EXPECT_EQ(pixelAt(x, y)[0], x >= 4 && x < 6 && y >= 2 && y < 4 ? 77 : 0) << x << " " << y;
    const s32 wrong[][4] = {{7, 0, 2, 1}, {0, 7, 1, 2}, {-1, 0, 1, 1}, {0, 0, 0, 1}, {2147483647, 0, 2, 1}};
    for (const auto& [x, y, width, height] : wrong)
        EXPECT_FALSE(textures.update(id, x, y, width, height, rows.data(), 10)) << x << " " << y;
    EXPECT_FALSE(textures.update(id + 1, 0, 0, 1, 1, rows.data(), 3));
    EXPECT_FALSE(textures.update(id, 0, 0, 1, 1, nullptr, 3));
    const s32 limit = textures.sizeLimitGet();
    EXPECT_EQ(textures.create(S3E_DRAW_ALPHA_8, limit + 1, 1, nullptr, 1), 0u);
    EXPECT_EQ(textures.create(S3E_DRAW_ALPHA_8, 1, 0, nullptr, 1), 0u);
    EXPECT_EQ(textures.create(7, 1, 1, nullptr, 1), 0u);
}

// Indices have 16 bits: behind 16384 quads counting starts again, within one run and between two.
TEST_F(znCScreenTest, MoreQuadsThanIndicesReach)
{
    constexpr s32 COUNT = 40000;
    std::vector<float> positions;
    std::vector<u32> colours;
    for (s32 i = 0; i < COUNT; ++i)
    {
        const auto left = static_cast<float>(i % WIDTH);
        const auto top = static_cast<float>(i / WIDTH % HEIGHT);
        positions.insert(positions.end(), {left, top, left, top + 1, left + 1, top + 1, left + 1, top});
        colours.insert(colours.end(), 4, colour(static_cast<u32>(i) & 0xff, static_cast<u32>(i) >> 8, 7, 255));
    }
    mScreen->clear(0);
    s3eDrawRun run = {0, S3E_DRAW_BLEND_ALPHA, 0, 20000 * 4, positions.data(), nullptr, colours.data()};
    mScreen->runAdd(run);
    run.mPositions += 20000 * 8;
    run.mColours += 20000 * 4;
    mScreen->runAdd(run);
    mScreen->flush();
    for (s32 i = COUNT - WIDTH * HEIGHT; i < COUNT; i += 97)
        ASSERT_EQ(pixelAt(i % WIDTH, i / WIDTH % HEIGHT), (Pixel{i & 0xff, i >> 8, 7, 255})) << i;
}

// Streams that lie side by side and one run behind the other are drawn as packed ones are, and are drawn again when
// they are said to be unchanged, whatever else was drawn in between.
TEST_F(znCScreenTest, UnchangedRunsAreDrawnAgain)
{
    const u32 red = colour(255, 0, 0, 255);
    const u32 green = colour(0, 255, 0, 255);
    s3eDrawVertex vertices[8] = {{0, 0, 0, 0, red},   {0, 8, 0, 1, red},   {8, 8, 1, 1, red},    {8, 0, 1, 0, red},
                                 {8, 0, 0, 0, green}, {8, 8, 0, 1, green}, {16, 8, 1, 1, green}, {16, 0, 1, 0, green}};
    const auto pairDraw = [&](bool pUnchanged)
    {
        mScreen->clear(0);
        for (s32 first : {0, 4})
            mScreen->runAdd({0, S3E_DRAW_BLEND_NONE, 0, 4, &vertices[first].mX, &vertices[first].mU,
                             &vertices[first].mColour, sizeof(s3eDrawVertex), pUnchanged});
        mScreen->flush();
        EXPECT_EQ(pixelAt(4, 4), (Pixel{255, 0, 0, 255}));
        EXPECT_EQ(pixelAt(12, 4), (Pixel{0, 255, 0, 255}));
        EXPECT_EQ(pixelAt(20, 4), (Pixel{0, 0, 0, 0}));
    };
    pairDraw(false);
    pairDraw(true);
    mScreen->present();
    mScreen->clear(0);
    quadAdd(0, S3E_DRAW_BLEND_NONE, red, 20, 0, 28, 8);
    quadAdd(0, S3E_DRAW_BLEND_NONE, red, 40, 0, 48, 8);
    mScreen->flush();
    EXPECT_EQ(pixelAt(44, 4), (Pixel{255, 0, 0, 255}));
    pairDraw(true);

    // A gap between two runs, and a run of each kind.
    mScreen->clear(0);
    quadAdd(0, S3E_DRAW_BLEND_NONE, red, 20, 0, 28, 8);
    mScreen->runAdd(
        {0, S3E_DRAW_BLEND_NONE, 0, 4, &vertices[4].mX, &vertices[4].mU, &vertices[4].mColour, sizeof(s3eDrawVertex)});
    mScreen->flush();
    EXPECT_EQ(pixelAt(24, 4), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(pixelAt(12, 4), (Pixel{0, 255, 0, 255}));
    EXPECT_EQ(pixelAt(4, 4), (Pixel{0, 0, 0, 0}));
}

TEST_F(znCScreenTest, RunsThatDrawNothingHarmNothing)
{
    const float positions[8] = {0, 0, 0, 9, 9, 9, 9, 0};
    mScreen->clear(colour(1, 2, 3, 255));
    mScreen->runAdd({0, S3E_DRAW_BLEND_NONE, 0xffffffff, 4, nullptr, nullptr, nullptr});
    mScreen->runAdd({0, S3E_DRAW_BLEND_NONE, 0xffffffff, 0, positions, nullptr, nullptr});
    mScreen->runAdd({0, S3E_DRAW_BLEND_NONE, 0xffffffff, -4, positions, nullptr, nullptr});
    mScreen->runAdd({0, S3E_DRAW_BLEND_NONE, 0xffffffff, 3, positions, nullptr, nullptr});
    mScreen->flush();
    mScreen->flush();
    EXPECT_EQ(pixelAt(4, 4), (Pixel{1, 2, 3, 255}));
}

TEST_F(znCScreenTest, TheSurfaceFollowsWhatTheModuleAsksFor)
{
    u8 pixel[4];
    mScreen->clear(0);
    EXPECT_FALSE(mScreen->pixelsRead(WIDTH, 0, 1, 1, pixel));
    EXPECT_TRUE(mWindow->sizeSet(200, 100));
    EXPECT_FALSE(mWindow->sizeSet(0, 100));
    EXPECT_FALSE(mWindow->sizeSet(100, 20000));
    mScreen->clear(colour(5, 6, 7, 255));
    EXPECT_EQ(pixelAt(199, 99), (Pixel{5, 6, 7, 255}));
    const s3eWindowMode known = {100, 80, 32, 0, 0};
    const s3eWindowMode unknown = {101, 80, 32, 0, 0};
    EXPECT_FALSE(mWindow->fullScreenSet(&unknown));
    EXPECT_TRUE(mWindow->fullScreenSet(&known));
    EXPECT_TRUE(mWindow->sizeSet(300, 200)); // for later
    EXPECT_EQ(mWindow->surfaceWidthGet(), 100);
    mScreen->clear(colour(8, 8, 8, 255));
    quadAdd(0, S3E_DRAW_BLEND_NONE, colour(9, 9, 9, 255), 99, 79, 100, 80);
    mScreen->present();
    EXPECT_EQ(pixelAt(99, 79), (Pixel{9, 9, 9, 255})); // readable after it was presented
    EXPECT_EQ(pixelAt(98, 79), (Pixel{8, 8, 8, 255}));
    EXPECT_TRUE(mWindow->fullScreenSet(nullptr));
    EXPECT_EQ(mWindow->surfaceWidthGet(), 300);
}
