#ifndef LOADER_ZNCFOLDERWATCH_H
#define LOADER_ZNCFOLDERWATCH_H

#include <chrono>
#include <filesystem>
#include <map>
#include <string>

// Tells when files of a folder or below it have changed. Whoever saves a picture writes it in pieces, and seldom one
// file alone, so a change is told once it has been quiet for a while. Names that begin with "." or end with "~" are
// left out: editors keep their drafts so.
class znCFolderWatch
{
public:
    static constexpr std::chrono::milliseconds QUIET = std::chrono::milliseconds(300);

    znCFolderWatch() = default;
    ~znCFolderWatch();
    znCFolderWatch(const znCFolderWatch&) = delete;
    znCFolderWatch& operator=(const znCFolderWatch&) = delete;

    // False, with a sentence in pError, if the system can't watch the folder.
    bool open(const std::filesystem::path& pFolder, std::string& pError);
    // True once for all that changed until a moment ago. Never waits.
    bool changeTake();

private:
    bool folderAdd(const std::filesystem::path& pFolder);
    void eventsRead();

    int mDescriptor = -1;
    std::map<int, std::filesystem::path> mFolders; // by the system's number of each
    bool mChanged = false;
    std::chrono::steady_clock::time_point mLast;
};

#endif
