#include "zncore/impl/platform/znCResourceNamePathAdjuster.h"
#include "zncore/znCResourceName.h"

void znCResourceNamePathAdjuster::pathAdjust(std::string& pName, s32 pType)
{
    if (pName.find("audio/sfx/") != std::string::npos && pName.find(".ogg") != std::string::npos)
        pName.replace(pName.rfind('.'), std::string::npos, ".wav");
    if (pType == znCResourceName::USER_DATA)
        pName.insert(0, "ram://");
}
