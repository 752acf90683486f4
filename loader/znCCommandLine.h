#ifndef LOADER_ZNCCOMMANDLINE_H
#define LOADER_ZNCCOMMANDLINE_H

#include "loader/znCOptions.h"

// Reads the program's command line.
class znCCommandLine
{
public:
    enum class Outcome
    {
        RUN,  // mOptions are complete
        DONE, // help or version: mText belongs on standard output
        WRONG // mText says in one line what is wrong
    };

    static constexpr s32 SIDE_MIN = 16; // pixels of --size
    static constexpr s32 SIDE_MAX = 16384;
    static constexpr size_t ARGUMENTS_MAX = 30; // as many as the module takes

    Outcome parse(int pCount, const char* const* pArguments);
    // "WxH" into both numbers; false if that isn't a size within the limits.
    static bool sizeParse(const std::string& pText, s32& pWidth, s32& pHeight);
    // "GROUP.KEY=VALUE"; false if it isn't that, or the value is too long for a configuration value.
    static bool settingParse(const std::string& pText, znCSetting& pSetting);

    znCOptions mOptions;
    std::string mText;
};

#endif
