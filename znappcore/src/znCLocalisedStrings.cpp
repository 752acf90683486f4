#include "znappcore/src/znCLocalisedStrings.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"

namespace
{
znCLocalisedStrings* sInstance = nullptr; // deleted by destroy()

constexpr std::string_view ESCAPED_AMPERSAND = "&amp;";

struct Replacement
{
    const char* mFind;
    const char* mReplace;
};

constexpr Replacement BEFORE_TAGS[] = {{"&amp;", "&"}, {"&#160;", " "}, {"&#45;", "-"}};
constexpr Replacement AFTER_TAGS[] = {{"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}, {"&quot;", "\""}, {"&apos;", "'"}};

void clean(const std::string& pKey, znStr& pText)
{
    pText.replaceAll("%%", "%");
    pText.replaceAll("&lt;br&gt;", "\n");
    if (pText.starts_with(ESCAPED_AMPERSAND))
        pText.erase(0, ESCAPED_AMPERSAND.size());
    for (const Replacement& step : BEFORE_TAGS)
        pText.replaceAll(step.mFind, step.mReplace);
    pText.removeXmlTags();
    // Only a tag without its end is still there, and the line about it doesn't say where.
    if (pText.find("&lt;") != std::string::npos)
        ZN_LOG("The text with the key %s has a tag without its end.\n", pKey.c_str());
    for (const Replacement& step : AFTER_TAGS)
        pText.replaceAll(step.mFind, step.mReplace);
}
} // namespace

void znCLocalisedStrings::create()
{
    ZN_ASSERT(sInstance == nullptr, "Already created znCLocalisedStrings.\n");
    if (sInstance != nullptr)
        return;
    sInstance = new znCLocalisedStrings();
    sInstance->load();
    sInstance->valuesClean();
}

znCLocalisedStrings* znCLocalisedStrings::instanceGet()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    return sInstance;
}

void znCLocalisedStrings::destroy()
{
    ZN_ASSERT(sInstance != nullptr, "Not created.\n");
    delete sInstance;
    sInstance = nullptr;
}

void znCLocalisedStrings::load()
{
    const znCResourceName spreadsheet("strings.xml", znCResourceName::STRINGS_DATA);
    const znCResourceName table("strings.txt", znCResourceName::STRINGS_DATA);
    const bool spreadsheetExists = znIFile::existsGet(spreadsheet);
    const bool tableExists = !spreadsheetExists && znIFile::existsGet(table);
    ZN_ASSERT(spreadsheetExists || tableExists, "Failed to load any localised strings.\n");
    if (spreadsheetExists)
        spreadsheetLoad(spreadsheet);
    else if (tableExists)
        fileLoad(table);
}

void znCLocalisedStrings::valuesClean()
{
    for (auto& [key, value] : mEntries)
    {
        znStr text = std::move(value);
        clean(key, text);
        value = std::move(text);
    }
}

std::string znCLocalisedStrings::localisedStringGet(const std::string& pKey)
{
    std::string text = MISSING_TEXT;
    const bool exists = localisedStringGetIfExists(pKey, text);
    ZN_ASSERT(exists, "Missing string : %s\n", pKey.c_str());
    return text;
}

bool znCLocalisedStrings::localisedStringGetIfExists(const std::string& pKey, std::string& pOut)
{
    const znCLocalisedStrings* strings = instanceGet();
    if (strings == nullptr || !strings->keyExistsGet(pKey))
        return false;
    pOut = strings->strGet(pKey);
    return true;
}

bool znCLocalisedStrings::keyWithPrefixExistsGet(const std::string& pPrefix)
{
    const znCLocalisedStrings* strings = instanceGet();
    if (strings == nullptr)
        return false;
    std::string prefix = pPrefix;
    znStr::toLower(prefix);
    const auto entry = strings->mEntries.lower_bound(prefix);
    return entry != strings->mEntries.end() && entry->first.starts_with(prefix);
}
