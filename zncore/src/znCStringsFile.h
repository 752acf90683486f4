#ifndef ZNCORE_SRC_ZNCSTRINGSFILE_H
#define ZNCORE_SRC_ZNCSTRINGSFILE_H

// A variable table that can also be filled from a spreadsheet in the XML format of 2003: the first cell of each row is
// the key, the second the text. Texts keep the entities of the file.

#include "zncore/src/znCVariableTable.h"

class znCStringsFile : public znCVariableTable
{
public:
    znCStringsFile();
    ~znCStringsFile() override = default;

    // Adds the rows that have a text. Ends at the first row whose first line is no cell; if rows with
    // cells follow, a line in the log says where that was. The number of the ellipsis
    // character, which the spreadsheet program leaves in texts, becomes "...". A missing file logs
    // "File %s does not exist.\n".
    void spreadsheetLoad(const znCResourceName& pName);

private:
    std::string mEllipsisText; // decimal number of the ellipsis character
};

#endif
