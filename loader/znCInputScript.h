#ifndef LOADER_ZNCINPUTSCRIPT_H
#define LOADER_ZNCINPUTSCRIPT_H

#include "zncore/znTypes.h"

#include <filesystem>
#include <string>
#include <vector>

// One command of an input script.
struct znCScriptCommand
{
    enum class Kind : u8
    {
        WAIT, // mNumber milliseconds of the module's clock
        MOVE, // position, mNumber: finger
        DOWN, // position, mNumber: button or finger
        UP,   // likewise
        KEY,  // mNumber: key code, mPressed
        TYPE, // mText
        SUSPEND,
        RESUME,
        SHOT, // mText: name without a folder or an ending
        QUIT
    };

    Kind mKind = Kind::QUIT;
    s32 mNumber = 0;
    bool mPressed = false;
    s32 mX = 0;
    s32 mY = 0;
    std::string mText{};
};

// An input script, read as a whole before the run so that a wrong line stops the program at once. A line holds one
// command; what follows a word that starts with # is a comment, except in the text of "type". The command "tap" becomes
// the two that it stands for.
class znCInputScript
{
public:
    // False with "FILE:LINE: what is wrong" in pError.
    bool read(const std::filesystem::path& pPath, std::string& pError);
    bool linesParse(const std::vector<std::string>& pLines, const std::filesystem::path& pPath, std::string& pError);
    const std::vector<znCScriptCommand>& commandsGet() const { return mCommands; }
    bool takesShots() const;

private:
    std::vector<znCScriptCommand> mCommands;
};

#endif
