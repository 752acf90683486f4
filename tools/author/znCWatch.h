#ifndef TOOLS_AUTHOR_ZNCWATCH_H
#define TOOLS_AUTHOR_ZNCWATCH_H

// Plays a scene in a window of the game's own, which opens it anew whenever files of the data folder change, and says
// what the game complains about meanwhile.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

class znCWatch
{
public:
    // pProgram: petrelmail.
    znCWatch(const std::filesystem::path& pProgram, const std::filesystem::path& pData)
        : mProgram(pProgram), mData(pData)
    {
    }

    // Until the window is closed. The player is a new one each time, so that nobody's progress is touched. pOptions:
    // more for the program. pSay gets each complaint once a run, also those of earlier openings.
    bool run(const std::string& pScene, const std::vector<std::string>& pOptions,
             const std::function<void(const std::string&)>& pSay) const;

private:
    std::filesystem::path mProgram;
    std::filesystem::path mData;
};

#endif
