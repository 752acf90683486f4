#ifndef LOADER_ZNCCONFIG_H
#define LOADER_ZNCCONFIG_H

#include "loader/znCOptions.h"

#include <map>
#include <string>

// The configuration values that the module may ask for, by group and key; all are set before it starts.
class znCConfig
{
public:
    // The caption, the program's arguments ("argv[1]" onward), the full-screen choice if one was made, then --set.
    void optionsApply(const znCOptions& pOptions);
    void valueSet(const std::string& pGroup, const std::string& pKey, const std::string& pValue);
    // Null if there is none; valid until the value is set again.
    const std::string* valueGet(const std::string& pGroup, const std::string& pKey) const;

private:
    std::map<std::pair<std::string, std::string>, std::string> mValues;
};

#endif
