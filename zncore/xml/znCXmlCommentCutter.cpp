#include "zncore/xml/znCXmlCommentCutter.h"
#include <algorithm>

namespace
{
constexpr std::string_view BEGIN = "<!--";
constexpr std::string_view END = "-->";
constexpr std::string_view LINE_FEED = "\\n";
} // namespace

znCXmlCommentCutter::znCXmlCommentCutter(std::string_view pText)
    : mText(pText), mComment(pText.find(BEGIN)), mBackslash(pText.find('\\'))
{
}

bool znCXmlCommentCutter::partRead(std::string_view& pOut)
{
    while (mPosition == mComment)
        if (!commentSkip())
            return false;
    if (mPosition >= mText.size())
        return false;
    if (mPosition == mBackslash)
    {
        backslashRead(pOut);
        return true;
    }
    const std::string_view::size_type end = std::min({mComment, mBackslash, mText.size()});
    pOut = mText.substr(mPosition, end - mPosition);
    mPosition = end;
    return true;
}

// A begin so close to the end of the text that no comment fits is text.
bool znCXmlCommentCutter::commentSkip()
{
    if (mText.size() - mPosition < BEGIN.size() + END.size())
    {
        mComment = std::string_view::npos;
        return true;
    }
    const std::string_view::size_type end = mText.find(END, mPosition + BEGIN.size());
    mCommentOpen = end == std::string_view::npos;
    if (mCommentOpen)
        return false;
    mPosition = end + END.size();
    mComment = mText.find(BEGIN, mPosition);
    if (mBackslash < mPosition)
        mBackslash = mText.find('\\', mPosition);
    return true;
}

void znCXmlCommentCutter::backslashRead(std::string_view& pOut)
{
    const bool lineFeed = mText.substr(mPosition).starts_with(LINE_FEED);
    pOut = lineFeed ? std::string_view("\n") : mText.substr(mPosition, 1);
    mPosition += lineFeed ? LINE_FEED.size() : 1;
    mBackslash = mText.find('\\', mPosition);
}
