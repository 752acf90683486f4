#include "znappcore/components/gui/znCGuiText.h"

#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNByteOrderMark.h"
#include "zncore/znNCoreUtils.h"
#include "zncore/znStr.h"

#include <algorithm>

namespace
{
constexpr std::size_t INDENT_LIMIT = 256; // characters that are looked at
constexpr s32 TAB_WIDTH = 4;

// White space and comments.
void blankSkip(std::string_view& pText)
{
    for (;;)
    {
        pText.remove_prefix(std::min(pText.find_first_not_of(" \t\r\n"), pText.size()));
        if (!pText.starts_with('#'))
            return;
        pText.remove_prefix(std::min(pText.find('\n'), pText.size()));
    }
}

std::size_t offsetGet(std::string_view pPart, std::string_view pWhole)
{
    return static_cast<std::size_t>(pPart.data() - pWhole.data());
}

// The indent of what stands at pOffset; -1 if it isn't the first of its line.
s32 indentGet(std::string_view pWhole, std::size_t pOffset)
{
    s32 indent = 0;
    const std::size_t end = pOffset - std::min(pOffset, INDENT_LIMIT);
    for (std::size_t i = pOffset; i > end; --i)
    {
        const char before = pWhole[i - 1];
        if (before == '\n')
            return indent;
        if (before != ' ' && before != '\t')
            return -1;
        indent += before == '\t' ? TAB_WIDTH : 1;
    }
    return end == 0 ? indent : -1;
}
} // namespace

// Calls pVisit with each token and where it begins and ends in pText, until it returns true. False at the end.
template <class Visit>
bool znCGuiText::tokensVisit(std::string_view pText, std::string_view pWhole, const Visit& pVisit)
{
    for (std::string_view left = pText; blankSkip(left), !left.empty();)
    {
        const std::size_t begin = offsetGet(left, pText);
        const Token token = tokenCut(left, pWhole, false);
        if (token.mText.empty() && !token.mQuoted)
            left.remove_prefix(1); // an equals sign
        if (pVisit(token, begin, offsetGet(left, pText)))
            return true;
    }
    return false;
}

std::string_view znCGuiText::keep(std::string&& pText)
{
    mKept.push_back(std::move(pText));
    return mKept.back();
}

znCGuiText::Result znCGuiText::fileInsert(const znCResourceName& pName)
{
    if (!znIFile::existsGet(pName))
        return Result::missing;
    std::string content;
    znNCoreUtils::fileRead(pName, static_cast<s32>(SIZE_LIMIT), content);
    const std::string_view whole = znNByteOrderMark::cut(keep(std::move(content)));
    const std::string_view name = keep(std::string(pName.nameGet()));
    s32 depth = 0;
    tokensVisit(whole, whole,
                [&](const Token& pToken, std::size_t, std::size_t)
                {
                    depth += pToken.depthChangeGet();
                    return false;
                });
    return textPush({name, false, whole, whole, {name, 1}, 0, depth == 0});
}

znCGuiText::Result znCGuiText::blockInsert(std::string_view pName, const Block& pBlock, bool pOpen)
{
    const std::string_view text = pOpen ? pBlock.mBody.substr(0, pBlock.mLastClosing) : pBlock.mBody;
    return textPush({pName, true, text, text, pBlock.mPlace, 0, true});
}

znCGuiText::Result znCGuiText::textPush(const Text& pText)
{
    for (const Text& text : mTexts)
        if (text.mStyle == pText.mStyle && text.mName == pText.mName)
            return Result::withinItself;
    if (mTexts.size() >= DEPTH_LIMIT || mSize + pText.mWhole.size() > SIZE_LIMIT)
        return Result::tooMuch;
    mSize += pText.mWhole.size();
    mTexts.push_back(pText);
    return Result::done;
}

bool znCGuiText::tokenNext(Token& pToken, bool pValue)
{
    while (!mTexts.empty())
    {
        Text& text = mTexts.back();
        blankSkip(text.mLeft);
        if (!text.mLeft.empty())
        {
            placeCount(text);
            mReturn = text.mLeft;
            pToken = tokenCut(text.mLeft, text.mWhole, pValue);
            pToken.mPlace = text.mPlace;
            return true;
        }
        mTexts.pop_back();
    }
    return false;
}

void znCGuiText::placeCount(Text& pText)
{
    const std::size_t offset = offsetGet(pText.mLeft, pText.mWhole);
    if (offset > pText.mCounted)
    {
        const char* begin = pText.mWhole.data();
        pText.mPlace.mLine += static_cast<s32>(std::count(begin + pText.mCounted, begin + offset, '\n'));
        pText.mCounted = offset;
    }
}

znCGuiText::Token znCGuiText::tokenCut(std::string_view& pLeft, std::string_view pWhole, bool pValue)
{
    Token token;
    token.mIndent = indentGet(pWhole, offsetGet(pLeft, pWhole));
    token.mFirstOfLine = token.mIndent >= 0;
    if (!pValue && pLeft.starts_with('{'))
    {
        token.mText = pLeft.substr(0, 1);
        pLeft.remove_prefix(1);
        return token;
    }
    token.mQuoted = pLeft.starts_with('"');
    if (!token.mQuoted)
    {
        token.mText = znStr::chunk(pLeft);
        return token;
    }
    pLeft.remove_prefix(1);
    const std::size_t end = std::min(pLeft.find_first_of("\"\n"), pLeft.size());
    token.mText = pLeft.substr(0, end);
    pLeft.remove_prefix(end);
    token.mQuoteMissing = !pLeft.starts_with('"');
    if (!token.mQuoteMissing)
        pLeft.remove_prefix(1);
    else if (token.mText.ends_with('\r'))
        token.mText.remove_suffix(1);
    return token;
}

bool znCGuiText::characterTake(char pCharacter)
{
    if (mTexts.empty())
        return false;
    std::string_view left = mTexts.back().mLeft;
    blankSkip(left);
    if (!left.starts_with(pCharacter))
        return false;
    mTexts.back().mLeft = left.substr(1);
    return true;
}

void znCGuiText::lineDrop()
{
    if (!mTexts.empty())
    {
        std::string_view& left = mTexts.back().mLeft;
        left.remove_prefix(std::min(left.find('\n'), left.size()));
    }
}

znCGuiText::Block znCGuiText::blockTake(s32 pIndent)
{
    Block block;
    if (mTexts.empty())
        return block;
    Text& text = mTexts.back();
    placeCount(text);
    block.mPlace = text.mPlace;
    const std::string_view start = text.mLeft;
    std::size_t recovery = start.size(); // the first line that isn't indented enough to be part of the block
    s32 depth = 1;
    const bool closed = tokensVisit(start, text.mWhole,
                                    [&](const Token& pToken, std::size_t pBegin, std::size_t pEnd)
                                    {
                                        if (pToken.mFirstOfLine && pToken.mIndent <= pIndent)
                                            recovery = std::min(recovery, pBegin);
                                        depth += pToken.depthChangeGet();
                                        if (pToken.isClosing() && depth > 0)
                                            block.mLastClosing = pBegin;
                                        block.mBody = start.substr(0, pBegin);
                                        text.mLeft = start.substr(pEnd);
                                        return depth == 0;
                                    });
    if (closed)
        return block;
    text.mLeft = start.substr(recovery);
    block = blockMend(start.substr(0, recovery), block.mPlace);
    characterTake('}'); // the block's own: one within it is missing
    return block;
}

// A block that lacks closing braces, with them.
znCGuiText::Block znCGuiText::blockMend(std::string_view pBody, const Place& pPlace)
{
    Block block{pBody, pPlace, std::string_view::npos, false};
    s32 depth = 0;
    tokensVisit(pBody, pBody,
                [&](const Token& pToken, std::size_t pBegin, std::size_t)
                {
                    depth += pToken.depthChangeGet();
                    if (pToken.isClosing())
                        block.mLastClosing = pBegin;
                    return false;
                });
    if (depth <= 0)
        return block;
    std::string mended(pBody);
    for (; depth > 0; --depth)
        mended += "\n}";
    block.mLastClosing = mended.size() - 1;
    block.mBody = keep(std::move(mended));
    return block;
}

znCGuiText::Place znCGuiText::usePlaceGet() const
{
    for (auto text = mTexts.rbegin(); text != mTexts.rend(); ++text)
        if (!text->mStyle)
            return text->mPlace;
    return {};
}
