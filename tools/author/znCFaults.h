#ifndef TOOLS_AUTHOR_ZNCFAULTS_H
#define TOOLS_AUTHOR_ZNCFAULTS_H

// What an author got wrong: a list without doubles, in the order of files and lines.

#include "zncore/znTypes.h"

#include <set>
#include <string>
#include <tuple>

struct znSFault
{
    std::string mFile; // below the data folder
    s32 mLine;         // from 1; 0: the file as a whole
    std::string mText; // what is wrong and what to do

    bool operator<(const znSFault& pOther) const
    {
        return std::tie(mFile, mLine, mText) < std::tie(pOther.mFile, pOther.mLine, pOther.mText);
    }
};

class znCFaults
{
public:
    void add(const std::string& pFile, s32 pLine, const std::string& pText) { mFaults.insert({pFile, pLine, pText}); }
    const std::set<znSFault>& allGet() const { return mFaults; }

private:
    std::set<znSFault> mFaults;
};

#endif
