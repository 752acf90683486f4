#include "zncore/znNCoreUtils.h"
#include "tests/support/znCTestCore.h"
#include "zncore/znCResourceName.h"
#include <climits>
#include <gtest/gtest.h>

namespace
{
const znCResourceName FILE_NAME("lines.txt", znCResourceName::GAME_DATA);

class znNCoreUtilsTest : public ::testing::Test
{
protected:
    znCTestCore mCore;
};
} // namespace

TEST_F(znNCoreUtilsTest, RandomNumbersRepeatWithTheirSeed)
{
    znNCoreUtils::randomSeedSet(1);
    EXPECT_EQ(znNCoreUtils::randomGet(), 2745065u);
    EXPECT_EQ(znNCoreUtils::randomGet(), 3357752992u);
    znNCoreUtils::randomSeedSet(1);
    EXPECT_EQ(znNCoreUtils::randomGet(10), 5u);
    EXPECT_EQ(znNCoreUtils::randomGet(1), 0u);
    EXPECT_EQ(znNCoreUtils::randomGet(0), 0u);
}

TEST_F(znNCoreUtilsTest, ContinuationBytes)
{
    const std::pair<s32, s32> CASES[] = {{'A', 0},  {0x7F, 0}, {0x80, 0}, {0xBF, 0}, {0xC3, 1},
                                         {0xE2, 2}, {0xF0, 3}, {0xF8, 4}, {0xFF, 7}};
    for (const auto& [byte, count] : CASES)
        EXPECT_EQ(znNCoreUtils::unicodeExtraCharacterCountGet(static_cast<u8>(byte)), count) << byte;
    EXPECT_EQ(mCore.mPlatform.logCountGet("Too many unicode extra characters reported!"), 2);
}

TEST_F(znNCoreUtilsTest, LinesOfAFile)
{
    const std::pair<std::string, std::vector<std::string>> CASES[] = {
        {"a\r\nb\n\nc", {"a", "b", "", "c"}},
        {"\xEF\xBB\xBF"
         "a\n",
         {"a"}},
        {"a\rb\n", {"ab"}},
        {std::string("a\nb\0c\n", 6), {"a", "b"}},
        {"\n", {""}},
    };
    for (const auto& [content, lines] : CASES)
    {
        mCore.mPlatform.mFiles.fileSet("lines.txt", content);
        EXPECT_EQ(znNCoreUtils::textFileReadToVector(FILE_NAME), lines) << content;
    }
    EXPECT_EQ(mCore.mPlatform.logGet(), "");
}

TEST_F(znNCoreUtilsTest, FilesThatCannotBeRead)
{
    EXPECT_EQ(znNCoreUtils::strGetFromFile(FILE_NAME), "");
    EXPECT_TRUE(znNCoreUtils::textFileReadToVector(FILE_NAME).empty());
    EXPECT_EQ(mCore.mPlatform.logCountGet("File lines.txt does not exist.\n"), 2);
    mCore.mPlatform.logTake();

    mCore.mPlatform.mFiles.fileSet("lines.txt", "");
    EXPECT_EQ(znNCoreUtils::strGetFromFile(FILE_NAME), "");
    EXPECT_EQ(mCore.mPlatform.logTake(), "");

    mCore.mPlatform.mFiles.fileSet("lines.txt", "text");
    mCore.mPlatform.mFiles.faultSet(znCTestFiles::Operation::read, 1);
    EXPECT_EQ(znNCoreUtils::strGetFromFile(FILE_NAME), "");
    EXPECT_EQ(mCore.mPlatform.logCountGet("File lines.txt could not be read.\n"), 1);
    EXPECT_EQ(znNCoreUtils::strGetFromFile(FILE_NAME), "text");

    mCore.mPlatform.mFiles.fileSet("lines.txt", std::string(znNCoreUtils::TEXT_FILE_SIZE_LIMIT + 1, 'x'));
    EXPECT_EQ(znNCoreUtils::strGetFromFile(FILE_NAME), "");
    EXPECT_EQ(mCore.mPlatform.logCountGet("File lines.txt is larger than 16777216 bytes.\n"), 1);
    EXPECT_EQ(mCore.mPlatform.mFiles.openCountGet(), 1) << "only the log stays open";
}

TEST_F(znNCoreUtilsTest, AbsoluteValueOfTheSmallest)
{
    EXPECT_EQ(znNCoreUtils::abs(INT_MIN), INT_MAX);
    EXPECT_EQ(znNCoreUtils::abs(-5), 5);
}
