#include "zncore/znStr.h"
#include "tests/support/znCTestCore.h"
#include <cfloat>
#include <climits>
#include <gtest/gtest.h>

namespace
{
class znStrTest : public ::testing::Test
{
protected:
    znCTestCore mCore;
};

std::vector<std::string> chunksGet(const std::string& pText)
{
    znStr text = pText;
    std::vector<std::string> tokens;
    while (!text.empty())
    {
        tokens.push_back(text.chunk());
        if (text.starts_with("="))
        {
            tokens.push_back("=");
            text.erase(0, 1);
        }
    }
    return tokens;
}
} // namespace

TEST_F(znStrTest, LengthAndTruncate)
{
    struct Case
    {
        const char* mText;
        s32 mLength;
        s32 mKeep;
        const char* mKept;
    };
    const Case CASES[] = {
        {"", 0, 3, ""},
        {"abc", 3, 3, "abc"},
        {"abc", 3, -1, ""},
        {"a\xC3\xA9", 2, 1, "a"},
        {"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9A\xA2z", 4, 3, "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9A\xA2"},
        {"a\x80\x80z", 4, 2, "a\x80"},    // stray continuation bytes count each
        {"a\xF0\x9F", 2, 2, "a\xF0\x9F"}, // cut off at the end of the text
        {"\xFF", 1, 1, "\xFF"},           // no lead byte of UTF-8
        {"\xFF\x01\x02\x03\x04\x05\x06\x07z", 2, 1, "\xFF\x01\x02\x03\x04\x05\x06\x07"},
    };
    for (const Case& test : CASES)
    {
        znStr text = test.mText;
        EXPECT_EQ(text.lengthGet(), test.mLength) << test.mText;
        text.truncate(test.mKeep);
        EXPECT_EQ(text, test.mKept);
    }
}

TEST_F(znStrTest, CodePointsAreAppendedAsUtf8)
{
    const std::pair<s32, const char*> CASES[] = {{0x7F, "\x7F"},
                                                 {0x80, "\xC2\x80"},
                                                 {0x7FF, "\xDF\xBF"},
                                                 {0x800, "\xE0\xA0\x80"},
                                                 {0xFFFF, "\xEF\xBF\xBF"},
                                                 {0x10000, "\xF0\x90\x80\x80"},
                                                 {0x1FFFFF, "\xF7\xBF\xBF\xBF"}};
    for (const auto& [codePoint, bytes] : CASES)
    {
        znStr text;
        text += codePoint;
        EXPECT_EQ(text, bytes);
    }
    EXPECT_EQ(mCore.mPlatform.logGet(), "");
    znStr text = "x";
    text += 0x200000;
    text += -1;
    EXPECT_EQ(text, "x");
    EXPECT_EQ(mCore.mPlatform.logCountGet("Invalid Unicode value"), 2);
}

TEST_F(znStrTest, ReplaceAllSearchesAnew)
{
    struct Case
    {
        const char* mText;
        const char* mFind;
        const char* mReplace;
        const char* mResult;
    };
    const Case CASES[] = {
        {"100%%%%", "%%", "%", "100%"},
        {"&amp;amp;lt;", "&amp;", "&", "&lt;"},
        {"aabb", "ab", "", ""},
        {"xaaay", "aa", "b", "xbay"},
        {"ababab", "ab", "c", "ccc"},
        {"8230 and 8230", "8230", "...", "... and ..."},
        {"abc", "d", "e", "abc"},
        {"abc", "", "e", "abc"},
        {"a.b", ".", "..", "a..b"}, // would never end
        {"", "a", "b", ""},
    };
    for (const Case& test : CASES)
    {
        znStr text = test.mText;
        text.replaceAll(test.mFind, test.mReplace);
        EXPECT_EQ(text, test.mResult) << test.mText << " / " << test.mFind;
    }
}

TEST_F(znStrTest, Chunks)
{
    const std::pair<std::string, std::vector<std::string>> CASES[] = {
        {"posX=10 posY = 20", {"posX", "=", "10", "posY", "=", "20"}},
        {"  \t\r\n a \n", {"a"}},
        {"# comment\n  # another\r\nname # third\nend", {"name", "end"}},
        {"a # comment without an end", {"a", ""}},
        {"image = \"a b = {#.png\" next", {"image", "=", "a b = {#.png", "next"}},
        {"\"two\nlines\"x", {"two\nlines", "x"}},
        {"\"\"", {""}},
        {"a{ }b#c", {"a{", "}b#c"}},
        {"=x", {"", "=", "x"}},
    };
    for (const auto& [text, tokens] : CASES)
        EXPECT_EQ(chunksGet(text), tokens) << text;
    EXPECT_EQ(mCore.mPlatform.logGet(), "");
    EXPECT_EQ(chunksGet("a \"no end"), (std::vector<std::string>{"a", "no end"}));
    EXPECT_EQ(mCore.mPlatform.logCountGet("Missing '\"' in string.\n"), 1);
}

TEST_F(znStrTest, ChunkLeavesWhiteSpaceBehindAQuotedToken)
{
    znStr text = "\"a\" b";
    EXPECT_EQ(text.chunk(), "a");
    EXPECT_EQ(text, " b");
    EXPECT_EQ(text.chunk(), "b");
}

TEST_F(znStrTest, Cuts)
{
    znStr text = "closeGui PauseMenu";
    EXPECT_EQ(text.tokenCut(" "), "closeGui");
    EXPECT_EQ(text, "PauseMenu");
    EXPECT_EQ(text.tokenCut(" "), "PauseMenu");
    EXPECT_EQ(text, "");
    znStr path = "gui/map/map.txt";
    path.afterLastCut("/");
    EXPECT_EQ(path, "map.txt");
    path.fromLastCut(".");
    EXPECT_EQ(path, "map");
    path.fromLastCut(".");
    path.afterLastCut("/");
    EXPECT_EQ(path, "map");
    znStr blank = " \t\r\n";
    blank.trimRight();
    EXPECT_EQ(blank, "");
    znStr spaced = "\r\n a b\t";
    spaced.trimLeft();
    spaced.trimRight();
    EXPECT_EQ(spaced, "a b");
}

TEST_F(znStrTest, NumbersFromText)
{
    struct Case
    {
        const char* mText;
        s32 mInteger;
        float mFloat;
    };
    const Case CASES[] = {
        {"", 0, 0.0f},
        {"12", 12, 12.0f},
        {" \r\n\t-12.75px", -12, -12.75f},
        {"+7", 7, 7.0f},
        {"+-7", 0, 0.0f},
        {"12 ", 12, 12.0f},
        {"0x10", 0, 0.0f},
        {"010", 10, 10.0f},
        {".5", 0, 0.5f},
        {"-.5", 0, -0.5f},
        {"1e2", 1, 100.0f},
        {"seven", 0, 0.0f},
        {"inf", 0, 0.0f},
        {"nan", 0, 0.0f},
        {"2147483648", INT_MAX, 2147483648.0f},
        {"-99999999999999999999", INT_MIN, -1e20f},
        {"1e999", 1, FLT_MAX},
        {"-1e999", -1, -FLT_MAX},
        {"1e-999", 1, 0.0f},
    };
    for (const Case& test : CASES)
    {
        EXPECT_EQ(znStr(test.mText).toS32(), test.mInteger) << test.mText;
        EXPECT_EQ(znStr(test.mText).toF32(), test.mFloat) << test.mText;
    }
}

TEST_F(znStrTest, NumbersToText)
{
    EXPECT_EQ(znStr(s32(INT_MIN)), "-2147483648");
    EXPECT_EQ(znStr(uint32(UINT_MAX)), "4294967295");
    const std::pair<float, const char*> CASES[] = {{0.0f, "0"},     {0.1f, "0.1"},    {1234567.0f, "1.23457e+06"},
                                                   {-0.5f, "-0.5"}, {1e-5f, "1e-05"}, {100000.0f, "100000"}};
    for (const auto& [value, text] : CASES)
        EXPECT_EQ(znStr(value), text);
}

TEST_F(znStrTest, EscapedTagsGo)
{
    const std::pair<const char*, const char*> CASES[] = {
        {"&lt;b&gt;bold&lt;/b&gt;", "bold"},
        {"a &lt; b &gt; c &lt;i&gt;d", "a  c d"},
        {"&l&lt;x&gt;t;y&gt;z", "z"}, // what is left over forms a tag
        {"plain &gt; text", "plain &gt; text"},
    };
    for (const auto& [text, result] : CASES)
    {
        znStr tagged = text;
        tagged.removeXmlTags();
        EXPECT_EQ(tagged, result);
    }
    EXPECT_EQ(mCore.mPlatform.logGet(), "");
    znStr open = "&lt;b&gt;x &lt;y &lt;z";
    open.removeXmlTags();
    EXPECT_EQ(open, "x &lt;y &lt;z");
    EXPECT_EQ(mCore.mPlatform.logCountGet("XML tag appears to not be terminated"), 1);
}
