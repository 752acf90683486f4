#include "zncore/src/znCStringsFile.h"
#include "tests/support/znCTestCore.h"
#include "zncore/znCResourceName.h"
#include <gtest/gtest.h>

namespace
{
using Entries = std::map<std::string, std::string>;

std::string row(const std::string& pFirst, const std::string& pSecond)
{
    return "   <Row ss:AutoFitHeight=\"0\">\r\n    " + pFirst + "\r\n    " + pSecond + "\r\n   </Row>\r\n";
}

std::string cell(const std::string& pText, const std::string& pType = "String")
{
    return "<Cell ss:StyleID=\"s1\"><Data ss:Type=\"" + pType + "\">" + pText + "</Data></Cell>";
}
} // namespace

TEST(znCStringsFile, SpreadsheetRows)
{
    const std::pair<std::string, Entries> CASES[] = {
        {row(cell("Quay"), cell("The quay")) + row(cell("b"), cell("12", "Number")),
         {{"quay", "The quay"}, {"b", "12"}}},
        {row(cell("a"), cell("wait8230 8230")), {{"a", "wait... ..."}}},
        {row(cell("a"), cell("x &lt;b&gt; &amp;")), {{"a", "x &lt;b&gt; &amp;"}}},
        {row(cell("a"), cell("")) + row(cell("b"), cell("2")), {{"b", "2"}}},
        {row(cell("a"), cell("TRUE", "Boolean")) + row(cell("b"), cell("2")), {{"b", "2"}}},
        {row(cell("a"), "") + row(cell("b"), cell("2")), {{"b", "2"}}},
        {row(cell("a"), cell("1")) + row("", "") + "</Table>" + row(cell("b"), cell("2")), {{"a", "1"}}},
        // A tag that goes on over the line, and a text that does.
        {"<Row>\n<Cell ss:Type=\"String\"\n ss:Index=\"2\"><B>first\nsecond</B></Cell>\n" + cell("v") + "\n", {}},
        {"<Row>\n" + cell("k") + "\n<Cell ss:Type=\"String\"\n ss:Index=\"2\"><B>text\nmore</B></Cell>\n",
         {{"k", "text"}}},
        {"<Row>\n" + cell("k") + "\n<Cell ss:Type=\"String\"\n", {}},
        {"<Row>\n", {}},
        {"no rows at all", {}},
    };
    for (const auto& [content, entries] : CASES)
    {
        znCTestCore core;
        core.mPlatform.mFiles.fileSet("strings.xml", "\xEF\xBB\xBF<?xml version=\"1.0\"?>\r\n" + content);
        znCStringsFile strings;
        strings.spreadsheetLoad(znCResourceName("strings.xml", znCResourceName::STRINGS_DATA));
        EXPECT_EQ(strings.entriesGet(), entries) << content;
        EXPECT_EQ(core.mPlatform.logGet(), "");
    }
}

TEST(znCStringsFile, RowsBehindOneWithoutAFirstCellAreMissed)
{
    znCTestCore core;
    core.mPlatform.mFiles.fileSet("strings.xml",
                                  row(cell("a"), cell("1")) + row("<Comment/>", cell("1")) + row(cell("b"), cell("2")));
    znCStringsFile strings;
    strings.spreadsheetLoad(znCResourceName("strings.xml", znCResourceName::STRINGS_DATA));
    EXPECT_EQ(strings.entriesGet(), (Entries{{"a", "1"}}));
    EXPECT_NE(core.mPlatform.logGet().find("strings.xml line 6: The table ends"), std::string::npos)
        << core.mPlatform.logGet();
}
