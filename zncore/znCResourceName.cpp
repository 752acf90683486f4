#include "zncore/znCResourceName.h"
#include "zncore/impl/platform/znCResourceNamePathAdjuster.h"
#include "zncore/znStr.h"

znCResourceName::znCResourceName(const std::string& pName, s32 pType) : mName(pName), mType(pType)
{
    static znCResourceNamePathAdjuster sAdjuster;
    sAdjuster.pathAdjust(mName, mType);
    znStr::toLower(mName);
}
