#include "zncore/znCColour.h"
#include "tests/support/znCTestCore.h"
#include <gtest/gtest.h>

TEST(znCColour, FromText)
{
    znCTestCore core;
    EXPECT_EQ(znCColour("ffffffff"), znCColour());
    EXPECT_EQ(znCColour("000000fF"), znCColour(0, 0, 0, 1));
    EXPECT_EQ(znCColour("80403300"), znCColour(128 / 255.0f, 64 / 255.0f, 0.2f, 0));
    EXPECT_EQ(core.mPlatform.logGet(), "");
    const std::pair<const char*, znCColour> FAULTS[] = {
        {"", znCColour()},
        {"00ff00", znCColour(0, 1, 0, 1)},
        {"00ff000", znCColour(0, 1, 0, 1)},
        {"#00ff00ff", znCColour()},
        {"0x00ff00ff", znCColour()},
        {"00gg0000", znCColour(0, 1, 1, 1)},
        {"00-10000", znCColour(0, 1, 1, 1)},
        {"00000000ff", znCColour(0, 0, 0, 0)},
    };
    for (const auto& [text, colour] : FAULTS)
    {
        EXPECT_EQ(znCColour(text), colour) << text;
        EXPECT_EQ(core.mPlatform.logCountGet("Expected an 8 character hex string when creating an znCColour from a "
                                             "string (" +
                                             std::string(text) + ").\n"),
                  1);
    }
}

TEST(znCColour, SumsAreLimitedAtTheTopOnly)
{
    EXPECT_EQ(znCColour(0.8f, 0.5f, 0, 1) + znCColour(0.5f, 0.25f, -1, 1), znCColour(1, 0.75f, -1, 1));
    EXPECT_EQ(znCColour(0, 0.5f, 1, 1) - znCColour(1, 0.25f, 1, 0), znCColour(-1, 0.25f, 0, 1));
}
