#include "loader/znCConfig.h"

void znCConfig::optionsApply(const znCOptions& pOptions)
{
    valueSet("s3e", "SysAppCaption", "The Petrel Mail");
    if (pOptions.mFullScreen.has_value())
        valueSet("s3e", "FullScreen", *pOptions.mFullScreen ? "1" : "0");
    for (size_t i = 0; i < pOptions.mArguments.size(); ++i)
        valueSet("commandline", "argv[" + std::to_string(i + 1) + "]", pOptions.mArguments[i]);
    for (const znCSetting& setting : pOptions.mSettings)
        valueSet(setting.mGroup, setting.mKey, setting.mValue);
}

void znCConfig::valueSet(const std::string& pGroup, const std::string& pKey, const std::string& pValue)
{
    mValues[{pGroup, pKey}] = pValue;
}

const std::string* znCConfig::valueGet(const std::string& pGroup, const std::string& pKey) const
{
    const auto found = mValues.find({pGroup, pKey});
    return found == mValues.end() ? nullptr : &found->second;
}
