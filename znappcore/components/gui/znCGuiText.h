#ifndef ZNAPPCORE_COMPONENTS_GUI_ZNCGUITEXT_H
#define ZNAPPCORE_COMPONENTS_GUI_ZNCGUITEXT_H

// The text of a GUI file as one row of tokens, with the texts of included files and of styles put in where they are
// named. Keeps book of the file and line of everything. What is put in is limited in depth and size, so that no file
// can make the row endless.
//
// Tokens are those of znStr::chunk, but a quoted token ends with its line at the latest: a forgotten quote then costs
// one value and not the next one too. A token also ends with the text that it stands in, and an opening brace needs no
// blank behind it.

#include "zncore/znTypes.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

class znCResourceName;

class znCGuiText
{
public:
    static constexpr std::size_t DEPTH_LIMIT = 16;      // texts within texts
    static constexpr std::size_t SIZE_LIMIT = 4u << 20; // bytes of all texts together

    struct Place
    {
        std::string_view mFile;
        s32 mLine = 0;
    };

    // Views are valid as long as the znCGuiText.
    struct Token
    {
        std::string_view mText;
        Place mPlace;
        bool mQuoted = false;
        bool mQuoteMissing = false; // the line ended before the closing quote
        bool mFirstOfLine = false;
        s32 mIndent = 0; // blanks before it if it is the first of its line; a tab counts as four

        // A brace with something before it still opens; one that closes must stand alone.
        bool isOpening() const { return !mQuoted && mText.ends_with('{'); }
        bool isClosing() const { return !mQuoted && mText == "}"; }
        s32 depthChangeGet() const { return isOpening() ? 1 : isClosing() ? -1 : 0; }
    };

    // What stands between a pair of braces.
    struct Block
    {
        std::string_view mBody;                            // without the outer braces
        Place mPlace;                                      // of the body's start
        std::size_t mLastClosing = std::string_view::npos; // the last closing brace in the body
        bool mClosed = true; // false: the closing brace is missing; the body then ends before the first line that is
                             // indented no more than the block's own first line
    };

    enum class Result
    {
        done,
        missing,
        withinItself, // the text of that name is being read
        tooMuch       // DEPTH_LIMIT or SIZE_LIMIT
    };

    // Puts the text of a file in front of what is left.
    Result fileInsert(const znCResourceName& pName);
    // Puts a block's body in front of what is left; with pOpen only the part before its last closing brace.
    Result blockInsert(std::string_view pName, const Block& pBlock, bool pOpen);

    // False at the end of everything. With pValue the token may begin with an opening brace.
    bool tokenNext(Token& pToken, bool pValue = false);
    // Puts the token that has just come back.
    void tokenReturn() { mTexts.back().mLeft = mReturn; }
    // Steps over pCharacter if it comes next in the innermost text, behind white space and comments.
    bool characterTake(char pCharacter);
    // Drops what is left of the line, but for its end.
    void lineDrop();
    // Reads to behind the brace that closes a block whose opening brace has just been stepped over, or to where the
    // block should have ended. pIndent: of the line that began it.
    Block blockTake(s32 pIndent);

    // Where the last token stands, or where the outermost style is named that it stands in.
    Place usePlaceGet() const;
    // How many texts are being read, one within the other.
    std::size_t depthGet() const { return mTexts.size(); }
    // Whether the innermost text has as many closing as opening braces.
    bool bracesMatch() const { return mTexts.empty() || mTexts.back().mBracesMatch; }

private:
    struct Text
    {
        std::string_view mName; // of the file or the style
        bool mStyle;
        std::string_view mWhole;
        std::string_view mLeft;
        Place mPlace;         // of the last token
        std::size_t mCounted; // how far into mWhole mPlace has been counted
        bool mBracesMatch;
    };

    Result textPush(const Text& pText);
    static Token tokenCut(std::string_view& pLeft, std::string_view pWhole, bool pValue);
    template <class Visit>
    static bool tokensVisit(std::string_view pText, std::string_view pWhole, const Visit& pVisit);
    static void placeCount(Text& pText);
    std::string_view keep(std::string&& pText);
    Block blockMend(std::string_view pBody, const Place& pPlace);

    std::vector<Text> mTexts;      // the innermost last
    std::deque<std::string> mKept; // what the views point into
    std::size_t mSize = 0;
    std::string_view mReturn; // what was left before the last token
};

#endif
