#include "zncore/xml/znIXmlParser.h"
#include "tests/support/znCTestCore.h"
#include "zncore/xml/znCXmlParser.h"
#include "zncore/xml/znXmlPools.h"
#include "zncore/znCResourceName.h"
#include "zncore/znNCoreUtils.h"
#include <gtest/gtest.h>

namespace
{
const znCResourceName FILE_NAME("lamp.xml", znCResourceName::GAME_DATA);

std::string repeated(const std::string& pText, s32 pCount)
{
    std::string text;
    for (s32 i = 0; i < pCount; ++i)
        text += pText;
    return text;
}

// The tree in one line: name[attribute=value|...]'text'(children).
std::string treeGet(const boost::shared_ptr<znIXmlNode>& pNode)
{
    if (pNode == nullptr)
        return "null";
    std::string attributes;
    for (auto attribute = pNode->attributesBegin(); attribute != pNode->attributesEnd(); ++attribute)
        attributes += (attributes.empty() ? "" : "|") + (*attribute)->nameGet() + "=" + attribute->valueGet();
    std::string children;
    for (auto child = pNode->childrenBegin(); child != pNode->childrenEnd(); ++child)
        children += treeGet(*child);
    return pNode->nameGet() + (attributes.empty() ? "" : "[" + attributes + "]") +
           (pNode->valueGet().empty() ? "" : "'" + pNode->valueGet() + "'") +
           (children.empty() ? "" : "(" + children + ")");
}

class znIXmlParserTest : public ::testing::Test
{
protected:
    ~znIXmlParserTest() override { znCXmlParser::poolsDestroy(); }

    s32 parse(const std::string& pContent)
    {
        mCore.mPlatform.mFiles.fileSet("lamp.xml", pContent);
        return mParser->parse(FILE_NAME);
    }

    znCTestCore mCore;
    boost::shared_ptr<znIXmlParser> mParser = znIXmlParser::create();
};
} // namespace

TEST_F(znIXmlParserTest, Trees)
{
    const std::pair<const char*, const char*> CASES[] = {
        {"<a/>", ".(a)"},
        {"<a b=\"1\" b=\"2\" c=\"3\"/>", ".(a[b=1|c=3])"},
        {"<a>text</a>", ".(a'text')"},
        {"<a> <b/> text </a>", ".(a(b))"},
        {"<a>\r\n\t first <b>second</b> third</a>", ".(a'first '(b'second'))"},
        {"<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<a/>", ".(a)"},
        {"\xEF\xBB\xBF<?xml version=\"1.0\"?><a/>", ".(a)"},
        {"\xEF\xBB\xBF<a/>", ".(a)"},
        {"<a/><b/>tail", ".(ab)"},
        {"<a\n  b = \"1\"\tc=\"2\"\n/>", ".(a[b=1|c=2])"},
        {"<a b=\"&lt;&gt;&amp;&quot;&apos;&#45;&amp;lt;&no;\">&lt;</a>", ".(a[b=<>&\"'&#45;&lt;&no;]'&lt;')"},
        {"<a b=\"say \\\"hi\\\"\" c=\"\"/>", ".(a[b=say \\\"hi\\\"|c=])"},
        {"<a b=\"x\\ny\\z\">1\\n2</a>", ".(a[b=x\ny\\z]'1\n2')"},
        {"<a><!-- <b/> --><c/><!----></a>", ".(a(c))"},
        {"<!--one--><a b=\"<!--two-->3\"/>", ".(a[b=3])"},
        {"<a / b=\"1\"/>", ".(a)"},
        {"<a =\"1\" b=\"1\"/>", ".(a)"},
        {"<a b=\"\xC3\xA9\">\xE2\x82\xAC</a>", ".(a[b=\xC3\xA9]'\xE2\x82\xAC')"},
        {"<a></.>", nullptr},
        {"<a/></.><b/>", ".(a)"},
    };
    for (const auto& [content, tree] : CASES)
    {
        EXPECT_EQ(parse(content), tree != nullptr ? znIXmlParser::SUCCESS : znIXmlParser::MISMATCHED_END_TAG)
            << content;
        EXPECT_EQ(treeGet(mParser->rootGet()), tree != nullptr ? tree : ".(a)") << content;
    }
}

TEST_F(znIXmlParserTest, FaultsHaveAResultALineAndATree)
{
    struct Case
    {
        const char* mContent;
        s32 mResult;
        const char* mLog;
        const char* mTree;
    };
    const Case CASES[] = {
        {"<a>\n<b>\n</a>", znIXmlParser::MISMATCHED_END_TAG, "lamp.xml, line 3: Mismatched end tag.", ".(a(b))"},
        {"<a>\n</>", znIXmlParser::INVALID_TAG, "znCXmlParser::parse - Invalid close tag", ".(a)"},
        {"<a>\n< b/></a>", znIXmlParser::INVALID_TAG, "lamp.xml, line 2: Invalid tag.", ".(a)"},
        {"<a>\n<b c=1/></a>", znIXmlParser::INVALID_TAG, "line 2: Missing value in attribute definition.", ".(a)"},
        {"<a>\n<b c></b></a>", znIXmlParser::INVALID_TAG, "line 2: Missing value in attribute definition.", ".(a)"},
        {"<a><b c=\"1/>\n</a>", znIXmlParser::INVALID_TAG,
         "line 1: Missing closing quote in attribute value definition.", ".(a)"},
        {"<!--\n\n--><a>\\n\n<b></c></a>", znIXmlParser::MISMATCHED_END_TAG, "line 4: Mismatched end tag.", ".(a(b))"},
        {"<a><b>\n<c/>", znIXmlParser::SUCCESS, "line 1: Missing end tag.", ".(a(b(c)))"},
        {"<a>\n<b <c/>\n</a>", znIXmlParser::SUCCESS, "line 2: Invalid tag.", ".(a(c))"},
        {"<a/>\n<b", znIXmlParser::SUCCESS, "line 2: Invalid tag.", ".(a)"},
        {"<a>\n<!-- open", znIXmlParser::READ_FAILED, "line 2: Missing close comment '-->'.", "null"},
        {"just text", znIXmlParser::SUCCESS, "", "."},
        {"  \n", znIXmlParser::SUCCESS, "File lamp.xml: No XML tags found.", "."},
        {"", znIXmlParser::READ_FAILED, "Failed to open xml file.", "null"},
    };
    znCXmlParser::poolsCreate(1);
    for (const Case& test : CASES)
    {
        mCore.mPlatform.logTake();
        EXPECT_EQ(parse(test.mContent), test.mResult) << test.mContent;
        const std::string log = mCore.mPlatform.logTake();
        EXPECT_NE(log.find(test.mLog), std::string::npos) << log;
        EXPECT_EQ(log.find("LOG("), log.rfind("LOG(")) << "one line with the place";
        EXPECT_EQ(treeGet(mParser->rootGet()), test.mTree) << test.mContent;
    }
}

TEST_F(znIXmlParserTest, MissingFile)
{
    EXPECT_EQ(mParser->parse(FILE_NAME), znIXmlParser::POOLS_NOT_SET_UP);
    EXPECT_EQ(mCore.mPlatform.logCountGet("Error:: Xml node and tag pools not setup, call znCXmlParser::poolsCreate()"),
              1);
    EXPECT_EQ(parse("<a/>"), znIXmlParser::SUCCESS);
    mCore.mPlatform.mFiles.fileRemove("lamp.xml");
    EXPECT_EQ(mParser->parse(FILE_NAME), znIXmlParser::READ_FAILED);
    EXPECT_EQ(mCore.mPlatform.logCountGet("Failed to open xml file."), 2);
    EXPECT_EQ(mParser->rootGet(), nullptr);
    EXPECT_EQ(mParser->nodeFind(nullptr, "a"), nullptr);
    mCore.mPlatform.mFiles.fileSet("lamp.xml", "<a/>");
    mCore.mPlatform.mFiles.faultSet(znCTestFiles::Operation::read, 1);
    EXPECT_EQ(mParser->parse(FILE_NAME), znIXmlParser::READ_FAILED);
    mCore.mPlatform.mFiles.fileSet("lamp.xml", std::string(znNCoreUtils::TEXT_FILE_SIZE_LIMIT + 1, ' '));
    EXPECT_EQ(mParser->parse(FILE_NAME), znIXmlParser::READ_FAILED);
}

TEST_F(znIXmlParserTest, PoolsGrowInStepsAndAreUsedAnew)
{
    EXPECT_EQ(parse("<a/>"), znIXmlParser::SUCCESS);
    EXPECT_EQ(znXmlPools::instanceGet().sizeGet(), 1024);
    // The last marker is never handed out, so that just as many tags as the pool has places are one too many.
    EXPECT_EQ(parse("<a>" + repeated("<b></b>", 511) + "</a>"), znIXmlParser::TAG_POOL_EXHAUSTED);
    EXPECT_EQ(mCore.mPlatform.logCountGet("Error: Ran out of tag markers, allocate more"), 1);
    EXPECT_EQ(treeGet(mParser->rootGet()), ".");
    // So many nodes, with the root, too; the tree stands as far as it got.
    EXPECT_EQ(parse(repeated("<b/>", 1023)), znIXmlParser::TAG_POOL_EXHAUSTED);
    EXPECT_EQ(mCore.mPlatform.logCountGet("Error: Ran out of nodes, allocate more"), 1);
    EXPECT_EQ(treeGet(mParser->rootGet()), ".(" + repeated("b", 1022) + ")");

    EXPECT_EQ(parse("<a>" + repeated("<b></b>", 511) + "text</a>"), znIXmlParser::SUCCESS);
    EXPECT_EQ(znXmlPools::instanceGet().sizeGet(), 2048);
    EXPECT_EQ(parse("<a>" + repeated("<b></b>", 511) + "</a>"), znIXmlParser::SUCCESS) << "the larger pools stay";

    // The root and all others hold 8 attributes each.
    const std::string attributes = " a=\"\" b=\"\" c=\"\" d=\"\" e=\"\" f=\"\" g=\"\" h=\"\"";
    EXPECT_EQ(parse(repeated("<n" + attributes + "/>", 2040)), znIXmlParser::SUCCESS);
    EXPECT_EQ(parse(repeated("<n" + attributes + " i=\"\"/>", 2040)), znIXmlParser::TAG_POOL_EXHAUSTED);
    EXPECT_EQ(mCore.mPlatform.logCountGet("Error: Ran out of attributes, allocate more"), 1);
}

TEST_F(znIXmlParserTest, NodesAreFoundDepthFirst)
{
    ASSERT_EQ(parse("<a><b><target n=\"1\"/></b><target n=\"2\"><target n=\"3\"/></target></a><z/>"),
              znIXmlParser::SUCCESS);
    EXPECT_EQ(treeGet(mParser->nodeFind(nullptr, "target")), "target[n=1]");
    const auto second = *++mParser->nodeFind(nullptr, "a")->childrenBegin();
    EXPECT_EQ(treeGet(mParser->nodeFind(second, "target")), "target[n=2](target[n=3])");
    EXPECT_EQ(mParser->nodeFind(second, "z"), nullptr) << "lies outside";
    EXPECT_EQ(mParser->nodeFind(nullptr, "b")->nameGet(), "b");
    EXPECT_EQ(mParser->nodeFind(nullptr, ".")->nameGet(), ".");
    EXPECT_EQ((*mParser->nodeFind(nullptr, "target")->attributesBegin())->s32ValueGet(), 1);
    EXPECT_EQ(*mParser->nodeFind(nullptr, "z")->childrenBegin(), nullptr);
}

TEST_F(znIXmlParserTest, NodesOfAnEarlierParseAreHarmless)
{
    ASSERT_EQ(parse("<old a=\"1\"><b/></old>"), znIXmlParser::SUCCESS);
    const auto node = mParser->nodeFind(nullptr, "old");
    const auto attribute = *node->attributesBegin();
    {
        const auto another = znIXmlParser::create();
        mCore.mPlatform.mFiles.fileSet("lamp.xml", "<new/>");
        ASSERT_EQ(another->parse(FILE_NAME), znIXmlParser::SUCCESS);
    }
    EXPECT_EQ(mCore.mPlatform.logTake(), "");
    EXPECT_EQ(treeGet(node), "");
    EXPECT_EQ(attribute->valueGet(), "");
    EXPECT_NE(mCore.mPlatform.logCountGet("XML nodes of an earlier parse are in use.\n"), 0);
    znCXmlParser::poolsDestroy();
    EXPECT_EQ(treeGet(node), "");
}

TEST_F(znIXmlParserTest, NodesOutliveTheirParser)
{
    boost::shared_ptr<znIXmlNode> root;
    mCore.mPlatform.mFiles.fileSet("lamp.xml", "<a b=\"a value that is long enough for the heap\"/>");
    {
        const auto parser = znIXmlParser::create();
        ASSERT_EQ(parser->parse(FILE_NAME), znIXmlParser::SUCCESS);
        root = parser->rootGet();
    }
    EXPECT_EQ(treeGet(root), ".(a[b=a value that is long enough for the heap])");
}

TEST_F(znIXmlParserTest, HostileFilesAreLimited)
{
    const std::pair<std::string, s32> CASES[] = {
        {repeated("<", 1 << 20), znIXmlParser::SUCCESS},
        {repeated("<a>", 300000), znIXmlParser::TAG_POOL_EXHAUSTED},
        {repeated("<a>", 100000), znIXmlParser::INVALID_TAG},
        {"<a" + repeated(" b=\"\"", 1 << 20) + "/>", znIXmlParser::TAG_POOL_EXHAUSTED},
        {"<a b=\"" + repeated("&amp;", 1 << 18) + "\"/>", znIXmlParser::SUCCESS},
        {repeated("<!---->", 1 << 18), znIXmlParser::SUCCESS},
        {repeated("\\", 1 << 20), znIXmlParser::SUCCESS},
        {repeated("<!--", 1 << 20), znIXmlParser::READ_FAILED},
        {std::string("<a b=\"\0\"/>\0", 11), znIXmlParser::SUCCESS},
    };
    for (const auto& [content, result] : CASES)
        EXPECT_EQ(parse(content), result) << content.substr(0, 20);
}
