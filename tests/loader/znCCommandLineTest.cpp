#include "loader/znCCommandLine.h"
#include "loader/znCDisplayModes.h"

#include <gmock/gmock.h>

namespace
{
using Outcome = znCCommandLine::Outcome;

Outcome parse(znCCommandLine& pLine, std::vector<const char*> pArguments)
{
    pArguments.insert(pArguments.begin(), "petrelmail");
    return pLine.parse(static_cast<int>(pArguments.size()), pArguments.data());
}
} // namespace

TEST(znCCommandLineTest, EveryOptionReachesItsPlace)
{
    znCCommandLine line;
    ASSERT_EQ(parse(line, {"--data",
                           "d",
                           "--user",
                           "u",
                           "--fullscreen",
                           "--size",
                           "480x800",
                           "--touch",
                           "--headless",
                           "--step",
                           "16",
                           "--seed",
                           "18446744073709551615",
                           "--frames",
                           "7",
                           "--script",
                           "s",
                           "--record",
                           "r",
                           "--shots",
                           "p",
                           "--set",
                           "a.b=c",
                           "--set",
                           "g.k.x=y=z",
                           "--",
                           "--data",
                           "-x",
                           "--"}),
              Outcome::RUN)
        << line.mText;
    const znCOptions& options = line.mOptions;
    EXPECT_EQ(options.mDataFolder, "d");
    EXPECT_EQ(options.mUserFolder, "u");
    EXPECT_EQ(options.mFullScreen, true);
    EXPECT_EQ(options.mWidth, 480);
    EXPECT_EQ(options.mHeight, 800);
    EXPECT_TRUE(options.mTouch && options.mHeadless);
    EXPECT_EQ(options.mStepMs, 16);
    EXPECT_EQ(options.mSeed, 18446744073709551615u);
    EXPECT_EQ(options.mFrameLimit, 7u);
    EXPECT_EQ(options.mScript, "s");
    EXPECT_EQ(options.mRecord, "r");
    EXPECT_EQ(options.mShots, "p");
    ASSERT_EQ(options.mSettings.size(), 2u);
    EXPECT_EQ(options.mSettings[1].mGroup, "g");
    EXPECT_EQ(options.mSettings[1].mKey, "k.x");
    EXPECT_EQ(options.mSettings[1].mValue, "y=z");
    EXPECT_THAT(options.mArguments, testing::ElementsAre("--data", "-x", "--"));
}

TEST(znCCommandLineTest, NothingGivenLeavesTheChoicesOpen)
{
    znCCommandLine line;
    ASSERT_EQ(parse(line, {}), Outcome::RUN);
    EXPECT_FALSE(line.mOptions.mFullScreen.has_value() || line.mOptions.mSeed.has_value());
    EXPECT_EQ(line.mOptions.mStepMs, 0);
}

TEST(znCCommandLineTest, WrongOptionsGetOneLine)
{
    const std::vector<const char*> cases[] = {
        {"--nonsense"},
        {"stray"},
        {"--size", "1024"},
        {"--size", "1024x"},
        {"--size", "x768"},
        {"--size", "10x768"},
        {"--size", "1024x768x"},
        {"--size", "-5x768"},
        {"--step", "0"},
        {"--step", "1001"},
        {"--step", "abc"},
        {"--seed", "-1"},
        {"--frames", "0"},
        {"--set", "ab=c"},
        {"--set", ".b=c"},
        {"--set", "a.=c"},
        {"--set", "a.b"},
        {"--set"},
        {"--data"},
        {"--windowed", "--fullscreen"},
        {"--replay", "r", "--script", "s"},
        {"--replay", "r", "--seed", "1"},
        {"--watch", "--record", "r"},
        {"--watch", "--replay", "r"},
    };
    for (const std::vector<const char*>& arguments : cases)
    {
        znCCommandLine line;
        EXPECT_EQ(parse(line, arguments), Outcome::WRONG) << arguments[0];
        EXPECT_FALSE(line.mText.empty()) << arguments[0];
        EXPECT_EQ(line.mText.find('\n'), std::string::npos) << line.mText;
    }
}

TEST(znCCommandLineTest, LimitsOfTextsForTheModule)
{
    znCCommandLine fits;
    znCCommandLine tooLong;
    znCCommandLine tooMany;
    const std::string value(255, 'v');
    EXPECT_EQ(parse(fits, {"--set", ("a.b=" + value).c_str()}), Outcome::RUN);
    EXPECT_EQ(parse(tooLong, {"--set", ("a.b=v" + value).c_str()}), Outcome::WRONG);
    std::vector<const char*> many(32, "x");
    many[0] = "--";
    EXPECT_EQ(parse(tooMany, many), Outcome::WRONG);
}

TEST(znCDisplayModesTest, ListsFromText)
{
    const std::pair<const char*, const char*> cases[] = {
        {"800x600", "800x600x32x0"},
        {"800x600x16,1024x768x0x75", "800x600x16x0,1024x768x0x75"},
        {"800x600,800x600", "800x600x32x0"},
        {"800x600,", "800x600x32x0"},
        {"", ""},
        {"800", ""},
        {"800x", ""},
        {"0x600", ""},
        {"800x-1", ""},
        {"800x600x32x60x1", ""},
        {"800x600;", ""},
        {"99999x600", ""},
    };
    for (const auto& [text, expected] : cases)
    {
        znCDisplayModes modes;
        EXPECT_EQ(modes.textParse(text), *expected != '\0') << text;
        EXPECT_EQ(modes.textGet(), expected) << text;
    }
}
