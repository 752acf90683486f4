#include "znappcore/src/znCLocalisedStrings.h"
#include "tests/support/znCTestCore.h"
#include <gtest/gtest.h>

namespace
{
class znCLocalisedStringsTest : public ::testing::Test
{
protected:
    ~znCLocalisedStringsTest() override { znCLocalisedStrings::destroy(); }

    void textsLoad(const std::string& pTable)
    {
        mCore.mPlatform.mFiles.fileSet("strings.txt", pTable);
        znCLocalisedStrings::create();
    }

    znCTestCore mCore;
};
} // namespace

TEST_F(znCLocalisedStringsTest, TextsAreCleaned)
{
    const std::pair<const char*, const char*> CASES[] = {
        {"100%%%%", "100%"},
        {"one&lt;br&gt;two", "one\ntwo"},
        {"&amp;", ""},
        {"&amp;lt;b&amp;gt;x", "lt;b>x"}, // the first is cut off, so that the rest is no tag
        {"x&amp;amp;y", "x&y"},
        {"a&#160;b&#45;c", "a b-c"},
        {"&lt;b&gt;bold&lt;/b&gt; &quot;q&quot; &apos;a&apos;", "bold \"q\" 'a'"},
        {"1 &gt; 0", "1 > 0"},
    };
    std::string table;
    for (std::size_t i = 0; i < std::size(CASES); ++i)
        table += "key" + std::to_string(i) + " = \"" + CASES[i].first + "\",\r\n";
    textsLoad(table);
    for (std::size_t i = 0; i < std::size(CASES); ++i)
        EXPECT_EQ(znCLocalisedStrings::localisedStringGet("KEY" + std::to_string(i)), CASES[i].second)
            << CASES[i].first;
}

TEST_F(znCLocalisedStringsTest, MissingTextsAreVisibleAndLoggedEachTime)
{
    textsLoad("quayTitle = \"Quay\",\r\n");
    EXPECT_EQ(znCLocalisedStrings::localisedStringGet("mapTitle"), "#####");
    EXPECT_EQ(znCLocalisedStrings::localisedStringGet("mapTitle"), "#####");
    EXPECT_EQ(mCore.mPlatform.logCountGet("Missing string : mapTitle\n"), 2);
    mCore.mPlatform.logTake();
    std::string text = "as it was";
    EXPECT_FALSE(znCLocalisedStrings::localisedStringGetIfExists("mapTitle", text));
    EXPECT_EQ(text, "as it was");
    EXPECT_TRUE(znCLocalisedStrings::localisedStringGetIfExists("QUAYTITLE", text));
    EXPECT_EQ(text, "Quay");
    EXPECT_TRUE(znCLocalisedStrings::keyWithPrefixExistsGet("quayT"));
    EXPECT_FALSE(znCLocalisedStrings::keyWithPrefixExistsGet("quayTitles"));
    EXPECT_EQ(mCore.mPlatform.logTake(), "");
}

TEST_F(znCLocalisedStringsTest, SpreadsheetComesFirst)
{
    mCore.mPlatform.mFiles.fileSet("strings.xml", "<Row>\n<Cell ss:Type=\"String\">a</Cell>\n"
                                                  "<Cell ss:Type=\"String\">from 8230 &amp;lt;i&gt;sheet</Cell>\n");
    textsLoad("a = \"from table\",\r\nb = \"8230\",\r\n");
    EXPECT_EQ(znCLocalisedStrings::localisedStringGet("a"), "from ... sheet");
    EXPECT_FALSE(znCLocalisedStrings::instanceGet()->keyExistsGet("b"));
}

TEST_F(znCLocalisedStringsTest, NoFileAtAll)
{
    znCLocalisedStrings::create();
    EXPECT_EQ(mCore.mPlatform.logCountGet("Failed to load any localised strings.\n"), 1);
    EXPECT_EQ(znCLocalisedStrings::localisedStringGet("a"), "#####");
}

TEST_F(znCLocalisedStringsTest, TagWithoutItsEndNamesItsKey)
{
    textsLoad("broken = \"a &lt;b c\",\r\n");
    EXPECT_EQ(znCLocalisedStrings::localisedStringGet("broken"), "a <b c");
    EXPECT_EQ(mCore.mPlatform.logCountGet("XML tag appears to not be terminated"), 1);
    EXPECT_EQ(mCore.mPlatform.logCountGet("The text with the key broken has a tag without its end.\n"), 1);
}
