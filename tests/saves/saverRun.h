#ifndef TESTS_SAVES_SAVERRUN_H
#define TESTS_SAVES_SAVERRUN_H

#include "zncore/znTypes.h"

#include <filesystem>
#include <memory>
#include <string>

class znCFiles;

// The game's saved data on real files, without the game: what lies between a player's table and the disk, as it is in
// the program. One at a time.
class SaverRun
{
public:
    explicit SaverRun(const std::filesystem::path& pUserFolder);
    ~SaverRun(); // an orderly end, which saves
    SaverRun(const SaverRun&) = delete;
    SaverRun& operator=(const SaverRun&) = delete;

    // The number that every value of the current player's table holds; -1 if they aren't all there and the same.
    static s32 numberGet();
    static void numberSet(s32 pNumber);
    // All names, each with a blank behind it.
    static std::string namesGet();

private:
    std::unique_ptr<znCFiles> mFiles;
};

#endif
