#ifndef LOADER_ZNCDISPLAYMODES_H
#define LOADER_ZNCDISPLAYMODES_H

#include "zncore/impl/platform/s3eExtensions.h"

#include <string>
#include <vector>

// The full-screen modes that the module may choose from. A mode's mIndex is its place in the list.
class znCDisplayModes
{
public:
    // "WxH", "WxHxBPP" or "WxHxBPPxHZ", commas between; without BPP it is 32. False, with the list as it was, if the
    // text is anything else.
    bool textParse(const std::string& pText);
    std::string textGet() const;
    // Adds a mode that isn't in the list yet.
    void modeAdd(s32 pWidth, s32 pHeight, s32 pBpp, s32 pRefresh);
    bool holds(s32 pWidth, s32 pHeight) const;
    const std::vector<s3eWindowMode>& listGet() const { return mList; }
    // The mode with the most pixels; an empty list has one of 0 by 0.
    s3eWindowMode largestGet() const;

private:
    std::vector<s3eWindowMode> mList;
};

#endif
