#ifndef TOOLS_AUTHOR_ZNCCOMPLAINTS_H
#define TOOLS_AUTHOR_ZNCCOMPLAINTS_H

// Turns what the game complains about into faults with a file and a line. Most of its messages name both; of the others
// the names that they mention are looked up in the files that were being read.

#include "tools/author/znCAuthorGame.h"
#include "tools/author/znCFaults.h"

class znCComplaints
{
public:
    znCComplaints(znCAuthorGame& pGame, znCFaults& pFaults) : mGame(pGame), mFaults(pFaults) {}

    // All that the game said since the last time. pFiles: what was read, the likeliest first.
    void take(const std::vector<std::string>& pFiles);
    // Where a name is written; the first file as a whole if it is nowhere.
    znSFault placeGet(const std::string& pName, const std::vector<std::string>& pFiles) const;
    // For a file that data names and that isn't there.
    static std::string missingTextGet(const std::string& pFile);

private:
    bool placedAdd(const std::string& pMessage, const std::vector<std::string>& pFiles);
    void elementFaultAdd(const std::string& pMessage, const std::string& pFile, s32 pLine,
                         const std::vector<std::string>& pFiles);
    void unplacedAdd(const std::string& pMessage, std::vector<std::string> pFiles);

    znCAuthorGame& mGame;
    znCFaults& mFaults;
    std::vector<std::string> mWaiting; // messages of an element whose place the next message tells
};

#endif
