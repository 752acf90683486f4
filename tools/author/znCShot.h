#ifndef TOOLS_AUTHOR_ZNCSHOT_H
#define TOOLS_AUTHOR_ZNCSHOT_H

// A picture of a screen or a scene, taken by the game's own program without a window, in the folder of a new player.

#include "zncore/znTypes.h"

#include <filesystem>
#include <string>

class znCShot
{
public:
    static constexpr s32 WAIT_MS = 2500; // until the picture has faded in and lists have filled

    // pProgram: petrelmail. pSize as the program takes it: "1366x768".
    znCShot(const std::filesystem::path& pProgram, const std::filesystem::path& pData, const std::string& pSize)
        : mProgram(pProgram), mData(pData), mSize(pSize)
    {
    }

    // False, with a sentence on standard error, if there is no such screen or the program fails.
    bool take(const std::string& pScreen, const std::filesystem::path& pPicture, s32 pWaitMs) const;

private:
    bool screenExists(const std::string& pScreen) const;
    void programRun(const std::string& pScreen, const std::filesystem::path& pFolder) const;

    std::filesystem::path mProgram;
    std::filesystem::path mData;
    std::string mSize;
};

#endif
