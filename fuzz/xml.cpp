// Any bytes as an XML file: parsed, and every node and attribute read.

#include "tests/support/znCTestPlatform.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/xml/znIXmlParser.h"
#include "zncore/znCResourceName.h"
#include <cstddef>

namespace
{
void nodeRead(const boost::shared_ptr<znIXmlNode>& pNode)
{
    pNode->nameGet();
    pNode->valueGet();
    for (auto attribute = pNode->attributesBegin(); attribute != pNode->attributesEnd(); ++attribute)
    {
        attribute->nameGet();
        attribute->s32ValueGet();
    }
    for (auto child = pNode->childrenBegin(); child != pNode->childrenEnd(); ++child)
        nodeRead(*child);
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* pData, std::size_t pSize)
{
    znCTestPlatform platform;
    platform.mFiles.fileSet("fuzz.xml", std::string(reinterpret_cast<const char*>(pData), pSize));
    znIDebug::create();
    const boost::shared_ptr<znIXmlParser> parser = znIXmlParser::create();
    parser->parse(znCResourceName("fuzz.xml", znCResourceName::GAME_DATA));
    if (parser->rootGet() != nullptr)
        nodeRead(parser->rootGet());
    parser->nodeFind(nullptr, "timeline");
    znIDebug::destroy();
    return 0;
}
