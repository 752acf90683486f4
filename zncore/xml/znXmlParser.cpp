#include "zncore/xml/znXmlParser.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/xml/znIXmlParser.h"
#include "zncore/znCResourceName.h"
#include <algorithm>

namespace
{
constexpr std::size_t TAG_LIMIT = 262144;
constexpr s32 ATTRIBUTE_LIMIT = 256; // of one element: the time to tell its names apart grows with their square
constexpr s32 DEPTH_LIMIT = 512;

constexpr std::string_view ROOT_NAME = ".";
constexpr std::string_view DECLARATION_BEGIN = "<?xml";
constexpr std::string_view DECLARATION_END = "?>";

struct Entity
{
    std::string_view mName;
    char mLetter;
};
constexpr Entity ENTITIES[] = {{"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&quot;", '"'}, {"&apos;", '\''}};

u32 hashGet(std::string_view pText)
{
    u32 hash = 0;
    for (const char letter : pText)
        hash = hash * 33u + static_cast<u8>(letter);
    return hash;
}

bool spaceGet(char pLetter)
{
    return pLetter == ' ' || pLetter == '\t' || pLetter == '\n' || pLetter == '\r';
}

std::string_view nameGet(std::string_view pText)
{
    std::string_view::size_type size = 0;
    while (size < pText.size() && !spaceGet(pText[size]) && pText[size] != '=' && pText[size] != '>')
        ++size;
    return pText.substr(0, size);
}

// Where an attribute's value ends. Values are short: a loop beats the library's search.
struct ValueEnd
{
    std::string_view::size_type mQuote; // the closing one, behind no backslash; the size of the text without one
    bool mEntities;                     // there is an "&" before it
};

ValueEnd valueEndFind(std::string_view pText)
{
    ValueEnd end = {0, false};
    char before = '\0';
    while (end.mQuote < pText.size() && (pText[end.mQuote] != '"' || before == '\\'))
    {
        before = pText[end.mQuote++];
        end.mEntities |= before == '&';
    }
    return end;
}

// Resolves the named entities where they stand and returns the new size.
s32 entitiesResolve(char* pText, s32 pSize)
{
    const std::string_view text(pText, static_cast<std::size_t>(pSize));
    char* out = pText;
    for (std::string_view::size_type at = 0; at < text.size();)
    {
        const auto entity = std::find_if(std::begin(ENTITIES), std::end(ENTITIES),
                                         [&](const Entity& pEntity)
                                         { return text[at] == '&' && text.substr(at).starts_with(pEntity.mName); });
        const bool found = entity != std::end(ENTITIES);
        *out++ = found ? entity->mLetter : text[at];
        at += found ? entity->mName.size() : 1;
    }
    return static_cast<s32>(out - pText);
}

bool attributeExists(const znXmlNode& pNode, u32 pHash)
{
    const znXmlAttribute* attribute = pNode.mFirstAttribute;
    while (attribute != nullptr && attribute->mHash != pHash)
        attribute = attribute->mNext;
    return attribute != nullptr;
}
} // namespace

s32 znXmlParser::parse(const znCResourceName& pName)
{
    mRoot = nullptr;
    mFault = {znIXmlParser::SUCCESS, -1};
    const s32 result = parseDo(pName);
    faultReport(pName);
    return result;
}

// Reads the file and makes the pools large enough. The text goes to the pools: nodes outlive their parser.
bool znXmlParser::preParse(const znCResourceName& pName)
{
    const bool opened = mReader.open(pName);
    ZN_ASSERT(opened, "Failed to open xml file.");
    if (!opened)
        return false;
    if (!mReader.commentsRemove())
    {
        mFault = {znIXmlParser::MISSING_CLOSE_COMMENT, mReader.brokenOffsetGet()};
        return false;
    }
    std::vector<znXmlTagMarker>& markers = mPools.markersGet();
    markers.clear();
    for (znXmlTagMarker marker; markers.size() <= TAG_LIMIT && mReader.tokenRead(marker);)
        markers.push_back(marker);
    mFault = mReader.brokenOffsetGet() < 0 ? mFault : Fault{znIXmlParser::INVALID_TAG, mReader.brokenOffsetGet()};
    mPools.create(static_cast<s32>(std::min(markers.size(), TAG_LIMIT)));
    const s32 size = mReader.sizeGet();
    mPools.restart(mReader.bufferRelease());
    mReader.bufferUse(mPools.textGet(), size);
    return true;
}

s32 znXmlParser::parseDo(const znCResourceName& pName)
{
    const bool read = preParse(pName);
    ZN_ASSERT(mPools.existGet(), "Error:: Xml node and tag pools not setup, call znCXmlParser::poolsCreate()");
    if (!mPools.existGet())
        return faultSet(znIXmlParser::POOLS_NOT_SET_UP, znIXmlParser::READ_FAILED, {});
    if (!read)
        return faultSet(znIXmlParser::READ_FAILED, znIXmlParser::READ_FAILED, {});
    mRoot = mPools.nodeTake();
    mRoot->mName = {ROOT_NAME.data(), static_cast<s32>(ROOT_NAME.size())};
    return tagsList() ? treeBuild() : znIXmlParser::TAG_POOL_EXHAUSTED;
}

// The markers behind the declaration are the tag table.
bool znXmlParser::tagsList()
{
    const std::string_view text(mReader.textGet(), static_cast<std::size_t>(mReader.sizeGet()));
    const std::string_view::size_type declaration = text.find(DECLARATION_BEGIN);
    const std::string_view::size_type end =
        declaration == std::string_view::npos ? declaration : text.find(DECLARATION_END, declaration);
    const s32 start = end == std::string_view::npos ? 0 : static_cast<s32>(end + DECLARATION_END.size());
    const std::vector<znXmlTagMarker>& markers = mPools.markersGet();
    const auto first = std::find_if(markers.begin(), markers.end(),
                                    [start](const znXmlTagMarker& pMarker) { return pMarker.mOffset >= start; });
    mTags = markers.data() + (first - markers.begin());
    mTagCount = static_cast<s32>(markers.end() - first);
    const bool room = mTagCount < mPools.sizeGet();
    ZN_ASSERT(room, "Error: Ran out of tag markers, allocate more");
    if (!room)
        faultSet(znIXmlParser::TAG_POOL_EXHAUSTED, znIXmlParser::TAG_POOL_EXHAUSTED, tokenGet(mPools.sizeGet() - 1));
    else if (mTagCount == 0)
        faultSet(znIXmlParser::NO_TAGS, znIXmlParser::NO_TAGS, {});
    return room;
}

s32 znXmlParser::treeBuild()
{
    mCurrent = mRoot;
    mDepth = 0;
    s32 result = znIXmlParser::SUCCESS;
    for (mTag = 0; mTag < mTagCount && mCurrent != nullptr && result == znIXmlParser::SUCCESS; ++mTag)
    {
        const std::string_view token = tokenGet(mTag);
        if (token.starts_with("</"))
            result = tagClose(token);
        else if (token.starts_with('<'))
            result = tagOpen(token);
    }
    if (result == znIXmlParser::SUCCESS && mCurrent != nullptr && mCurrent != mRoot)
        faultSet(result, znIXmlParser::MISSING_END_TAG, mCurrent->mName.viewGet());
    return result;
}

s32 znXmlParser::tagClose(std::string_view pTag)
{
    const std::string_view name = nameGet(pTag.substr(2));
    ZN_ASSERT(!name.empty(), "znCXmlParser::parse - Invalid close tag");
    if (name.empty())
        return faultSet(znIXmlParser::INVALID_TAG, znIXmlParser::INVALID_TAG, pTag);
    if (name != mCurrent->mName.viewGet())
        return faultSet(znIXmlParser::MISMATCHED_END_TAG, znIXmlParser::MISMATCHED_END_TAG, pTag);
    mCurrent = mCurrent->mParent;
    --mDepth;
    return znIXmlParser::SUCCESS;
}

s32 znXmlParser::tagOpen(std::string_view pTag)
{
    const bool empty = pTag.ends_with("/>");
    const std::string_view content = pTag.substr(1, pTag.size() - (empty ? 3 : 2));
    const std::string_view name = nameGet(content);
    if (name.empty() || mDepth >= DEPTH_LIMIT)
        return faultSet(znIXmlParser::INVALID_TAG, znIXmlParser::INVALID_TAG, pTag);
    znXmlNode* node = mPools.nodeTake();
    ZN_ASSERT(node != nullptr, "Error: Ran out of nodes, allocate more");
    if (node == nullptr)
        return faultSet(znIXmlParser::TAG_POOL_EXHAUSTED, znIXmlParser::TAG_POOL_EXHAUSTED, pTag);
    node->mName = textGet(name);
    const s32 result = attributesParse(*node, content.substr(name.size()));
    if (result != znIXmlParser::SUCCESS)
        return result;
    mCurrent->childAppend(node);
    if (empty)
        return result;
    mCurrent = node;
    ++mDepth;
    valueTake(*node);
    return result;
}

// A text behind a start tag is the element's.
void znXmlParser::valueTake(znXmlNode& pNode)
{
    if (mTag + 1 >= mTagCount || tokenGet(mTag + 1).starts_with('<'))
        return;
    pNode.mValue = textGet(tokenGet(++mTag));
    pNode.mHasValue = true;
}

s32 znXmlParser::attributesParse(znXmlNode& pNode, std::string_view pTag)
{
    for (s32 count = 0;; ++count)
    {
        while (!pTag.empty() && spaceGet(pTag[0]))
            pTag.remove_prefix(1);
        const std::string_view name = nameGet(pTag);
        if (name.empty() || name[0] == '/')
            return znIXmlParser::SUCCESS;
        const std::string_view place = pTag;
        pTag.remove_prefix(std::min(name.size() + 1, pTag.size()));
        const s32 result = count < ATTRIBUTE_LIMIT
                               ? attributeParse(pNode, name, pTag)
                               : faultSet(znIXmlParser::TAG_POOL_EXHAUSTED, znIXmlParser::TAG_POOL_EXHAUSTED, place);
        if (result != znIXmlParser::SUCCESS)
            return result;
    }
}

// pRest begins behind the name's delimiter and ends up behind the value's closing quote.
s32 znXmlParser::attributeParse(znXmlNode& pNode, std::string_view pName, std::string_view& pRest)
{
    znXmlAttribute* attribute = mPools.attributeTake();
    ZN_ASSERT(attribute != nullptr, "Error: Ran out of attributes, allocate more");
    if (attribute == nullptr)
        return faultSet(znIXmlParser::TAG_POOL_EXHAUSTED, znIXmlParser::TAG_POOL_EXHAUSTED, pName);
    std::string_view::size_type open = 0;
    while (open < pRest.size() && pRest[open] != '"')
        ++open;
    if (open == pRest.size())
        return faultSet(znIXmlParser::INVALID_TAG, znIXmlParser::MISSING_VALUE, pName);
    pRest.remove_prefix(open + 1);
    const ValueEnd end = valueEndFind(pRest);
    if (end.mQuote == pRest.size())
        return faultSet(znIXmlParser::INVALID_TAG, znIXmlParser::MISSING_CLOSING_QUOTE, pName);
    attribute->mName = textGet(pName);
    attribute->mHash = hashGet(pName);
    attribute->mValue = textGet(pRest.substr(0, end.mQuote));
    if (end.mEntities)
        attribute->mValue.mSize =
            entitiesResolve(mPools.textGet() + (pRest.data() - mPools.textGet()), attribute->mValue.mSize);
    pRest.remove_prefix(end.mQuote + 1);
    if (!attributeExists(pNode, attribute->mHash))
        pNode.attributeAppend(attribute);
    return znIXmlParser::SUCCESS;
}

std::string_view znXmlParser::tokenGet(s32 pTag) const
{
    return std::string_view(mReader.textGet() + mTags[pTag].mOffset, static_cast<std::size_t>(mTags[pTag].mLength));
}

znXmlText znXmlParser::textGet(std::string_view pPart) const
{
    return {pPart.data(), static_cast<s32>(pPart.size())};
}

// Returns pResult. A fault that is known already came first in the file and stays.
s32 znXmlParser::faultSet(s32 pResult, s32 pCode, std::string_view pPlace)
{
    const s32 offset = pPlace.data() == nullptr ? -1 : static_cast<s32>(pPlace.data() - mReader.textGet());
    if (mFault.mCode == znIXmlParser::SUCCESS || (offset >= 0 && offset < mFault.mOffset))
        mFault = {pCode, offset};
    return pResult;
}

void znXmlParser::faultReport(const znCResourceName& pName) const
{
    if (mFault.mCode == znIXmlParser::SUCCESS)
        return;
    const char* text = znIXmlParser::resultTextGet(mFault.mCode);
    if (mFault.mOffset < 0)
        ZN_LOG("File %s: %s.\n", pName.nameGet().c_str(), text);
    else
        ZN_LOG("File %s, line %d: %s.\n", pName.nameGet().c_str(), znCXmlFileReader::lineGet(pName, mFault.mOffset),
               text);
}
