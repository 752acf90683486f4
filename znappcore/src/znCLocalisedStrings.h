#ifndef ZNAPPCORE_SRC_ZNCLOCALISEDSTRINGS_H
#define ZNAPPCORE_SRC_ZNCLOCALISEDSTRINGS_H

// Every text that the player reads, by its key. Loaded once at start-up from "strings.xml" or, without that file, from
// "strings.txt"; each text is then cleaned of the markup that the spreadsheet left in it. Which language these files
// hold is a matter of packaging. Keys don't depend on the case of ASCII letters.

#include "zncore/src/znCStringsFile.h"
#include "zncore/znStr.h"

class znCLocalisedStrings : public znCStringsFile
{
public:
    // What stands on the screen in place of a missing text.
    static constexpr const char* MISSING_TEXT = "#####";

    // Without either file logs "Failed to load any localised strings.\n"; the table is then empty.
    static void create();
    static znCLocalisedStrings* instanceGet();
    static void destroy();

    // A missing key logs "Missing string : %s\n", each time, and answers MISSING_TEXT.
    static std::string localisedStringGet(const std::string& pKey);
    // False, without a log and with pOut as it was, if the key is missing.
    static bool localisedStringGetIfExists(const std::string& pKey, std::string& pOut);
    static bool keyWithPrefixExistsGet(const std::string& pPrefix);

private:
    void load();
    void valuesClean();
};

#endif
