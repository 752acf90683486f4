#ifndef TESTS_SUPPORT_ZNCTESTSOUND_H
#define TESTS_SUPPORT_ZNCTESTSOUND_H

// A sound table that records what is asked of it. Enters itself in the test platform that lives; only one may live at a
// time, and the platform must outlive what uses the table.

#include "zncore/impl/platform/s3eExtensions.h"

#include <map>
#include <set>
#include <string>
#include <vector>

class znCTestSound
{
public:
    znCTestSound();
    ~znCTestSound();
    znCTestSound(const znCTestSound&) = delete;
    znCTestSound& operator=(const znCTestSound&) = delete;

    // The play runs to its end at the next update.
    void end(u32 pPlay) { mEnding.push_back(pPlay); }

    s32 mChannels = S3E_SOUND_CHANNELS;
    s32 mVolume = -1;                    // as last set
    std::map<u32, std::string> mSamples; // file bytes by number; bytes that begin with "bad" are refused
    std::map<u32, u32> mPlays;           // sample by number of a play that sounds
    std::set<u32> mPaused;               // plays that are held
    u32 mLastPlay = 0;

    s3eCallback mEndCallback = nullptr;
    void* mEndUserData = nullptr;
    std::vector<u32> mEnding;
    u32 mLastSample = 0;
};

#endif
