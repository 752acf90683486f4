#ifndef ZNCORE_ZNSTR_H
#define ZNCORE_ZNSTR_H

// Text in UTF-8: a std::string with the operations that the program's text needs, and no data of its own, so that the
// two convert freely. Length means code points, size means bytes. Any bytes are allowed: what isn't UTF-8 is counted
// and cut by the same rules, and never read past its end.

#include "zncore/znTypes.h"
#include <string>
#include <string_view>

class znStr : public std::string
{
public:
    using std::string::string;
    znStr() = default;
    znStr(const std::string& pText) : std::string(pText) {}
    znStr(std::string&& pText) noexcept : std::string(std::move(pText)) {}
    // Decimal text; a float as a stream writes it by default (6 significant digits).
    explicit znStr(s32 pValue);
    explicit znStr(uint32 pValue);
    explicit znStr(float pValue);

    // Code points. A lead byte decides how many bytes are skipped behind it; a stray continuation byte counts as one.
    s32 lengthGet() const;

    using std::string::operator+=;
    // Appends the code point as 1 to 4 bytes. Above 0x1FFFFF, or negative, logs "Invalid Unicode value" and appends
    // nothing.
    znStr& operator+=(s32 pCodePoint);

    // ASCII A to Z only.
    void toLower();
    static void toLower(std::string& pText);

    // Blanks, tabs, line feeds and carriage returns.
    void trimLeft();
    void trimRight();

    // Drops code points from the end until lengthGet() is at most pLength.
    void truncate(s32 pLength);

    // Replaces the first occurrence and searches again from the start, until none is left: a replacement can take part
    // in a later match. With a replacement that contains pFind, where that would never end, each occurrence is
    // replaced once; an empty pFind changes nothing.
    void replaceAll(const std::string& pFind, const std::string& pReplace);

    // Returns the text before the first delimiter and erases it and the delimiter; without a delimiter returns
    // everything and leaves the text empty.
    znStr tokenCut(const std::string& pDelimiter);

    // Returns the next token of a GUI file, table of records or the like, and erases it. White space and comments
    // ("#" to the end of the line) before it are dropped. A quoted token ends at the next double quote and may hold
    // anything else; without one it runs to the end and logs "Missing '\"' in string.\n". Other tokens end before
    // "=", white space or the end, and white space behind them goes too. A text that starts with "=" gives an empty
    // token and keeps it: the caller must step over the "=" itself.
    znStr chunk();
    // The same on a view, which moves forward instead: reading a whole file token by token stays linear.
    static std::string_view chunk(std::string_view& pText);

    // Erases all from each "&lt;" to the next "&gt;", both included. A "&lt;" without one logs
    // "XML tag appears to not be terminated" and ends the search.
    void removeXmlTags();

    // Nothing changes when the text isn't there.
    void afterLastCut(const std::string& pSeparator); // erases up to and including the last separator
    void fromLastCut(const std::string& pText);       // erases from the last occurrence to the end

    // The leading decimal number, 0 if there is none; what doesn't fit becomes the nearest value that does.
    s32 toS32() const;
    float toF32() const;
    static s32 toS32(std::string_view pText);
    static float toF32(std::string_view pText);
};

#endif
