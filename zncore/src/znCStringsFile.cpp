#include "zncore/src/znCStringsFile.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znNCoreUtils.h"
#include "zncore/znStr.h"

namespace
{
constexpr s32 ELLIPSIS = 0x2026;

// The lines of the file, read in order.
class LineReader
{
public:
    explicit LineReader(const znCResourceName& pName) : mLines(znNCoreUtils::textFileReadToVector(pName)) {}

    bool lineRead(znStr& pOut)
    {
        if (mNext == mLines.size())
            return false;
        pOut = mLines[mNext++];
        return true;
    }

    bool lineWithRead(const char* pText)
    {
        while (mNext < mLines.size())
            if (mLines[mNext++].find(pText) != std::string::npos)
                return true;
        return false;
    }

    // From 1, of the line read last.
    s32 lineNumberGet() const { return static_cast<s32>(mNext); }

    // Whether a cell follows before the table's end.
    bool cellLeft() const
    {
        for (auto i = mNext; i < mLines.size() && mLines[i].find("</Table>") == std::string::npos; ++i)
            if (mLines[i].find("<Cell") != std::string::npos)
                return true;
        return false;
    }

private:
    std::vector<std::string> mLines;
    std::vector<std::string>::size_type mNext = 0;
};

bool contains(const std::string& pText, const char* pPart)
{
    return pText.find(pPart) != std::string::npos;
}

// Erases the tags that the text begins with, over the next lines if one is left open. False if the lines run out.
bool tagsDrop(LineReader& pLines, znStr& pText)
{
    for (bool open = false; open || pText.starts_with('<');)
    {
        const std::string::size_type end = pText.find('>');
        open = end == std::string::npos;
        if (!open)
            pText.erase(0, end + 1);
        else if (!pLines.lineRead(pText))
            return false;
    }
    return true;
}

// False if the next line is no cell. A cell of another type than text or number is an empty text.
bool cellRead(LineReader& pLines, znStr& pOut)
{
    pOut.clear();
    znStr line;
    if (!pLines.lineRead(line) || contains(line, "</Row>") || !contains(line, "<Cell"))
        return false;
    if (!contains(line, "ss:Type=\"String\"") && !contains(line, "ss:Type=\"Number\""))
        return true;
    line.trimLeft();
    if (!tagsDrop(pLines, line))
        return false;
    pOut = line.tokenCut("<");
    return true;
}
// A row without a first cell ends the table. That may be a slip where more rows follow.
void endReport(const LineReader& pLines, const znCResourceName& pName)
{
    if (pLines.cellLeft())
        ZN_LOG("%s line %d: The table ends at a row without a first cell, and the rows behind it are left out.\n",
               pName.nameGet().c_str(), pLines.lineNumberGet());
}
} // namespace

znCStringsFile::znCStringsFile() : mEllipsisText(znStr(ELLIPSIS)) {}

void znCStringsFile::spreadsheetLoad(const znCResourceName& pName)
{
    LineReader lines(pName);
    znStr key;
    znStr value;
    while (lines.lineWithRead("<Row"))
    {
        if (!cellRead(lines, key))
            return endReport(lines, pName);
        cellRead(lines, value);
        value.replaceAll(mEllipsisText, "...");
        if (!value.empty())
            strSet(key, value);
    }
}
