#ifndef TOOLS_AUTHOR_ZNCAUTHORGAME_H
#define TOOLS_AUTHOR_ZNCAUTHORGAME_H

// The whole game without window, sound and player, on the files of a data folder. It tells what the game said in its
// log, which files it asked for and which keys of which tables. Only one may live at a time.

#include "tests/support/znCTestPlatform.h"
#include "tests/support/znCTestSound.h"
#include "znappcore/components/gui/znCGuiFileReader.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

class znCVariableTable;

class znCAuthorGame
{
public:
    static constexpr s32 FRAME_MS = 16;

    // A setting of a GUI file that nobody asked for.
    struct IdleSetting
    {
        std::string mKey;
        std::string mType; // of its element
        std::string mFile;
        s32 mLine;
    };

    // Reads all files of the folder.
    explicit znCAuthorGame(const std::filesystem::path& pData);
    ~znCAuthorGame();
    znCAuthorGame(const znCAuthorGame&) = delete;
    znCAuthorGame& operator=(const znCAuthorGame&) = delete;

    // Starts the program anew, as a new player's, with that screen: a scene or a GUI file; "": the first pictures.
    void open(const std::string& pScreen);
    void close();
    void framesRun(s32 pCount);
    // What the game complained about since the last call, one message each, without the place in the code.
    std::vector<std::string> complaintsTake();
    std::vector<IdleSetting> idleSettingsTake(); // since the last call

    // The folder's files by name as on the disk, with their bytes.
    const std::map<std::string, std::string>& filesGet() const { return mFiles; }
    bool fileExists(const std::string& pName) const; // in any case of letters
    const std::string& textGet(const std::string& pName) const;
    bool askedGet(const std::string& pFile) const { return mPlatform.mFiles.askedGet().count(pFile) != 0; }
    const std::set<std::string>& keysAskedGet() const { return mKeysAsked; }     // of any table, in lower case
    const std::set<std::string>& valuesAskedGet() const { return mValuesAsked; } // what stood there

    znCTestPlatform mPlatform;

private:
    static void keyAsked(const znCVariableTable& pTable, const std::string& pKey, const std::string* pValue);
    static void elementBuilt(const znCVariableTable& pSettings, std::string_view pType,
                             const znCGuiFileReader::Places& pPlaces);
    void savesForget();

    znCTestSound mSound;
    std::size_t mLogRead = 0; // so much of the log of this start has been taken; each start writes it anew
    std::map<std::string, std::string> mFiles;
    std::map<const znCVariableTable*, std::set<std::string>> mKeysOfTable;
    std::set<std::string> mKeysAsked;
    std::set<std::string> mValuesAsked;
    std::vector<IdleSetting> mIdleSettings;
};

#endif
