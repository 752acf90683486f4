#include "media/znNGraphics.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "media/znCGraphicsTexture.h"
#include "tests/support/allocationCount.h"
#include "tests/support/znCTestPlatform.h"
#include "zncore/debug/znIDebug.h"

namespace
{
class znNGraphicsTest : public ::testing::Test
{
protected:
    znNGraphicsTest() { znNGraphics::initialise(); }
    ~znNGraphicsTest() override
    {
        EXPECT_TRUE(mPlatform.mDraw.mFaults.empty());
        znNGraphics::terminate();
    }

    // Streams of that many vertices in frame memory, each number telling its place.
    static void streamsSet(s32 pVertexCount, float pStart)
    {
        auto* positions = znNGraphics::frameArrayTake<znPointF>(pVertexCount);
        auto* uvs = znNGraphics::frameArrayTake<znPointF>(pVertexCount);
        auto* colours = znNGraphics::frameArrayTake<u32>(pVertexCount);
        for (s32 i = 0; i < pVertexCount; ++i)
        {
            positions[i] = {pStart + static_cast<float>(i), pStart};
            uvs[i] = {0.25f, static_cast<float>(i)};
            colours[i] = static_cast<u32>(i);
        }
        znNGraphics::positionsSet(positions);
        znNGraphics::uvsSet(uvs);
        znNGraphics::coloursSet(colours);
    }

    static void frameDraw(const znCGraphicsTexture* pTexture, s32 pRuns)
    {
        znNGraphics::clear(0xFF000000u);
        znNGraphics::frameMemoryReset();
        for (s32 i = 0; i < pRuns; ++i)
        {
            streamsSet(4 * 51, static_cast<float>(i));
            znNGraphics::materialSet({pTexture, 4, 0xFFFFFFFFu});
            znNGraphics::quadsDraw(4 * 51);
        }
        znNGraphics::flush();
        znNGraphics::present();
    }

    znCTestPlatform mPlatform;
};
} // namespace

TEST_F(znNGraphicsTest, RunsArriveInOrderWithTheirStreamsAndMaterials)
{
    znCGraphicsTexture texture;
    ASSERT_TRUE(texture.alpha8Upload(nullptr, 4, 4, 4));
    znNGraphics::clear(0xFF102030u);
    streamsSet(8, 100.0f);
    znNGraphics::materialSet({&texture, 2, 0x80FFFFFFu});
    znNGraphics::quadsDraw(8);
    znNGraphics::coloursSet(nullptr);
    znNGraphics::materialSet({nullptr, 4, 0x11223344u});
    znNGraphics::quadsDraw(4);
    EXPECT_TRUE(mPlatform.mDraw.mFrame.empty()) << "nothing is drawn before flush";
    znNGraphics::flush();
    znNGraphics::present();

    const std::vector<znCTestDraw::Run>& runs = mPlatform.mDraw.mPresented;
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(mPlatform.mDraw.mClearColour, 0xFF102030u);
    EXPECT_EQ(runs[0].mTexture, texture.idGet());
    EXPECT_EQ(runs[0].mBlend, 2u);
    EXPECT_EQ(runs[0].mPositions[14], 107.0f);
    EXPECT_EQ(runs[0].mUvs[15], 7.0f);
    EXPECT_EQ(runs[0].mColours[7], 7u);
    EXPECT_EQ(runs[1].mTexture, 0u);
    EXPECT_EQ(runs[1].mColour, 0x11223344u);
    EXPECT_TRUE(runs[1].mUvs.empty());
    EXPECT_TRUE(runs[1].mColours.empty());
    EXPECT_EQ(runs[1].mVertexCount, 4);
}

TEST_F(znNGraphicsTest, NothingIsDrawnFromStreamsThatAreMissingOrOfTheLastFrame)
{
    znNGraphics::quadsDraw(4);
    streamsSet(4, 0.0f);
    znNGraphics::quadsDraw(0);
    znNGraphics::quadsDraw(3);
    znNGraphics::quadsDraw(-4);
    EXPECT_EQ(mPlatform.mDraw.mRunCount, 0);
    znNGraphics::quadsDraw(4);
    znNGraphics::flush();
    znNGraphics::quadsDraw(4);
    znNGraphics::flush();
    EXPECT_EQ(mPlatform.mDraw.mRunCount, 1);
}

TEST_F(znNGraphicsTest, AFrameLikeTheOneBeforeTakesNothingFromTheHeap)
{
    znCGraphicsTexture texture;
    ASSERT_TRUE(texture.alpha8Upload(nullptr, 4, 4, 4));
    mPlatform.mDraw.mRecording = false;
    frameDraw(&texture, 20);
    frameDraw(&texture, 20); // its memory becomes one block
    const std::size_t capacity = znNGraphics::frameMemoryCapacityGet();
    const std::size_t allocations = allocationCountGet();
    for (s32 i = 0; i < 10; ++i)
        frameDraw(&texture, 20);
    EXPECT_EQ(allocationCountGet(), allocations);
    EXPECT_EQ(znNGraphics::frameMemoryCapacityGet(), capacity);
    EXPECT_EQ(mPlatform.mDraw.mVertexCount, 12 * 20 * 4 * 51);
}

TEST(znNGraphics, EverythingIsHarmlessWithoutADrawingTable)
{
    znCTestPlatform platform;
    platform.mDraw.mPresent = false;
    for (const bool initialised : {false, true})
    {
        if (initialised)
            znNGraphics::initialise();
        EXPECT_FALSE(znNGraphics::isAvailable());
        s32 sizes[6] = {1, 1, 1, 1, 1, 1};
        znNGraphics::deviceSizeGet(&sizes[0], &sizes[1]);
        znNGraphics::displaySizeGet(&sizes[2], &sizes[3]);
        znNGraphics::surfaceSizeGet(&sizes[4], &sizes[5]);
        EXPECT_EQ(std::count(std::begin(sizes), std::end(sizes), 0), 6);
        EXPECT_GT(znNGraphics::textureSizeLimitGet(), 0);
        znCImage image;
        image.defaultMake();
        znCGraphicsTexture texture;
        EXPECT_TRUE(texture.upload(image, "default"));
        EXPECT_EQ(texture.widthGet(), znCImage::sDefaultSide);
        EXPECT_EQ(texture.idGet(), 0u);
        znNGraphics::clear(0);
        znNGraphics::materialSet({&texture, 4, 0});
        znNGraphics::positionsSet(znNGraphics::frameArrayTake<znPointF>(4));
        znNGraphics::quadsDraw(4);
        znNGraphics::flush();
        znNGraphics::present();
        u8 pixel[4] = {1, 2, 3, 4};
        EXPECT_FALSE(znNGraphics::pixelsRead(0, 0, 1, 1, pixel));
        EXPECT_EQ(pixel[3], 4);
    }
    znNGraphics::terminate();
}
