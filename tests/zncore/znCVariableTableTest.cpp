#include "zncore/src/znCVariableTable.h"
#include "tests/support/znCTestCore.h"
#include "zncore/znCResourceName.h"
#include "zncore/znNCoreUtils.h"
#include <climits>
#include <gtest/gtest.h>

namespace
{
using Entries = std::map<std::string, std::string>;

const char* const PASSED_THE_END = "Passed the end of the file. Did you miss a \" or a , ?";
const znCResourceName SAVED("table.txt", znCResourceName::USER_DATA);

class znCVariableTableTest : public ::testing::Test
{
protected:
    static Entries parsedGet(const std::string& pText)
    {
        znCVariableTable table;
        table.textParse(pText.data(), pText.data() + pText.size());
        return table.entriesGet();
    }

    znCTestCore mCore;
    znCTestFiles& mFiles = mCore.mPlatform.mFiles;
};
} // namespace

TEST_F(znCVariableTableTest, TextFormat)
{
    const std::pair<std::string, Entries> CASES[] = {
        {"Key = \"a\",\r\nkey = \"b\",\r\n", {{"key", "b"}}},
        {"a = \"1\",\nb = \"2\",\n\n\nc=\"3\",", {{"a", "1"}, {"b", "2"}, {"c", "3"}}},
        {"n = 12,\r\nm = 12 ,o=x y\r\nz,", {{"n", "12"}, {"m", "12 "}, {"o", "x y\r\nz"}}},
        {"a = \"say \"hi\" now\",\r\n", {{"a", "say \"hi\" now"}}},
        {"a = \"x\",y\",\r\nb = \"2\",", {{"a", "x"}, {"b", "2"}}}, // ends at the first quote and comma
        {"a = \"two\r\nlines, a comma\",\r\n", {{"a", "two\r\nlines, a comma"}}},
        {"a = \"\",\r\nb = ,", {{"a", ""}, {"b", ""}}},
        {"a key with\tblanks = \"v\",", {{"akeywithblanks", "v"}}},
        {"a = \r\n\t \"v\",\r\n", {{"a", "v"}}},
        {"--a = \"x\",\r\nb = \"2\",\r\n-c = \"3\",\r\n", {{"b", "2"}, {"-c", "3"}}},
        {"-- a comment\r\nno equals sign\r\nb = \"2\",\r\n", {{"b", "2"}}},
        {"-- a comment, then = \"x\",\r\nb = \"2\",", {{"b", "2"}}},
        {"a = \"1\",b = \"2\",cc = \"3\",", {{"a", "1"}, {"", "2"}, {"c", "3"}}}, // the letter behind the comma is lost
        {"a = \"1\" , b = \"2\",\n", {{"a", "1\" , b = \"2"}}},
        {"a = 1,b = 2,", {{"a", "1"}, {"b", "2"}}}, // nothing is lost in the plain form
        {"=\"v\",\r\n", {{"", "v"}}},
        {"\xEF\xBB\xBFkey = \"v\",", {{"\xEF\xBB\xBFkey", "v"}}},
        {"", {}},
        {"key", {}},
        {"a = \"x\",\r\nrest", {{"a", "x"}}},
        {std::string("a = \"x\0y\",", 10), {{"a", std::string("x\0y", 3)}}},
    };
    for (const auto& [text, entries] : CASES)
        EXPECT_EQ(parsedGet(text), entries) << text;
    EXPECT_EQ(mCore.mPlatform.logGet(), "");
}

TEST_F(znCVariableTableTest, TextThatEndsTooSoon)
{
    const std::pair<const char*, Entries> CASES[] = {
        {"a = \"1\",\nb = \"cut off", {{"a", "1"}, {"b", "cut off"}}},
        {"a = \"no comma\"", {{"a", "no comma\""}}},
        {"a = \"", {{"a", ""}}},
        {"a =", {{"a", ""}}},
        {"a = 12\r\n", {{"a", "12\r\n"}}},
        {"--a = \"comment", {}},
    };
    for (const auto& [text, entries] : CASES)
    {
        EXPECT_EQ(parsedGet(text), entries) << text;
        const std::string log = mCore.mPlatform.logTake();
        EXPECT_NE(log.find(PASSED_THE_END), std::string::npos) << text;
        EXPECT_EQ(log.find(PASSED_THE_END), log.rfind(PASSED_THE_END)) << text;
    }
}

TEST_F(znCVariableTableTest, GettersConvertAtEachGet)
{
    struct Case
    {
        const char* mValue;
        s32 mInteger;
        float mFloat;
        bool mBool;
    };
    const Case CASES[] = {
        {"1", 1, 1.0f, true},  {"true", 0, 0.0f, true},   {"True", 0, 0.0f, false},
        {"0", 0, 0.0f, false}, {"12 ", 12, 12.0f, false}, {"-3.5x", -3, -3.5f, false},
        {"", 0, 0.0f, false},  {"2", 2, 2.0f, false},     {"9999999999", INT_MAX, 9999999999.0f, false},
    };
    for (const Case& test : CASES)
    {
        znCVariableTable table;
        table.strSet("Key", test.mValue);
        EXPECT_EQ(table.strGet("kEY", "default"), test.mValue);
        EXPECT_EQ(table.s32Get("KEY", 99), test.mInteger) << test.mValue;
        EXPECT_EQ(table.f32Get("key", 99.0f), test.mFloat) << test.mValue;
        EXPECT_EQ(table.boolGet("key", !test.mBool), test.mBool) << test.mValue;
    }
    const znCVariableTable empty;
    EXPECT_FALSE(empty.keyExistsGet("key"));
    EXPECT_EQ(empty.strGet("key", "d") + empty.strGet("key"), "d");
    EXPECT_EQ(empty.s32Get("key", -1) + empty.s32Get("key"), -1);
    EXPECT_EQ(empty.f32Get("key", 0.5f) + empty.f32Get("key"), 0.5f);
    EXPECT_TRUE(empty.boolGet("key", true) && !empty.boolGet("key"));
}

TEST_F(znCVariableTableTest, SettersWriteText)
{
    znCVariableTable table;
    table.strSet("Same", "lower");
    table.strSet("SAME", "Upper");
    table.s32Set("i", -7);
    table.f32Set("f", 1.0f / 3);
    table.boolSet("t", true);
    table.boolSet("n", false);
    EXPECT_EQ(table.entriesGet(), (Entries{{"same", "Upper"}, {"i", "-7"}, {"f", "0.333333"}, {"t", "1"}, {"n", "0"}}));
}

TEST_F(znCVariableTableTest, KeysByPart)
{
    znCVariableTable table;
    for (const char* key : {"userName", "name", "username2", "userScore", "nickNAME"})
        table.strSet(key, "x");
    EXPECT_EQ(table.keysWithPrefixGet("USER"), (std::vector<std::string>{"username", "username2", "userscore"}));
    EXPECT_TRUE(table.keysWithPrefixGet("userz").empty());
    table.keysContainingRemove("Name");
    EXPECT_EQ(table.keysWithPrefixGet(""), std::vector<std::string>{"userscore"});
    znCVariableTable other;
    other.strSet("userScore", "new");
    other.strSet("more", "m");
    table.tableMerge(other);
    table.tableMerge(table);
    EXPECT_EQ(table.entriesGet(), (Entries{{"more", "m"}, {"userscore", "new"}}));
}

TEST_F(znCVariableTableTest, SavedFilesReadBack)
{
    znCVariableTable table;
    table.strSet("LevDat:quay", "12,34,\"odd\" text,\r\nline");
    table.strSet("a", "");
    table.strSet("b", "ends with a quote\"");
    EXPECT_TRUE(table.fileSave(SAVED));
    EXPECT_EQ(mFiles.fileGet("ram://table.txt"),
              "a = \"\",\r\nb = \"ends with a quote\"\",\r\nlevdat:quay = \"12,34,\"odd\" text,\r\nline\",\r\n");
    znCVariableTable back;
    back.strSet("old", "stays");
    EXPECT_EQ(back.loadStatusGet(), znCVariableTable::STATUS_NOTHING_LOADED);
    EXPECT_EQ(back.fileLoad(SAVED), znCVariableTable::STATUS_LOADED);
    EXPECT_EQ(back.strGet("old"), "stays");
    EXPECT_EQ(back.strGet("levdat:quay"), table.strGet("levdat:quay"));
    EXPECT_EQ(back.strGet("b"), "ends with a quote\"");
}

TEST_F(znCVariableTableTest, EmptiedTableStaysEmpty)
{
    znCVariableTable table;
    table.strSet("a", "1");
    ASSERT_TRUE(table.fileSave(SAVED));
    table.keysContainingRemove("a");
    ASSERT_TRUE(table.fileSave(SAVED));
    EXPECT_EQ(table.fileLoad(SAVED), znCVariableTable::STATUS_LOADED);
    EXPECT_TRUE(table.entriesGet().empty());
}

TEST_F(znCVariableTableTest, FilesThatFail)
{
    znCVariableTable table;
    EXPECT_EQ(table.fileLoad(SAVED), znCVariableTable::STATUS_MISSING);
    mFiles.fileSet("ram://table.txt", "");
    EXPECT_EQ(table.fileLoad(SAVED), znCVariableTable::STATUS_MISSING);
    mFiles.fileSet("ram://table.txt", "a = \"1\",\r\n");
    mFiles.faultSet(znCTestFiles::Operation::open, 1);
    EXPECT_EQ(table.fileLoad(SAVED), znCVariableTable::STATUS_MISSING);
    EXPECT_EQ(mCore.mPlatform.logTake(), "") << "a missing file is no fault of a table";
    mFiles.faultSet(znCTestFiles::Operation::read, 1);
    EXPECT_EQ(table.fileLoad(SAVED), znCVariableTable::STATUS_READ_FAILED);
    EXPECT_TRUE(table.entriesGet().empty());

    mFiles.fileSet("ram://table.txt", "a = \"1\",\r\n\r\nb = \"2\r\n");
    mCore.mPlatform.logTake();
    EXPECT_EQ(table.fileLoad(SAVED), znCVariableTable::STATUS_LOADED);
    EXPECT_EQ(mCore.mPlatform.logCountGet("File ram://table.txt, line 3: this entry has no end.\n"), 1);

    mFiles.faultSet(znCTestFiles::Operation::write, 1);
    EXPECT_FALSE(table.fileSave(SAVED));
    EXPECT_EQ(mCore.mPlatform.logCountGet("File ram://table.txt could not be written.\n"), 1);
    EXPECT_EQ(table.fileLoad(SAVED), znCVariableTable::STATUS_LOADED) << "the older file stands";
}
