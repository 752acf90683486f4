#include "loader/znCUrlOpener.h"
#include "tests/loader/loaderRun.h"

#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

TEST(znCUrlOpenerTest, OnlyThreeSchemesAndNoTricks)
{
    for (const char* url : {"http://a.example/", "HTTPS://a.example/x?y=1", "mailto:a@b.example"})
        EXPECT_TRUE(znCUrlOpener::isAllowed(url)) << url;
    for (const char* url : {"", "http://", "file:///etc/passwd", "javascript:x", " http://a", "http://a b", "-x",
                            "http://a\n", "ftp://a"})
        EXPECT_FALSE(znCUrlOpener::isAllowed(url)) << url;
    EXPECT_FALSE(znCUrlOpener::isAllowed("http://" + std::string(3000, 'a')));
}

TEST(znCUrlOpenerTest, TheOpenerGetsTheAddressAsItIs)
{
    using namespace std::chrono_literals;
    const TestFolder folder;
    const std::string url = "http://a.example/?q='$(touch${IFS}x)';&b=\"`c`\"";
    const std::string opened = folder / "opened.txt";
    std::filesystem::permissions(folder.fileWrite("xdg-open", "#!/bin/sh\nprintf '%s|%s' $# \"$1\" >\"" + opened +
                                                                  "~\"\n/bin/mv \"" + opened + "~\" \"" + opened +
                                                                  "\"\n"),
                                 std::filesystem::perms::owner_all);
    const std::string path = std::getenv("PATH");
    setenv("PATH", folder.pathGet().c_str(), 1);
    EXPECT_TRUE(znCUrlOpener(false).open(url));
    for (int i = 0; i < 500 && folder.fileRead("opened.txt").empty(); ++i)
        std::this_thread::sleep_for(10ms);
    EXPECT_EQ(folder.fileRead("opened.txt"), "1|" + url);
    setenv("PATH", (folder / "nowhere").c_str(), 1);
    EXPECT_FALSE(znCUrlOpener(false).open(url));
    setenv("PATH", path.c_str(), 1);
}
