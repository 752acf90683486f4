#ifndef ZNHOGCORE_ZNCSCORECOLLECTIONEFFECTDATA_H
#define ZNHOGCORE_ZNCSCORECOLLECTIONEFFECTDATA_H

// What the end of a flight to the score brings.

#include "zncore/znTypes.h"

#include <string>

struct znCScoreCollectionEffectData
{
    std::string mName; // empty
    s32 mPoints = 0;
};

#endif
