#ifndef ZNCORE_ZNCRESOURCENAME_H
#define ZNCORE_ZNCRESOURCENAME_H

// The logical name of a file, turned once, at construction, into the name that the platform knows: the path rules of
// znIResourceNamePathAdjuster first, then ASCII letters in lower case. All data files therefore have lower-case names.
// Any text makes a resource name; one that would leave its folder is refused where a file is touched (znIFile).

#include "zncore/znTypes.h"
#include <string>

class znCResourceName
{
public:
    static constexpr s32 GAME_DATA = 0;    // read-only data of the game
    static constexpr s32 USER_DATA = 1;    // the writable drive: "ram://" comes in front of the name
    static constexpr s32 STRINGS_DATA = 2; // strings files of the game; found where game data is

    znCResourceName(const std::string& pName, s32 pType);
    virtual ~znCResourceName() = default;

    const std::string& nameGet() const { return mName; }
    s32 typeGet() const { return mType; }

private:
    std::string mName;
    s32 mType;
};

#endif
