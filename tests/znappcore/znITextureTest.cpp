#include "znappcore/znITexture.h"

#include "tests/znappcore/znCPresentationTest.h"
#include "znappcore/impl/platform/znNHitBits.h"
#include "znappcore/src/znCSpriteRenderData.h"

namespace
{
class znITextureTest : public znCPresentationTest
{
protected:
    znITexturePtr textureMake(s32 pWidth, s32 pHeight, const std::string& pAlpha, bool pHitMap = true)
    {
        imageSet("picture.png", pWidth, pHeight, pAlpha);
        return znITexture::textureCreate(znCResourceName("picture.png", 0), pHitMap);
    }
};

// Alpha values with every kind of neighbour, 0 among them.
std::vector<u8> pixelsMake(std::size_t pCount)
{
    std::vector<u8> pixels(pCount * 4, 99);
    u32 noise = 7;
    for (std::size_t i = 0; i < pCount; ++i)
    {
        noise = noise * 1664525u + 1013904223u;
        pixels[i * 4 + 3] = static_cast<u8>((noise >> 24) % 3 == 0 ? 0 : (noise >> 16) % 2 == 0 ? 1 : noise >> 24);
    }
    return pixels;
}
} // namespace

TEST(znNHitBitsTest, setsOneBitAPixelFromAnyBitOn)
{
    for (std::size_t first = 0; first < 9; ++first)
        for (const std::size_t count : {0, 1, 2, 7, 8, 9, 15, 16, 17, 64, 100})
        {
            const std::vector<u8> pixels = pixelsMake(count);
            std::vector<u8> bits((first + count + 7) / 8 + 1, 0);
            std::vector<u8> expected = bits;
            for (std::size_t k = 0; k < count; ++k)
                if (pixels[k * 4 + 3] != 0)
                    expected[(first + k) / 8] |= static_cast<u8>(1 << (first + k) % 8);
            znNHitBits::alphaBitsSet(bits.data(), first, pixels.data(), count);
            EXPECT_EQ(bits, expected) << first << " " << count;

            std::vector<u8> solid(bits.size(), 0);
            std::vector<u8> solidExpected = solid;
            for (std::size_t k = first; k < first + count; ++k)
                solidExpected[k / 8] |= static_cast<u8>(1 << k % 8);
            znNHitBits::bitsSet(solid.data(), first, count);
            EXPECT_EQ(solid, solidExpected) << first << " " << count;
        }
}

TEST_F(znITextureTest, isHitWhereAlphaIsNotZero)
{
    // Rows that end within a byte, and an alpha of 1.
    const znITexturePtr texture = textureMake(3, 3,
                                              "#.-"
                                              ".#."
                                              "..#");
    const std::vector<std::string> expected = {"101", "010", "001"};
    for (s32 y = 0; y < 3; ++y)
        for (s32 x = 0; x < 3; ++x)
            EXPECT_EQ(texture->hitTest({x, y}),
                      expected[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '1')
                << x << " " << y;
    EXPECT_EQ(logTake(), "");
}

TEST_F(znITextureTest, agreesWithItsPixelsAtAnyWidth)
{
    for (const s32 width : {1, 7, 8, 13, 16, 33})
    {
        const znITexturePtr texture = textureMake(width, 5, "#..-##.#-..");
        for (s32 i = 0; i < width * 5; ++i)
            EXPECT_EQ(texture->hitTest({i % width, i / width}),
                      std::string("#..-##.#-..")[static_cast<std::size_t>(i) % 11] != '.')
                << width << " " << i;
    }
}

TEST_F(znITextureTest, isSolidWithoutAnAlphaChannel)
{
    const znNTestImages::Bytes file = znNTestImages::jpegMake(5, 3, znNTestImages::Bytes(45, 200));
    mCore.mPlatform.mFiles.fileSet("photo.jpg", std::string(file.begin(), file.end()));
    const znITexturePtr texture = znITexture::textureCreate(znCResourceName("photo.jpg", 0), true);
    EXPECT_FALSE(texture->hasAlpha());
    for (s32 i = 0; i < 15; ++i)
        EXPECT_TRUE(texture->hitTest({i % 5, i / 5}));
}

TEST_F(znITextureTest, answersFalseAndLogsBeyondWhatItKnows)
{
    const znITexturePtr texture = textureMake(4, 2, "#");
    for (const znPoint& point :
         {znPoint(-1, 0), znPoint(0, -1), znPoint(4, 0), znPoint(0, 2), znPoint(2147483647, 2147483647)})
    {
        EXPECT_FALSE(texture->hitTest(point));
        EXPECT_NE(logTake().find("Attempting to test a hit point outside the bounds of the texture."),
                  std::string::npos);
    }
    EXPECT_FALSE(textureMake(4, 2, "#", false)->hitTest({0, 0}));
    EXPECT_NE(logTake().find("Attempting to perform a hit text on a znITexture that does not have a hit map."),
              std::string::npos);
    EXPECT_EQ(texture->alphaValueGet(0, 0), 255);
    EXPECT_NE(logTake().find("Trying to read image data after it has been uploaded to VRAM."), std::string::npos);
}

TEST_F(znITextureTest, standsInForABrokenFileWithOneLogLine)
{
    mCore.mPlatform.mFiles.fileSet("broken.png", "no picture");
    for (const char* name : {"broken.png", "missing.png"})
    {
        const znITexturePtr texture = znITexture::textureCreate(znCResourceName(name, 0), true);
        EXPECT_TRUE(texture->isDefaultPicture());
        EXPECT_GT(texture->widthGet(), 0);
        EXPECT_TRUE(texture->hitTest({0, 0}));
        const std::string log = logTake();
        EXPECT_NE(log.find(name), std::string::npos) << log;
        EXPECT_EQ(std::count(log.begin(), log.end(), '\r'), 1) << log;
    }
}

TEST_F(znITextureTest, keepsItsSizeWhenTheDeviceHoldsLess)
{
    mCore.mPlatform.mDraw.mSizeLimit = 8;
    const znITexturePtr texture = textureMake(32, 16, "#.");
    const auto& held = mCore.mPlatform.mDraw.mTextures.begin()->second;
    EXPECT_LE(held.mWidth, 8);
    EXPECT_EQ(texture->widthGet(), 32);
    EXPECT_TRUE(texture->hitTest({30, 15}));
    EXPECT_FALSE(texture->hitTest({31, 15}));

    znCBrush brush;
    brush.init("half", texture, 16, 0, 16, 16);
    znCSpriteRenderData data;
    data.brushApply(brush);
    EXPECT_EQ(data.uvsGet()[0].mX, 0.5f);
    EXPECT_EQ(data.uvsGet()[2].mX, 1.0f);
    EXPECT_EQ(data.uvsGet()[2].mY, 1.0f);
}

TEST_F(znITextureTest, givesAlpha8DataOfAnyRectangle)
{
    const znITexturePtr source = textureMake(20, 40, "#");
    struct Case
    {
        s32 mX, mY, mWidth, mHeight;
        s32 mTexWidth, mTexHeight;
        s32 mSet; // bytes that are 255
    };
    for (const Case& c :
         {Case{0, 0, 20, 40, 32, 64, 800}, Case{0, 0, 3, 16, 16, 16, 48}, Case{0, 0, 17, 1, 32, 16, 17},
          Case{10, 30, 20, 20, 32, 32, 100}, Case{-5, -5, 10, 10, 16, 16, 25}, Case{50, 50, 10, 10, 16, 16, 0},
          Case{2147483647, 0, 10, 10, 16, 16, 0}, Case{0, 0, -4, 2147483647, 16, 8192, 0}})
    {
        s32 width = 0;
        s32 height = 0;
        const auto data = znITexture::alpha8TexDataGet(source, c.mX, c.mY, c.mWidth, c.mHeight, &width, &height);
        EXPECT_EQ(width, c.mTexWidth);
        EXPECT_EQ(height, c.mTexHeight);
        EXPECT_EQ(std::count(data.get(), data.get() + width * height, 255), c.mSet) << c.mX << " " << c.mWidth;
    }
    EXPECT_EQ(logTake(), "");

    s32 width = 0;
    s32 height = 0;
    znITexture::alpha8TexDataGet(textureMake(4, 4, "#", false), 0, 0, 4, 4, &width, &height);
    const std::string log = logTake();
    EXPECT_NE(log.find("Source texture does not have a hitmap."), std::string::npos);
    EXPECT_EQ(std::count(log.begin(), log.end(), '\r'), 2) << log;
}

TEST_F(znITextureTest, makesAnAlpha8TextureLargerThanItsSize)
{
    const znITexturePtr texture = znITexture::alpha8TextureCreate(textureMake(20, 40, "#."), 0, 0, 20, 40);
    EXPECT_EQ(texture->widthGet(), 20);
    EXPECT_EQ(texture->heightGet(), 40);
    EXPECT_EQ(texture->gpuWidthGet(), 32);
    EXPECT_EQ(texture->gpuHeightGet(), 64);
    const auto& held = mCore.mPlatform.mDraw.mTextures.rbegin()->second;
    EXPECT_EQ(held.mFormat, S3E_DRAW_ALPHA_8);
    EXPECT_EQ(held.mPixels[0], 255);
    EXPECT_EQ(held.mPixels[1], 0);
}
