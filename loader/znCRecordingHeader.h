#ifndef LOADER_ZNCRECORDINGHEADER_H
#define LOADER_ZNCRECORDINGHEADER_H

#include "loader/znCOptions.h"

#include <string_view>

// What a recording tells of the device before its first frame: all that a repeat needs beside the input itself. The
// data and the saved games that the run began with are no part of it.
struct znCRecordingHeader
{
    static constexpr const char* FIRST_LINE = "petrelmail recording 1";
    static constexpr const char* LAST_LINE = "begin";

    u64 mStartMs = 0;
    s32 mStepMs = 0;
    s32 mWidth = 0;
    s32 mHeight = 0;
    bool mTouch = false;
    std::string mDisplayModes; // as znCDisplayModes writes them; empty on a touch device
    std::vector<znCSetting> mSettings;
    std::vector<std::string> mArguments;

    // All of its lines, first and last included.
    std::string textGet() const;
    // One line between the first and the last; false if it means nothing.
    bool lineParse(std::string_view pLine);
    // The options for a repeat: clock, size and device from here; settings and arguments of the options come last.
    void optionsApply(znCOptions& pOptions) const;
};

#endif
