#ifndef ZNCORE_SRC_ZNCVARIABLETABLE_H
#define ZNCORE_SRC_ZNCVARIABLETABLE_H

// A sorted table from text to text, with typed getters and a small text file format: the form of all configuration.
//
// Keys don't depend on the case of ASCII letters: they are stored in lower case. Values keep theirs. Everything is text
// and is converted at each get; code that reads in a loop keeps what it got. Copies are deep.
//
// A file is a row of entries `key = "value",` with line ends between them.
//   - A key runs to the "=", blanks and tabs in it dropped. A line without "=" is ignored, and so is an entry whose key
//     starts with "--": both serve as comments.
//   - A quoted value runs to the next double quote that has a comma right behind it. It may hold line ends and other
//     double quotes; there is no escape. Behind that comma one character, normally the line end, is stepped over.
//   - A value without a double quote in front runs to the next comma, blanks and line ends included.
//   - Of two entries with one key the later one counts.
// So a blank or a line end must stand between two quoted entries.

#include "zncore/znTypes.h"
#include <map>
#include <string>
#include <vector>

class znCResourceName;

class znCVariableTable
{
public:
    static constexpr s32 STATUS_NOTHING_LOADED = 0;
    static constexpr s32 STATUS_LOADED = 1;
    static constexpr s32 STATUS_MISSING = 4;     // missing, empty or not to be opened
    static constexpr s32 STATUS_READ_FAILED = 5; // the reading failed, or the file is larger than 16 MB; logged

    virtual ~znCVariableTable() = default;
    znCVariableTable() = default;
    znCVariableTable(const znCVariableTable&) = default;
    znCVariableTable(znCVariableTable&&) = default;
    znCVariableTable& operator=(const znCVariableTable&) = default;
    znCVariableTable& operator=(znCVariableTable&&) = default;

    // A missing key answers the default; without one "", 0, 0 or false. Numbers are the leading decimal number of the
    // value, 0 if there is none, the nearest possible value if it doesn't fit. A bool is true for exactly "1" or
    // "true".
    std::string strGet(const std::string& pKey, const std::string& pDefault) const;
    std::string strGet(const std::string& pKey) const;
    s32 s32Get(const std::string& pKey, s32 pDefault) const;
    s32 s32Get(const std::string& pKey) const;
    float f32Get(const std::string& pKey, float pDefault) const;
    float f32Get(const std::string& pKey) const;
    bool boolGet(const std::string& pKey, bool pDefault) const;
    bool boolGet(const std::string& pKey) const;
    bool keyExistsGet(const std::string& pKey) const;

    // Create or overwrite. A float is kept with 6 significant digits, a bool as "1" or "0". A value that holds a double
    // quote with a comma behind it can't be read back from a file as it was.
    void strSet(const std::string& pKey, const std::string& pValue);
    void s32Set(const std::string& pKey, s32 pValue);
    void f32Set(const std::string& pKey, float pValue);
    void boolSet(const std::string& pKey, bool pValue);

    // The other's values win.
    void tableMerge(const znCVariableTable& pOther);
    // Every entry whose key contains the text anywhere, in any case.
    void keysContainingRemove(const std::string& pText);
    // In key order.
    std::vector<std::string> keysWithPrefixGet(const std::string& pPrefix) const;

    // Adds the file's entries to what the table holds and returns the status. An entry that the end of the file cuts
    // off logs its file and line besides the parser's own message.
    s32 fileLoad(const znCResourceName& pName);
    s32 loadStatusGet() const { return mLoadStatus; } // of the last fileLoad
    // Writes all entries in key order, replacing the file. False if any of it failed, with
    // "File %s could not be written.\n" in the log; the file before it then stands.
    bool fileSave(const znCResourceName& pName) const;
    // Adds the entries of a text in memory.
    void textParse(const char* pBegin, const char* pEnd);

    // Appends to pOut up to the terminator, a comma or, if quoted, a double quote with a comma behind it, and leaves
    // pPos on it. At the end logs "Passed the end of the file. Did you miss a \" or a , ?".
    static void copyToTerminator(const char*& pPos, bool pQuoted, std::string& pOut, const char* pEnd);

    // Told of every key that is asked for, so that tools can name the entries that nobody ever reads; pValue is null for
    // a missing key. Null, as in the game: nobody is told.
    using AskedObserver = void (*)(const znCVariableTable& pTable, const std::string& pKey, const std::string* pValue);
    static void askedObserverSet(AskedObserver pObserver);

    // Keys in lower case.
    const std::map<std::string, std::string>& entriesGet() const { return mEntries; }

    // Another number after each setter, merge or removal that changed an entry: tells whether there is something to
    // save. What a file or a text brings doesn't count.
    u32 changeCountGet() const { return mChangeCount; }

protected:
    std::map<std::string, std::string> mEntries;
    s32 mLoadStatus = STATUS_NOTHING_LOADED;
    u32 mChangeCount = 0;

    // Where the entry begins that the end of the text cut off; null if none was.
    const char* entriesParse(const char* pBegin, const char* pEnd);

private:
    const std::string* valueFind(const std::string& pKey) const;
    void entrySet(std::string&& pKey, const std::string& pValue);
};

#endif
