// The game as a player meets it: the real program, headless, with a script against the data that ships.

#include "tests/play/gameRun.h"
#include "tests/play/picture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace
{
constexpr double GOLDEN_LIMIT = 1.5; // mean difference of a channel; another rasteriser rounds otherwise

// A folder in which Anna has signed the crew list, so that what she plays is kept.
void playerSign(const GameRun& pRun)
{
    std::ofstream(pRun.userFolderGet() / "global.txt")
        << "currprofile = \"0\",\r\nnumprofiles = \"1\",\r\nprofilefilename0 = \"user0.txt\",\r\n"
           "profilename0 = \"Anna\",\r\n";
    std::ofstream(pRun.userFolderGet() / "user0.txt") << "customcursors = \"1\",\r\nmusicvolume = \"0.5\",\r\n";
}

// Where the quay has the middle of its brass bell, of its telescope and of an empty stretch of pavement.
constexpr char BELL[] = "460 229";
constexpr char TELESCOPE[] = "442 510";
constexpr char PAVEMENT[] = "980 636";

// How many things of the saved quay have been found: those on their way to collected (2) and those that arrived (3).
size_t collectedCountGet(const GameRun& pRun)
{
    const std::string saved = pRun.userFileGet("user0.txt");
    size_t count = 0;
    for (const char* state : {"{0,2,", "{0,3,"})
        for (size_t at = saved.find(state); at != std::string::npos; at = saved.find(state, at + 1))
            ++count;
    return count;
}

std::string tap(const char* pPlace)
{
    return std::string("tap ") + pPlace + "\nwait 1500\n";
}
} // namespace

TEST(playTest, collectsWhatIsPressedAndNothingElse)
{
    struct Case
    {
        const char* mWhat;
        std::string mScript;
        size_t mCollected;
    };
    const Case cases[] = {
        {"opaque", tap(BELL) + tap(TELESCOPE), 2},
        {"beside", tap(PAVEMENT), 0},
        {"a transparent corner of the telescope", tap("500 497"), 0},
        {"slid off", "down 460 229\nwait 50\nmove 980 636\nwait 50\nup 980 636\nwait 1500\n", 0},
        {"slid off and back", "down 460 229\nwait 50\nmove 980 636\nwait 50\nmove 460 229\nup 460 229\nwait 1500\n", 1},
        {"twice on one place", tap(BELL) + tap(BELL), 1},
        {"with the right button", "down 460 229 1\nwait 50\nup 460 229 1\nwait 1500\n", 0},
    };
    for (const Case& c : cases)
    {
        GameRun run("collect");
        playerSign(run);
        ASSERT_EQ(run.headlessRun({"--script", run.scriptWrite("wait 800\n" + c.mScript + "quit\n"), "--", "quay"}), 0)
            << run.errorGet();
        EXPECT_EQ(collectedCountGet(run), c.mCollected) << c.mWhat;
        EXPECT_EQ(logFaultsGet(run.logGet()), std::vector<std::string>()) << c.mWhat;
    }
}

TEST(playTest, repeatsARunToTheLastPixel)
{
    const std::string script =
        "wait 800\nshot before\nmove 460 229\n" + tap(BELL) + "shot after\nsuspend\nwait 100\nresume\nwait 90\nquit\n";
    GameRun first("first");
    GameRun second("second");
    GameRun replay("replay");
    for (GameRun* run : {&first, &second, &replay})
        playerSign(*run);
    const std::string recording = (first.folderGet() / "recording").string();
    ASSERT_EQ(first.headlessRun({"--script", first.scriptWrite(script), "--record", recording, "--", "quay"}), 0);
    ASSERT_EQ(second.headlessRun({"--script", second.scriptWrite(script), "--", "quay"}), 0);
    ASSERT_EQ(replay.headlessRun({"--replay", recording, "--", "quay"}), 0) << replay.errorGet();
    for (const char* shot : {"before", "after"})
    {
        EXPECT_FALSE(first.shotGet(shot).empty());
        EXPECT_EQ(first.shotGet(shot), second.shotGet(shot));
    }
    EXPECT_NE(first.shotGet("before"), first.shotGet("after"));
    for (const GameRun* run : {&second, &replay})
    {
        EXPECT_EQ(first.logGet(), run->logGet());
        EXPECT_EQ(first.userFileGet("user0.txt"), run->userFileGet("user0.txt"));
    }
}

TEST(playTest, goesFromTheFirstPictureToTheSceneAndBackIntoIt)
{
    GameRun run("voyage");
    const std::string signing = "wait 900\ntap 600 100\nwait 60\nshot early\nwait 300\ntap 600 100\nwait 1100\n"
                                "tap 600 100\nwait 900\ntype Zo\xc3\xab\nwait 100\nmove 879 553\nwait 50\nshot crew\n"
                                "tap 879 553\nwait 2000\nshot scene\n";
    ASSERT_EQ(run.headlessRun({"--script", run.scriptWrite(signing + tap(BELL) + "quit\n")}), 0) << run.errorGet();
    EXPECT_NE(run.userFileGet("global.txt").find("Zo\xc3\xab"), std::string::npos);
    EXPECT_EQ(collectedCountGet(run), 1u);
    EXPECT_EQ(logFaultsGet(run.logGet()), std::vector<std::string>());
    EXPECT_LE(goldenDifferenceGet("crew", run.shotGet("crew"), GOLDEN_LIMIT), GOLDEN_LIMIT);
    EXPECT_LE(goldenDifferenceGet("scene", run.shotGet("scene"), GOLDEN_LIMIT), GOLDEN_LIMIT);

    const std::string again = "wait 1200\ntap 600 100\nwait 1100\ntap 600 100\nwait 900\ntap 920 526\nwait 1500\n";
    ASSERT_EQ(run.headlessRun({"--script", run.scriptWrite(again + tap(TELESCOPE) + "quit\n")}), 0);
    EXPECT_EQ(collectedCountGet(run), 2u) << "what was found before the restart is still found";
}

TEST(playTest, opensAndClosesTheOptionsAndQuitsByItsButton)
{
    GameRun run("options");
    playerSign(run);
    const std::string script = "wait 1200\ntap 600 100\nwait 1100\ntap 600 100\nwait 900\nshot title\n"
                               "tap 920 606\nwait 200\ndown 778 232\nwait 50\nmove 2000 700\nwait 50\nup 2000 700\n"
                               "tap 417 390\nwait 50\nmove 417 444\ntap 417 444\nwait 100\nshot options\n"
                               "tap 879 562\nwait 200\ntap 920 686\nwait 200\ntap 803 480\nwait 200\n"
                               "tap 920 686\nwait 200\ntap 558 480\nwait 5000\nshot neverseen\n";
    ASSERT_EQ(run.headlessRun({"--script", run.scriptWrite(script)}), 0) << run.errorGet();
    const std::string saved = run.userFileGet("user0.txt");
    EXPECT_NE(saved.find("musicvolume = \"1\""), std::string::npos) << saved;
    EXPECT_NE(saved.find("muteall = \"1\""), std::string::npos);
    EXPECT_NE(saved.find("customcursors = \"0\""), std::string::npos);
    EXPECT_TRUE(run.shotGet("neverseen").empty());
    EXPECT_EQ(logFaultsGet(run.logGet()), std::vector<std::string>());
    EXPECT_LE(goldenDifferenceGet("title", run.shotGet("title"), GOLDEN_LIMIT), GOLDEN_LIMIT);
    EXPECT_LE(goldenDifferenceGet("options", run.shotGet("options"), GOLDEN_LIMIT), GOLDEN_LIMIT);
}

TEST(playTest, fitsTheDisplayThatItMeets)
{
    struct Case
    {
        const char* mWhat;
        std::vector<std::string> mOptions;
        s32 mWidth;
        s32 mHeight;
        const char* mTap; // the bell's place there
    };
    const Case cases[] = {
        {"window", {"--windowed"}, 1366, 768, "460 229"},
        {"full screen", {"--fullscreen", "--set", "s3e.DisplayModes=1920x1080"}, 1920, 1080, "647 322"},
        {"only 4:3", {"--windowed", "--set", "s3e.DisplayModes=800x600,1024x768"}, 1024, 768, "289 229"},
        {"an upright device", {"--touch", "--size", "480x800"}, 800, 480, "269 145"},
    };
    for (const Case& c : cases)
    {
        GameRun run("display");
        playerSign(run);
        std::vector<std::string> options = c.mOptions;
        const std::string script = "wait 800\nshot scene\n" + tap(c.mTap) + "quit\n";
        options.insert(options.end(), {"--script", run.scriptWrite(script), "--", "quay"});
        ASSERT_EQ(run.headlessRun(options), 0) << run.errorGet();
        const Picture picture = pictureDecode(run.shotGet("scene"));
        EXPECT_EQ(picture.mWidth, c.mWidth) << c.mWhat;
        EXPECT_EQ(picture.mHeight, c.mHeight) << c.mWhat;
        EXPECT_EQ(collectedCountGet(run), 1u) << c.mWhat;
    }
}

// Two players sign on, one is struck off again, the other sails on: on every kind of display.
TEST(playTest, walksThroughTheMenusOnEveryDisplay)
{
    struct Case
    {
        const char* mWhat;
        std::vector<std::string> mOptions;
        s32 mMiddleX, mMiddleY;
        double mScaleX, mScaleY; // pixels of the picture a pixel of the canvas
    };
    const Case cases[] = {
        {"window", {"--windowed"}, 683, 384, 1, 1},
        {"full screen", {"--fullscreen", "--set", "s3e.DisplayModes=1920x1080"}, 960, 540, 1080 / 768.0, 1080 / 768.0},
        {"only 4:3", {"--windowed", "--set", "s3e.DisplayModes=800x600,1024x768"}, 512, 384, 1, 1},
        {"an upright device", {"--touch", "--size", "480x800"}, 400, 240, 800 / 1366.0, 480 / 768.0},
    };
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.mWhat);
        std::ostringstream script;
        const auto press = [&](s32 pX, s32 pY, s32 pWait)
        {
            script << "tap " << std::lround(c.mMiddleX + pX * c.mScaleX) << ' '
                   << std::lround(c.mMiddleY + pY * c.mScaleY) << "\nwait " << pWait << '\n';
        };
        const auto sign = [&](const char* pName)
        {
            press(-60, -96, 1); // the field, which asks a player without keys
            script << "type " << pName << "\nwait 200\n";
            press(196, 169, 2000); // "Aye", and into the scene
        };
        const auto crewOpen = [&]
        {
            press(476, -349, 600); // the menu
            press(0, 100, 2000);   // "To the title page"
            press(100, 219, 500);  // "The crew"
        };
        script << "wait 900\n";
        for (const s32 wait : {1100, 1100, 900}) // the cards
            press(0, -284, wait);
        press(196, 169, 400); // no name yet
        press(0, 104, 400);   // and a warning
        sign("Anna");
        crewOpen();
        press(0, 179, 500); // "Sign on"
        sign("Bea");
        crewOpen();
        press(-205, 179, 400); // "Strike off"
        press(-125, 96, 400);  // "Yes"
        press(205, 179, 400);  // "Aye": Anna
        press(215, 142, 2000); // "Continue the voyage"
        GameRun run("menus");
        std::vector<std::string> options = c.mOptions;
        options.insert(options.end(), {"--step", "64"});
        options.insert(options.end(), {"--script", run.scriptWrite(script.str() + "quit\n")});
        ASSERT_EQ(run.headlessRun(options), 0) << run.errorGet();
        EXPECT_EQ(run.errorGet(), "");
        EXPECT_EQ(logFaultsGet(run.logGet()), std::vector<std::string>());
        const std::string crew = run.userFileGet("global.txt");
        EXPECT_NE(crew.find("profilename0 = \"Anna\""), std::string::npos) << crew;
        EXPECT_NE(crew.find("numprofiles = \"1\""), std::string::npos) << crew;
        EXPECT_NE(run.userFileGet("user0.txt").find("currlev = \"quay\""), std::string::npos);
    }
}

TEST(playTest, turnsFullScreenOnAndOffWithAltAndEnter)
{
    GameRun run("toggle");
    playerSign(run);
    const std::string keys = "key 99 down\nkey 4 down\nwait 50\nkey 4 up\nkey 99 up\nwait 100\n";
    const std::string script = "wait 500\nshot a\n" + keys + "shot b\n" + keys + "shot c\nquit\n";
    ASSERT_EQ(run.headlessRun({"--windowed", "--set", "s3e.DisplayModes=1920x1080", "--script", run.scriptWrite(script),
                               "--", "quay"}),
              0);
    EXPECT_EQ(pictureDecode(run.shotGet("a")).mWidth, 1366);
    EXPECT_EQ(pictureDecode(run.shotGet("b")).mWidth, 1920);
    EXPECT_EQ(pictureDecode(run.shotGet("c")).mWidth, 1366);
}

TEST(playTest, goesOnWithoutItsFiles)
{
    struct Case
    {
        const char* mScene;
        const char* mLogged;
    };
    const Case cases[] = {{"nosuchscene", "nosuchscene"}, {"gui/nosuch.txt", "gui/nosuch.txt"}, {"../../etc", ".."}};
    for (const Case& c : cases)
    {
        GameRun run("missing");
        EXPECT_EQ(run.headlessRun({"--script", run.scriptWrite("wait 300\ntap 5 5\nwait 300\nquit\n"), "--", c.mScene}),
                  0);
        EXPECT_NE(run.logGet().find(c.mLogged), std::string::npos) << run.logGet();
    }
    GameRun bare("bare");
    fs::create_directories(bare.folderGet() / "empty");
    std::ofstream(bare.folderGet() / "empty" / "appsettings.txt")
        << "appCanvasW = \"640\",\r\nappCanvasH = \"480\",\r\n";
    EXPECT_EQ(bare.run({"--headless", "--step", "16", "--frames", "30", "--data", bare.folderGet() / "empty", "--user",
                        bare.userFolderGet()}),
              0)
        << bare.errorGet();
    EXPECT_NE(bare.logGet().find("splashscreen.txt"), std::string::npos);
}
