#ifndef TOOLS_AUTHOR_ZNCCHECK_H
#define TOOLS_AUTHOR_ZNCCHECK_H

// Looks at everything an author can get wrong in a data folder: opens every scene and screen in the game itself, then
// compares what the game asked for with what lies there.

#include "tools/author/znCAuthorGame.h"
#include "tools/author/znCComplaints.h"
#include "tools/author/znCFaults.h"

class znCCheck
{
public:
    // A text file that lists what nothing uses yet and is to stay, one a line: files, tables of scenes, keys of texts.
    // "*" stands for any letters, "#" begins a comment.
    static constexpr const char* KEPT_FILE = "kept.txt";

    explicit znCCheck(const std::filesystem::path& pData) : mGame(pData) {}

    const std::set<znSFault>& run();

private:
    void keptGather();
    bool kept(const std::string& pName) const;
    void keptCheck();
    void namesCheck();
    void tableValuesGather();
    std::set<std::string> scenesNamedGet(const std::string& pTable) const;
    void startCheck();
    void scenesCheck();
    void screensCheck();
    void effectFilesCheck();
    void screenTake(const std::vector<std::string>& pFiles);
    void settingsTake();
    void textsCheck(const std::vector<std::string>& pFiles);
    void valuesCheck(const std::vector<std::string>& pFiles);
    void tableCheck(const std::string& pFile);
    void stringsCheck();
    void wayCheck();
    void unusedCheck();

    std::set<std::string> valuesGet() const;
    bool screenFileTake(std::string& pFile);
    bool stringUsed(const std::string& pKey) const;
    bool fileUsed(const std::string& pFile) const;
    bool fileNamedByCode(const std::string& pFile) const;
    bool composedByCode(const std::string& pText) const;
    std::string suggestionGet(const std::string& pKey) const;

    znCAuthorGame mGame;
    znCFaults mFaults;
    znCComplaints mComplaints{mGame, mFaults};
    std::vector<std::string> mScenes;
    std::vector<std::pair<std::string, s32>> mKept;     // with their lines
    std::map<std::string, std::set<std::string>> mWays; // from a scene to others and to screens
    std::set<std::string> mTableValues;                 // of settings and scenes
    std::set<std::string> mValuesSeen;
    std::set<std::string> mScreensOpened;
    std::set<std::string> mThings; // scenes, and base names and keys of what they hold, in lower case
};

#endif
