#include "loader/znCFolderWatch.h"
#include "tests/loader/loaderRun.h"

#include <gtest/gtest.h>

#include <functional>
#include <thread>

namespace fs = std::filesystem;

namespace
{
// Whether a change is told within so many times the quiet that it waits for.
bool told(znCFolderWatch& pWatch, int pTimes)
{
    for (int i = 0; i < pTimes * 10; ++i)
    {
        if (pWatch.changeTake())
            return true;
        std::this_thread::sleep_for(znCFolderWatch::QUIET / 10);
    }
    return false;
}
} // namespace

TEST(znCFolderWatchTest, TellsWhatCountsAndNothingElse)
{
    const TestFolder folder;
    folder.fileWrite("scenes/quay/coords.txt", "a");
    folder.fileWrite("scenes/quay/old.png", "a");
    znCFolderWatch watch;
    std::string error;
    ASSERT_TRUE(watch.open(folder.pathGet(), error)) << error;
    struct Case
    {
        const char* mName;
        std::function<void()> mDo;
        bool mTold;
    };
    const Case cases[] = {
        {"nothing", [] {}, false},
        {"a file is written", [&] { folder.fileWrite("scenes/quay/coords.txt", "b"); }, true},
        {"a file is moved over another",
         [&]
         {
             folder.fileWrite("scenes/quay/.draft", "c");
             fs::rename(folder / "scenes/quay/.draft", folder / "scenes/quay/coords.txt");
         },
         true},
        {"a file goes", [&] { fs::remove(folder / "scenes/quay/old.png"); }, true},
        {"a folder is new", [&] { fs::create_directory(folder / "scenes/cabin"); }, true},
        {"a file in the new folder", [&] { folder.fileWrite("scenes/cabin/coords.txt", "d"); }, true},
        {"drafts of editors",
         [&]
         {
             folder.fileWrite("scenes/quay/.coords.txt.swp", "e");
             folder.fileWrite("scenes/quay/coords.txt~", "e");
         },
         false},
        {"a file is read", [&] { folder.fileRead("scenes/quay/coords.txt"); }, false},
    };
    for (const Case& c : cases)
    {
        c.mDo();
        EXPECT_EQ(told(watch, c.mTold ? 20 : 2), c.mTold) << c.mName;
        EXPECT_FALSE(watch.changeTake()) << c.mName << ": told once";
    }

    // Not while files are still being written.
    for (int i = 0; i < 8; ++i)
    {
        folder.fileWrite("scenes/quay/coords.txt", "f");
        EXPECT_FALSE(watch.changeTake());
        std::this_thread::sleep_for(znCFolderWatch::QUIET / 8);
    }
    EXPECT_TRUE(told(watch, 20));

    znCFolderWatch none;
    EXPECT_FALSE(none.open(folder / "nowhere", error));
    EXPECT_NE(error.find("nowhere"), std::string::npos);
}
