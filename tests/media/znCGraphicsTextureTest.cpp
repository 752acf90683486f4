#include "media/znCGraphicsTexture.h"

#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "media/znNGraphics.h"
#include "tests/support/znCTestPlatform.h"
#include "zncore/debug/znIDebug.h"

namespace
{
using Bytes = std::vector<u8>;

class znCGraphicsTextureTest : public ::testing::Test
{
protected:
    znCGraphicsTextureTest()
    {
        znIDebug::create();
        znNGraphics::initialise();
    }
    ~znCGraphicsTextureTest() override
    {
        EXPECT_TRUE(mPlatform.mDraw.mTextures.empty());
        EXPECT_TRUE(mPlatform.mDraw.mFaults.empty());
        znNGraphics::terminate();
        znIDebug::destroy();
    }

    const znCTestDraw::Texture& recordedGet(const znCGraphicsTexture& pTexture)
    {
        return mPlatform.mDraw.mTextures.at(pTexture.idGet());
    }

    znCTestPlatform mPlatform;
};

znCImage imageMake(znEImageFormat pFormat, s32 pWidth, s32 pHeight, const Bytes& pPixels)
{
    znCImage image;
    if (image.create(pFormat, pWidth, pHeight))
        std::memcpy(image.pixelsGet(), pPixels.data(), pPixels.size());
    return image;
}
} // namespace

TEST_F(znCGraphicsTextureTest, EveryFormatArrivesRedFirstAndPremultiplied)
{
    const struct
    {
        znEImageFormat mFormat;
        Bytes mPixel;
        s32 mTableFormat;
        Bytes mUploaded;
        bool mAlpha;
    } cases[] = {
        {ZN_IMAGE_ABGR_8888, {255, 100, 2, 128}, S3E_DRAW_ABGR_8888, {128, 50, 1, 128}, true},
        {ZN_IMAGE_ARGB_8888, {2, 100, 255, 128}, S3E_DRAW_ABGR_8888, {128, 50, 1, 128}, true},
        {ZN_IMAGE_RGB_888, {1, 2, 3}, S3E_DRAW_RGB_888, {1, 2, 3}, false},
        {ZN_IMAGE_BGR_888, {3, 2, 1}, S3E_DRAW_RGB_888, {1, 2, 3}, false},
        {ZN_IMAGE_ALPHA_8, {77}, S3E_DRAW_ALPHA_8, {77}, false},
    };
    for (const auto& [format, pixel, tableFormat, uploaded, alpha] : cases)
    {
        SCOPED_TRACE(format);
        znCImage image = imageMake(format, 1, 1, pixel);
        znCGraphicsTexture texture;
        EXPECT_TRUE(texture.upload(image, "pixel"));
        EXPECT_EQ(texture.formatGet(), format);
        EXPECT_EQ(texture.hasAlpha(), alpha);
        EXPECT_EQ(recordedGet(texture).mFormat, tableFormat);
        EXPECT_EQ(recordedGet(texture).mPixels, uploaded);
    }
}

TEST_F(znCGraphicsTextureTest, ALargePictureIsShrunkButKeepsItsSizeForUvs)
{
    mPlatform.mDraw.mSizeLimit = 16;
    znCImage image = imageMake(ZN_IMAGE_RGB_888, 64, 32, Bytes(64 * 32 * 3, 5));
    znCGraphicsTexture texture;
    EXPECT_TRUE(texture.upload(image, "large.png"));
    EXPECT_EQ(texture.widthGet(), 64);
    EXPECT_EQ(texture.heightGet(), 32);
    EXPECT_EQ(recordedGet(texture).mWidth, 16);
    EXPECT_EQ(recordedGet(texture).mHeight, 8);
    EXPECT_EQ(mPlatform.logCountGet("large.png"), 1);
}

TEST_F(znCGraphicsTextureTest, ARefusedTextureIsOneLogLineAndAnotherTryWorks)
{
    mPlatform.mDraw.mCreateFailCount = 1;
    znCImage image = imageMake(ZN_IMAGE_RGB_888, 1, 1, {1, 2, 3});
    znCGraphicsTexture texture;
    EXPECT_FALSE(texture.upload(image, "refused.png"));
    EXPECT_EQ(texture.idGet(), 0u);
    EXPECT_EQ(texture.widthGet(), 1);
    EXPECT_EQ(mPlatform.logCountGet("refused.png"), 1);
    EXPECT_TRUE(texture.upload(image, "refused.png"));
    EXPECT_EQ(mPlatform.mDraw.mTextures.size(), 1u);
    znCImage none;
    EXPECT_FALSE(texture.upload(none, "none")) << "no picture";
}

TEST_F(znCGraphicsTextureTest, Alpha8UpdateReachesOnlyWhatLiesInside)
{
    znCGraphicsTexture texture;
    EXPECT_TRUE(texture.alpha8Upload(nullptr, 4, 2, 0));
    const Bytes texels = {1, 2, 0, 3, 4, 0};
    texture.alpha8Update(1, 0, 2, 2, texels.data(), 3);
    const Bytes expected = {0, 1, 2, 0, 0, 3, 4, 0};
    EXPECT_EQ(recordedGet(texture).mPixels, expected);
    const s32 outside[][4] = {{-1, 0, 1, 1}, {0, -1, 1, 1},         {3, 0, 2, 1},
                              {0, 1, 1, 2},  {0, 0, 0x7FFFFFFF, 1}, {0, 0, 0, 1}};
    for (const auto& area : outside)
        texture.alpha8Update(area[0], area[1], area[2], area[3], texels.data(), 3);
    EXPECT_EQ(recordedGet(texture).mPixels, expected);
}
