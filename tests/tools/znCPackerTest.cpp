#include "tools/author/znCPacker.h"

#include "tests/tools/authorData.h"
#include "tools/author/znCNewScene.h"
#include "tools/author/znCShot.h"
#include "tools/author/znNPageLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>

namespace
{
namespace fs = std::filesystem;
constexpr char FOLDER[] = "scenes/attic/";

std::map<std::string, std::string> filesGet(const AuthorData& pData)
{
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(pData.folderGet() / FOLDER))
        files[entry.path().filename()] = pData.textGet(FOLDER + entry.path().filename().string());
    return files;
}

znSPicture pictureGet(const std::string& pBytes)
{
    znSPicture picture;
    EXPECT_TRUE(znNPng::decode(pBytes, "picture", picture));
    return picture;
}

// As the game shows the scene, not in its own size.
znSPicture shotGet(const AuthorData& pData)
{
    const znCShot shot(fs::path(PETREL_BIN) / "petrelmail", pData.folderGet(), "900x600");
    EXPECT_TRUE(shot.take("attic", pData.folderGet() / "shot.png", 1500));
    return pictureGet(pData.textGet("shot.png"));
}
// The largest difference of a channel.
s32 differenceGet(const znSPicture& pLeft, const znSPicture& pRight)
{
    if (pLeft.mPixels.size() != pRight.mPixels.size())
        return 256;
    s32 difference = 0;
    for (std::size_t i = 0; i < pLeft.mPixels.size(); ++i)
        difference = std::max(difference, std::abs(pLeft.mPixels[i] - pRight.mPixels[i]));
    return difference;
}
} // namespace

TEST(znNPageLayoutTest, standsCloseAndApart)
{
    std::vector<znNPageLayout::Rectangle> sizes;
    for (s32 i = 0; i < 150; ++i)
        sizes.push_back({40 + i * 37 % 200, 30 + i * 53 % 260});
    sizes.push_back({1000, 11});
    for (s32 limit : {2048, 1000})
    {
        const std::vector<znNPageLayout::Page> pages = znNPageLayout::pagesMake(sizes, limit);
        std::size_t next = 0;
        s64 filled = 0;
        s64 whole = 0;
        for (const znNPageLayout::Page& page : pages)
        {
            EXPECT_LE(std::max(page.mWidth, page.mHeight), limit);
            EXPECT_EQ((page.mWidth | page.mHeight) % 2, 0);
            whole += &page != &pages.back() || pages.size() == 1 ? s64(page.mWidth) * page.mHeight : 0;
            std::vector<bool> taken(static_cast<std::size_t>(page.mWidth * page.mHeight));
            for (const znNPageLayout::Rectangle& rectangle : page.mRectangles)
            {
                ASSERT_EQ(rectangle.mWidth, sizes[next].mWidth) << "the order is kept";
                ASSERT_EQ(rectangle.mHeight, sizes[next++].mHeight);
                filled += &page != &pages.back() || pages.size() == 1 ? s64(rectangle.mWidth) * rectangle.mHeight : 0;
                ASSERT_LE(rectangle.mX + rectangle.mWidth, page.mWidth);
                ASSERT_LE(rectangle.mY + rectangle.mHeight, page.mHeight);
                for (s32 y = rectangle.mY; y < rectangle.mY + rectangle.mHeight; ++y)
                    for (s32 x = rectangle.mX; x < rectangle.mX + rectangle.mWidth; ++x)
                    {
                        ASSERT_FALSE(taken[static_cast<std::size_t>(y * page.mWidth + x)]) << "two on one place";
                        taken[static_cast<std::size_t>(y * page.mWidth + x)] = true;
                    }
            }
        }
        EXPECT_EQ(next, sizes.size());
        EXPECT_GT(filled, whole * 85 / 100);
    }
}

TEST(znCPackerTest, packsASceneWithoutChangingWhatItShows)
{
    AuthorData data;
    ASSERT_TRUE(znCNewScene(data.folderGet()).make("attic"));
    // More than one page holds, one that none holds, and one that is solid to its edge.
    data.pictureSet(FOLDER + std::string("wide.png"), 240, 150, 0x405060);
    data.pictureSet(FOLDER + std::string("high.png"), 150, 240, 0x406050);
    data.pictureSet(FOLDER + std::string("ribbon.png"), 256, 6, 0xa04040, true);
    data.pictureSet(FOLDER + std::string("brick.png"), 90, 60, 0x902010, true);
    const std::string coords = data.textGet(FOLDER + std::string("coords.txt"));
    data.textSet(FOLDER + std::string("coords.txt"),
                 "BackgroundRoom.png,0,0\nwide.png,0,-200\nhigh.png,0,200\nribbon.png,0,230\n" +
                     coords.substr(coords.find('\n') + 1) + "brick.png,-70,-20\n");
    const auto before = filesGet(data);
    const znSPicture shotBefore = shotGet(data);

    znCPacker packer(data.folderGet(), 256);
    const znCPacker::Cost costBefore = packer.costGet("attic");
    ASSERT_TRUE(packer.pack("attic"));
    EXPECT_GE(packer.pagesGet().size(), 2u);
    EXPECT_EQ(packer.tooLargeGet(), std::vector<std::string>{"scenes/attic/ribbon.png"});
    const znCPacker::Cost cost = packer.costGet("attic");
    EXPECT_LT(cost.mFiles, costBefore.mFiles - 5);
    EXPECT_LT(cost.mRuns, costBefore.mRuns - 8);
    EXPECT_LE(differenceGet(shotGet(data), shotBefore), 1) << "no more than the rounding of places in a texture";
    const auto packed = filesGet(data);
    for (const char* stays : {"backgroundroom.png", "blinker.png", "mote.png", "ribbon.png", "texturepage1.txt"})
        EXPECT_EQ(packed.count(stays), 1u) << stays;
    EXPECT_EQ(packed.count("pck-kite.png"), 0u);

    ASSERT_TRUE(packer.pack("attic"));
    EXPECT_TRUE(packer.movedGet().empty());
    EXPECT_EQ(filesGet(data), packed) << "a second time nothing is left to do";

    ASSERT_TRUE(packer.unpack("attic", false));
    const auto after = filesGet(data);
    ASSERT_EQ(after.size(), before.size());
    for (const auto& [name, bytes] : before)
    {
        ASSERT_EQ(after.count(name), 1u) << name;
        if (name.ends_with(".png"))
            EXPECT_EQ(pictureGet(after.at(name)), pictureGet(bytes)) << name;
        else
            EXPECT_EQ(after.at(name), bytes) << name;
    }
}

TEST(znCPackerTest, refusesWhatWouldLoseAPicture)
{
    AuthorData data;
    ASSERT_TRUE(znCNewScene(data.folderGet()).make("attic"));
    znCPacker packer(data.folderGet());
    const std::string kite = data.textGet("scenes/attic/pck-kite.png");
    ASSERT_TRUE(packer.pack("attic"));
    const auto packed = filesGet(data);

    // The same picture again is no loss, another one would be.
    data.textSet("scenes/attic/pck-kite.png", kite);
    ASSERT_TRUE(packer.pack("attic"));
    EXPECT_EQ(filesGet(data), packed);
    data.pictureSet("scenes/attic/pck-kite.png", 60, 60, 0x20c020);
    const znSPicture green = pictureGet(data.textGet("scenes/attic/pck-kite.png"));
    const auto both = filesGet(data);
    EXPECT_FALSE(packer.pack("attic"));
    EXPECT_FALSE(packer.unpack("attic", false));
    EXPECT_EQ(filesGet(data), both);
    ASSERT_TRUE(packer.unpack("attic", true));
    EXPECT_EQ(pictureGet(data.textGet("scenes/attic/pck-kite.png")), green);

    struct Case
    {
        const char* mFile;
        std::string mText;
    };
    const Case cases[] = {
        {"scenes/attic/texturepage0.txt", "scenes/attic/none.png\r\nscenes/attic/pck-kite.png,0,0,2,2\r\n"},
        {"scenes/attic/texturepage0.txt", "scenes/attic/blinker.png\r\nscenes/attic/spark.png,0,0,200,2\r\n"},
        {"scenes/attic/texturepage0.txt", "scenes/attic/blinker.png\r\nspark.png,0,0,2,2\r\n"},
        {"scenes/attic/pck-kite.png", "no picture"},
    };
    for (const Case& c : cases)
    {
        const std::string good = data.textGet(c.mFile);
        data.textSet(c.mFile, c.mText);
        const auto faulty = filesGet(data);
        if (c.mText.find("\r\nspark") == std::string::npos)
            EXPECT_FALSE(packer.pack("attic")) << c.mText;
        else
            EXPECT_FALSE(packer.unpack("attic", true)) << c.mText;
        EXPECT_EQ(filesGet(data), faulty) << c.mText;
        if (good.empty())
            fs::remove(data.folderGet() / c.mFile);
        else
            data.textSet(c.mFile, good);
    }
    EXPECT_FALSE(packer.pack("nowhere"));
}
