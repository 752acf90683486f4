#ifndef LOADER_ZNCOPTIONS_H
#define LOADER_ZNCOPTIONS_H

#include "zncore/znTypes.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// A configuration value by its group and key.
struct znCSetting
{
    std::string mGroup;
    std::string mKey;
    std::string mValue;
};

// What the command line asks for; znCCommandLine fills it.
struct znCOptions
{
    std::filesystem::path mDataFolder; // empty: the default
    std::filesystem::path mUserFolder; // empty: the default
    std::optional<bool> mFullScreen;   // unset: the module's own saved choice
    s32 mWidth = 0;                    // 0: the default size
    s32 mHeight = 0;
    bool mTouch = false;
    bool mHeadless = false;
    bool mWatch = false; // the data folder, for changes
    s32 mStepMs = 0;          // 0: the real clock
    std::optional<u64> mSeed; // what the clock says at start
    u64 mFrameLimit = 0;      // 0: none
    std::filesystem::path mScript;
    std::filesystem::path mRecord;
    std::filesystem::path mReplay;
    std::filesystem::path mShots;
    std::string mDisplayModes; // from a recording; empty: the machine's own
    std::vector<znCSetting> mSettings;
    std::vector<std::string> mArguments;
};

#endif
