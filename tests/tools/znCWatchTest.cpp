#include "tools/author/znCWatch.h"

#include "tests/tools/authorData.h"
#include "tools/author/znCNewScene.h"
#include "tools/author/znNPng.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <thread>

namespace
{
namespace fs = std::filesystem;

bool appears(const fs::path& pFile)
{
    for (int i = 0; i < 600 && !fs::exists(pFile); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    return fs::exists(pFile);
}

// The colour near the middle of a picture, where the pointer stands.
u32 middleGet(const AuthorData& pData, const std::string& pFile)
{
    znSPicture picture;
    if (!znNPng::decode(pData.textGet(pFile), pFile, picture))
        return 0;
    const u8* pixel = picture.at(picture.mWidth / 2 - 40, picture.mHeight / 2 - 40);
    return static_cast<u32>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
}
} // namespace

// The real program, whose scene is changed while it is on the screen.
TEST(znCWatchTest, theRunningGameOpensTheSceneAnew)
{
    AuthorData data;
    ASSERT_TRUE(znCNewScene(data.folderGet()).make("attic"));
    const std::string coords = data.textGet("scenes/attic/coords.txt");
    const auto chest = coords.find("BackgroundChest");
    const auto coordsSet = [&](const std::string& pLines)
    {
        data.textSet("scenes/attic/coords.txt", coords.substr(0, chest) + pLines + coords.substr(chest));
    };
    coordsSet("sign.png,0,0\n");
    data.pictureSet("scenes/attic/sign.png", 200, 200, 0x2060c0, true);
    // Real time, since a change is told in real time; the shots say how far the game is.
    data.textSet("script.txt", "wait 3500\nshot a\nwait 7000\nshot b\nwait 7000\nshot c\nquit\n");
    const fs::path folder = data.folderGet();

    std::thread author(
        [&]
        {
            if (!appears(folder / "shots/a.png"))
                return;
            data.pictureSet("scenes/attic/sign.png", 200, 200, 0xc02020, true);
            if (!appears(folder / "shots/b.png"))
                return;
            coordsSet("sign.png,400,0\nlost.png,-300,0\n");
        });
    std::vector<std::string> complaints;
    const std::vector<std::string> options = {"--headless",
                                              "--size",
                                              "400x300",
                                              "--script",
                                              (folder / "script.txt").string(),
                                              "--shots",
                                              (folder / "shots").string()};
    fs::create_directories(folder / "shots");
    znCWatch(fs::path(PETREL_BIN) / "petrelmail", folder)
        .run("attic", options, [&](const std::string& pComplaint) { complaints.push_back(pComplaint); });
    author.join();

    EXPECT_EQ(middleGet(data, "shots/a.png"), 0x2060c0u);
    EXPECT_EQ(middleGet(data, "shots/b.png"), 0xc02020u) << "the picture's new colour";
    EXPECT_NE(middleGet(data, "shots/c.png"), 0xc02020u) << "moved aside";
    EXPECT_EQ(complaints.size(), 1u) << "of what is wrong alone";
    ASSERT_EQ(std::count_if(complaints.begin(), complaints.end(),
                            [](const std::string& pComplaint)
                            { return pComplaint.find("scenes/attic/lost.png") != std::string::npos; }),
              1);
    EXPECT_FALSE(znCWatch(fs::path(PETREL_BIN) / "petrelmail", folder).run("nowhere", {}, nullptr));
}
