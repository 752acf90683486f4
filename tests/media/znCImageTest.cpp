#include "media/znCImage.h"

#include <cstring>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/znCTestPlatform.h"
#include "tests/support/znNTestImages.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"

namespace
{
using znNTestImages::Bytes;
using znNTestImages::PngParts;

Bytes pixelsGet(const znCImage& pImage)
{
    Bytes pixels;
    const s32 rowBytes = pImage.widthGet() * znCImage::pixelBytesGet(pImage.formatGet());
    for (s32 y = 0; y < pImage.heightGet(); ++y)
    {
        const u8* row = pImage.pixelsGet() + static_cast<std::ptrdiff_t>(y) * pImage.pitchGet();
        pixels.insert(pixels.end(), row, row + rowBytes);
    }
    return pixels;
}

bool isDefault(const znCImage& pImage)
{
    znCImage expected;
    expected.defaultMake();
    return pImage.formatGet() == ZN_IMAGE_RGB_888 && pixelsGet(pImage) == pixelsGet(expected);
}

znCImage imageMake(znEImageFormat pFormat, s32 pWidth, s32 pHeight, const Bytes& pPixels)
{
    znCImage image;
    if (image.create(pFormat, pWidth, pHeight))
        std::memcpy(image.pixelsGet(), pPixels.data(), pPixels.size());
    return image;
}

Bytes rampMake(s32 pWidth, s32 pHeight)
{
    Bytes pixels;
    for (s32 i = 0; i < pWidth * pHeight * 3; ++i)
        pixels.push_back(static_cast<u8>(i / 12));
    return pixels;
}

class znCImageTest : public ::testing::Test
{
protected:
    znCImageTest() { znIDebug::create(); }
    ~znCImageTest() override { znIDebug::destroy(); }

    znCTestPlatform mPlatform;
};
} // namespace

TEST_F(znCImageTest, EveryKindOfPngBecomesRedGreenBlueWithAlphaWhereItHasAny)
{
    const Bytes palette = {255, 0, 0, 0, 255, 0, 0, 0, 255};
    const struct
    {
        const char* mName;
        PngParts mParts;
        Bytes mPixels;
    } cases[] = {
        {"grey", {2, 1, 8, 0, 0, {0, 10, 200}}, {10, 10, 10, 200, 200, 200}},
        {"grey of 1 bit", {3, 1, 1, 0, 0, {0, 0xA0}}, {255, 255, 255, 0, 0, 0, 255, 255, 255}},
        {"grey of 16 bits", {1, 1, 16, 0, 0, {0, 0x80, 0x12}}, {0x80, 0x80, 0x80}},
        {"grey with a transparent value",
         {2, 1, 8, 0, 0, {0, 10, 200}, {{"tRNS", {0, 10}}}},
         {10, 10, 10, 0, 200, 200, 200, 255}},
        {"RGB", {2, 1, 8, 2, 0, {0, 1, 2, 3, 4, 5, 6}}, {1, 2, 3, 4, 5, 6}},
        {"RGB of 16 bits", {1, 1, 16, 2, 0, {0, 1, 0, 2, 0, 3, 0}}, {1, 2, 3}},
        {"RGB with a transparent colour",
         {2, 1, 8, 2, 0, {0, 1, 2, 3, 4, 5, 6}, {{"tRNS", {0, 1, 0, 2, 0, 3}}}},
         {1, 2, 3, 0, 4, 5, 6, 255}},
        {"palette", {3, 1, 8, 3, 0, {0, 2, 0, 1}, {{"PLTE", palette}}}, {0, 0, 255, 255, 0, 0, 0, 255, 0}},
        {"palette of 2 bits with alpha",
         {3, 1, 2, 3, 0, {0, 0x84}, {{"PLTE", palette}, {"tRNS", {7, 8}}}},
         {0, 0, 255, 255, 255, 0, 0, 7, 0, 255, 0, 8}},
        {"grey with alpha", {1, 1, 8, 4, 0, {0, 10, 20}}, {10, 10, 10, 20}},
        {"RGBA", {1, 2, 8, 6, 0, {0, 1, 2, 3, 4, 0, 5, 6, 7, 0}}, {1, 2, 3, 4, 5, 6, 7, 0}},
        {"RGBA of 16 bits", {1, 1, 16, 6, 0, {0, 1, 9, 2, 9, 3, 9, 4, 9}}, {1, 2, 3, 4}},
        {"interlaced",
         {2, 2, 8, 2, 1, {0, 1, 2, 3, 0, 4, 5, 6, 0, 7, 8, 9, 10, 11, 12}},
         {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}},
    };
    for (const auto& [name, parts, pixels] : cases)
    {
        SCOPED_TRACE(name);
        const Bytes file = znNTestImages::pngMake(parts);
        znCImage image;
        EXPECT_TRUE(image.decode(file.data(), file.size(), name));
        EXPECT_EQ(image.widthGet(), static_cast<s32>(parts.mWidth));
        EXPECT_EQ(image.heightGet(), static_cast<s32>(parts.mHeight));
        const bool alpha = pixels.size() == std::size_t{parts.mWidth} * parts.mHeight * 4;
        EXPECT_EQ(image.formatGet(), alpha ? ZN_IMAGE_ABGR_8888 : ZN_IMAGE_RGB_888);
        EXPECT_EQ(pixelsGet(image), pixels);
        EXPECT_EQ(mPlatform.logCountGet(name), 0);
    }
}

TEST_F(znCImageTest, JpegComesCloseToItsPicture)
{
    const Bytes pixels = rampMake(33, 21);
    for (const bool progressive : {false, true})
    {
        SCOPED_TRACE(progressive);
        const Bytes file = znNTestImages::jpegMake(33, 21, pixels, progressive);
        znCImage image;
        ASSERT_TRUE(image.decode(file.data(), file.size(), "ramp"));
        ASSERT_EQ(image.formatGet(), ZN_IMAGE_RGB_888);
        EXPECT_THAT(
            pixelsGet(image),
            testing::Pointwise(testing::Truly([](const auto& pPair)
                                              { return std::abs(std::get<0>(pPair) - std::get<1>(pPair)) < 12; }),
                               pixels));
    }
}

TEST_F(znCImageTest, AFaultyFileIsOneLogLineAndTheDefaultPicture)
{
    const Bytes png = znNTestImages::pngMake(33, 21, Bytes(33 * 21 * 4, 77));
    const Bytes jpeg = znNTestImages::jpegMake(33, 21, rampMake(33, 21));
    const auto cut = [](Bytes pFile, std::size_t pSize)
    {
        pFile.resize(pSize);
        return pFile;
    };
    const auto changed = [](Bytes pFile, std::size_t pAt, u8 pByte)
    {
        pFile[pAt] = pByte;
        return pFile;
    };
    // The frame header of the JPEG: height and width two bytes each.
    std::size_t frame = 2;
    while (jpeg[frame] != 0xFF || jpeg[frame + 1] != 0xC0)
        ++frame;
    const auto jpegSized = [&](u8 pHigh)
    {
        return changed(changed(jpeg, frame + 5, pHigh), frame + 7, pHigh);
    };

    const struct
    {
        const char* mName;
        Bytes mFile;
    } cases[] = {
        {"empty.png", {}},
        {"text.png", {'h', 'e', 'l', 'l', 'o'}},
        {"signature.png", cut(png, 8)},
        {"halfHeader.png", cut(png, 20)},
        {"noData.png", cut(png, 33)},
        {"halfData.png", cut(png, png.size() - 25)},
        {"checkSum.png", changed(png, 45, static_cast<u8>(png[45] ^ 1))},
        {"dimensions.png", znNTestImages::pngMake({8193, 1, 8, 0, 0, Bytes(8194)})},
        {"noPixels.png", znNTestImages::pngMake({0, 1, 8, 0, 0, {0}})},
        {"hugeDimensions.png", znNTestImages::pngMake({0x7FFFFFFF, 0x7FFFFFFF, 8, 6, 0, {0}})},
        {"tooFewRows.png", znNTestImages::pngMake({100, 100, 8, 6, 0, Bytes(401)})},
        {"filter.png", znNTestImages::pngMake({1, 1, 8, 0, 0, {9, 1}})},
        {"noPalette.png", znNTestImages::pngMake({1, 1, 8, 3, 0, {0, 0}})},
        {"colourType.png", znNTestImages::pngMake({1, 1, 8, 5, 0, {0, 5}})},
        {"start.jpg", cut(jpeg, 3)},
        {"header.jpg", cut(jpeg, frame + 12)},
        {"half.jpg", cut(jpeg, jpeg.size() / 2)},
        {"almost.jpg", cut(jpeg, jpeg.size() - 12)},
        {"largest.jpg", jpegSized(0xFF)},
        {"large.jpg", jpegSized(0x1F)},
    };
    for (const auto& [name, file] : cases)
    {
        SCOPED_TRACE(name);
        const znCResourceName resource(name, znCResourceName::GAME_DATA);
        mPlatform.mFiles.fileSet(resource.nameGet(), std::string(file.begin(), file.end()));
        znCImage image;
        EXPECT_FALSE(image.load(resource));
        EXPECT_TRUE(isDefault(image));
        EXPECT_EQ(mPlatform.logCountGet(resource.nameGet()), 1);
    }
}

TEST_F(znCImageTest, AMissingOrUnreadableFileIsOneLogLineAndTheDefaultPicture)
{
    znCImage image;
    EXPECT_FALSE(image.load(znCResourceName("nowhere.png", znCResourceName::GAME_DATA)));
    EXPECT_TRUE(isDefault(image));
    EXPECT_EQ(image.widthGet() % 2 + image.heightGet() % 2, 0);
    EXPECT_EQ(mPlatform.logCountGet("nowhere.png"), 1);

    const Bytes file = znNTestImages::pngMake(2, 2, Bytes(16, 9));
    mPlatform.mFiles.fileSet("broken.png", std::string(file.begin(), file.end()));
    mPlatform.mFiles.faultSet(znCTestFiles::Operation::read, 1);
    EXPECT_FALSE(image.load(znCResourceName("broken.png", znCResourceName::GAME_DATA)));
    EXPECT_TRUE(isDefault(image));
    EXPECT_EQ(mPlatform.logCountGet("broken.png"), 1);
    EXPECT_EQ(mPlatform.mFiles.openCountGet(), 1) << "the log alone";
    EXPECT_TRUE(image.load(znCResourceName("broken.png", znCResourceName::GAME_DATA)));
    EXPECT_EQ(image.widthGet(), 2);
}

TEST_F(znCImageTest, TextsOfAPngAreSkippedAndAFloodOfThemEndsTheFile)
{
    PngParts parts = {1, 1, 8, 0, 0, {0, 50}, {{"tEXt", Bytes(100000, 'x')}}};
    parts.mChunks[0].second[3] = 0; // between key and text
    const Bytes some = znNTestImages::pngMake(parts);
    znCImage image;
    EXPECT_TRUE(image.decode(some.data(), some.size(), "some"));

    Bytes bomb = znNTestImages::deflate(Bytes(40 * 1024 * 1024));
    bomb.insert(bomb.begin(), {'x', 0, 0}); // key, end of key, method
    parts.mChunks = {{"zTXt", bomb}};
    const Bytes flood = znNTestImages::pngMake(parts);
    EXPECT_LT(flood.size(), 100000u);
    EXPECT_FALSE(image.decode(flood.data(), flood.size(), "flood"));
    EXPECT_TRUE(isDefault(image));
    EXPECT_EQ(mPlatform.logCountGet("flood"), 1);
}

TEST_F(znCImageTest, CreateRefusesSizesBeyondTheLimits)
{
    const struct
    {
        znEImageFormat mFormat;
        s32 mWidth, mHeight;
        bool mCreated;
    } cases[] = {
        {ZN_IMAGE_ALPHA_8, 1, 1, true},        {ZN_IMAGE_ALPHA_8, 8192, 2, true}, {ZN_IMAGE_ALPHA_8, 8193, 1, false},
        {ZN_IMAGE_ALPHA_8, 1, 8193, false},    {ZN_IMAGE_ALPHA_8, 0, 1, false},   {ZN_IMAGE_ALPHA_8, 1, -1, false},
        {ZN_IMAGE_RGB_888, 1 << 30, 4, false}, {ZN_IMAGE_NONE, 1, 1, false},
    };
    for (const auto& [format, width, height, created] : cases)
    {
        SCOPED_TRACE(testing::Message() << width << " x " << height);
        znCImage image;
        EXPECT_EQ(image.create(format, width, height), created);
        EXPECT_EQ(image.pixelsGet() != nullptr, created);
    }
}

TEST_F(znCImageTest, PremultiplyRoundsEveryColourToTheNearest)
{
    znCImage image = imageMake(ZN_IMAGE_ABGR_8888, 256, 256, Bytes(256 * 256 * 4));
    for (s32 i = 0; i < 256 * 256; ++i)
    {
        const u8 pixel[4] = {static_cast<u8>(i), static_cast<u8>(255 - i), static_cast<u8>(i ^ 85),
                             static_cast<u8>(i >> 8)};
        std::memcpy(image.pixelsGet() + 4 * i, pixel, 4);
    }
    image.alphaPremultiply();
    const auto expected = [](s32 pColour, s32 pAlpha)
    {
        return ((pColour & 255) * pAlpha * 2 + 255) / 510;
    };
    for (s32 i = 0; i < 256 * 256; ++i)
    {
        const u8* pixel = image.pixelsGet() + 4 * i;
        const s32 alpha = i >> 8;
        ASSERT_EQ(pixel[0], expected(i, alpha)) << i;
        ASSERT_EQ(pixel[1], expected(255 - i, alpha)) << i;
        ASSERT_EQ(pixel[2], expected(i ^ 85, alpha)) << i;
        ASSERT_EQ(pixel[3], alpha) << i;
    }
}

TEST_F(znCImageTest, ScaleDownKeepsProportionAndAverages)
{
    const struct
    {
        s32 mWidth, mHeight, mSideMax, mNewWidth, mNewHeight;
    } cases[] = {
        {100, 50, 100, 100, 50}, {100, 50, 40, 40, 20}, {50, 100, 33, 16, 33},
        {8192, 1, 16, 16, 1},    {3, 3, 1, 1, 1},       {100, 50, 0, 100, 50},
    };
    for (const auto& [width, height, sideMax, newWidth, newHeight] : cases)
    {
        SCOPED_TRACE(testing::Message() << width << " x " << height << " to " << sideMax);
        znCImage image =
            imageMake(ZN_IMAGE_RGB_888, width, height, Bytes(static_cast<std::size_t>(width * height * 3), 90));
        EXPECT_EQ(image.scaleDown(sideMax), width != newWidth);
        EXPECT_EQ(image.widthGet(), newWidth);
        EXPECT_EQ(image.heightGet(), newHeight);
        EXPECT_THAT(pixelsGet(image), testing::Each(90));
    }
    znCImage image = imageMake(ZN_IMAGE_ALPHA_8, 4, 2, {0, 10, 100, 101, 20, 30, 102, 103});
    image.scaleDown(2);
    EXPECT_EQ(pixelsGet(image), (Bytes{15, 102}));
}
