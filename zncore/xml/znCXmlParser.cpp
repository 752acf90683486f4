#include "zncore/xml/znCXmlParser.h"
#include "zncore/xml/znCXmlNode.h"
#include <boost/make_shared.hpp>

namespace
{
// The next node behind pNode, depth first, that lies below pTop; null behind the last.
znXmlNode* following(znXmlNode* pNode, const znXmlNode* pTop)
{
    if (pNode->mFirstChild != nullptr)
        return pNode->mFirstChild;
    while (pNode != pTop && pNode->mNext == nullptr)
        pNode = pNode->mParent;
    return pNode == pTop ? nullptr : pNode->mNext;
}
} // namespace

boost::shared_ptr<znIXmlParser> znIXmlParser::create()
{
    return boost::make_shared<znCXmlParser>();
}

const char* znIXmlParser::resultTextGet(s32 pResult)
{
    static constexpr const char* TEXTS[] = {"success",
                                            "No XML tags found",
                                            "XML file could not be read",
                                            "Missing end tag",
                                            "Missing close comment '-->'",
                                            "Mismatched end tag",
                                            "Missing '=' sign in attribute definition",
                                            "Missing value in attribute definition",
                                            "Missing closing quote in attribute value definition",
                                            "Invalid tag",
                                            nullptr,
                                            "tag pool exhausted",
                                            "pools not set up"};
    const bool known = pResult >= 0 && pResult < static_cast<s32>(std::size(TEXTS)) && TEXTS[pResult] != nullptr;
    return known ? TEXTS[pResult] : "unknown result";
}

s32 znIXmlParser::lineGet(const znCResourceName& pName, const znIXmlNode& pNode)
{
    const znXmlNode* node = static_cast<const znCXmlNode&>(pNode).handleGet().elementGet();
    if (node == nullptr)
        return 0;
    const bool root = node->mParent == nullptr; // its name isn't in the file
    const std::ptrdiff_t offset = root ? 0 : node->mName.mBegin - znXmlPools::instanceGet().textGet();
    return znCXmlFileReader::lineGet(pName, static_cast<s32>(offset));
}

void znCXmlParser::poolsCreate(s32 pTags)
{
    znXmlPools::instanceGet().create(pTags);
}

void znCXmlParser::poolsDestroy()
{
    znXmlPools::instanceGet().destroy();
}

s32 znCXmlParser::parse(const znCResourceName& pName)
{
    const s32 result = mParser.parse(pName);
    mGeneration = znXmlPools::instanceGet().generationGet();
    return result;
}

boost::shared_ptr<znIXmlNode> znCXmlParser::rootGet() const
{
    if (mParser.rootGet() == nullptr)
        return boost::shared_ptr<znIXmlNode>();
    return boost::make_shared<znCXmlNode>(znXmlHandle<znXmlNode>(mParser.rootGet(), mGeneration));
}

boost::shared_ptr<znIXmlNode> znCXmlParser::nodeFind(const boost::shared_ptr<znIXmlNode>& pParent,
                                                     const char* pName) const
{
    const znXmlHandle<znXmlNode> start = pParent != nullptr ? static_cast<const znCXmlNode&>(*pParent).handleGet()
                                                            : znXmlHandle<znXmlNode>(mParser.rootGet(), mGeneration);
    znXmlNode* const top = start.elementGet();
    znXmlNode* node = top;
    while (node != nullptr && node->mName.viewGet() != pName)
        node = following(node, top);
    if (node == nullptr)
        return boost::shared_ptr<znIXmlNode>();
    return boost::make_shared<znCXmlNode>(znXmlHandle<znXmlNode>(node, start.generationGet()));
}
