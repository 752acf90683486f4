#ifndef TESTS_PLAY_GAMERUN_H
#define TESTS_PLAY_GAMERUN_H

#include <filesystem>
#include <string>
#include <vector>

// Runs of the real program, as a player or an author starts it, each with folders of its own below the temporary
// folder that are removed at the end of the object's life. The environment's PETREL_PROGRAM names another program than
// that of this build, so that the same tests try the release.
class GameRun
{
public:
    explicit GameRun(const std::string& pName);
    ~GameRun();
    GameRun(const GameRun&) = delete;
    GameRun& operator=(const GameRun&) = delete;

    // Writes an input script and answers its path.
    std::string scriptWrite(const std::string& pText);
    // Headless with a virtual clock, the given options behind the usual ones; answers the exit status.
    int headlessRun(const std::vector<std::string>& pOptions);
    // A copy of the data that screens need, without scenes and sounds, for a test to change; headlessRun uses it
    // instead of the data that ships.
    std::filesystem::path dataCopy();
    // Exactly these options.
    int run(const std::vector<std::string>& pOptions);

    std::string outputGet() const; // standard output of the last run
    std::string errorGet() const;  // standard error of the last run
    std::string logGet() const;    // the game's own log of the last run
    std::string userFileGet(const std::string& pName) const;
    std::string shotGet(const std::string& pName) const; // the bytes of a picture, empty if there is none
    std::filesystem::path folderGet() const { return mFolder; }
    std::filesystem::path userFolderGet() const { return mFolder / "user"; }

private:
    std::filesystem::path mFolder;
    std::filesystem::path mData; // what headlessRun plays
};

// Lines of a log that report a fault.
std::vector<std::string> logFaultsGet(const std::string& pLog);

#endif
