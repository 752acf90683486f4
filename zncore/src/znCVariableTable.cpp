#include "zncore/src/znCVariableTable.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/znCResourceName.h"
#include "zncore/znIFile.h"
#include "zncore/znNCoreUtils.h"
#include "zncore/znStr.h"
#include <algorithm>
#include <cstring>

namespace
{
constexpr std::string_view COMMENT_START = "--";

znCVariableTable::AskedObserver sAskedObserver = nullptr;

std::string lowerGet(const std::string& pText)
{
    std::string lower = pText;
    znStr::toLower(lower);
    return lower;
}

bool upperCaseHas(const std::string& pText)
{
    return std::any_of(pText.begin(), pText.end(), [](char pLetter) { return pLetter >= 'A' && pLetter <= 'Z'; });
}

// The key up to the next "=", blanks and tabs dropped, pPos then on the "=". False, with pPos behind what was read, if
// the line or the text ends before one.
bool keyRead(const char*& pPos, const char* pEnd, std::string& pKey)
{
    pKey.clear();
    for (; pPos < pEnd && *pPos != '='; ++pPos)
    {
        if (*pPos == '\n')
        {
            ++pPos;
            return false;
        }
        if (*pPos != ' ' && *pPos != '\t')
            pKey += *pPos;
    }
    return pPos < pEnd;
}

void spaceSkip(const char*& pPos, const char* pEnd)
{
    while (pPos < pEnd && (*pPos == ' ' || *pPos == '\t' || *pPos == '\r' || *pPos == '\n'))
        ++pPos;
}

// The terminator's place, pEnd if there is none.
const char* terminatorFind(const char* pPos, bool pQuoted, const char* pEnd)
{
    const char wanted = pQuoted ? '"' : ',';
    for (; pPos < pEnd; ++pPos)
    {
        pPos = static_cast<const char*>(std::memchr(pPos, wanted, static_cast<std::size_t>(pEnd - pPos)));
        if (pPos == nullptr)
            return pEnd;
        if (!pQuoted || (pPos + 1 < pEnd && pPos[1] == ','))
            return pPos;
    }
    return pEnd;
}
} // namespace

const std::string* znCVariableTable::valueFind(const std::string& pKey) const
{
    const auto entry = mEntries.find(upperCaseHas(pKey) ? lowerGet(pKey) : pKey);
    const std::string* value = entry == mEntries.end() ? nullptr : &entry->second;
    if (sAskedObserver != nullptr)
        sAskedObserver(*this, pKey, value);
    return value;
}

void znCVariableTable::askedObserverSet(AskedObserver pObserver)
{
    sAskedObserver = pObserver;
}

std::string znCVariableTable::strGet(const std::string& pKey, const std::string& pDefault) const
{
    const std::string* value = valueFind(pKey);
    return value != nullptr ? *value : pDefault;
}

std::string znCVariableTable::strGet(const std::string& pKey) const
{
    return strGet(pKey, std::string());
}

s32 znCVariableTable::s32Get(const std::string& pKey, s32 pDefault) const
{
    const std::string* value = valueFind(pKey);
    return value != nullptr ? znStr::toS32(*value) : pDefault;
}

s32 znCVariableTable::s32Get(const std::string& pKey) const
{
    return s32Get(pKey, 0);
}

float znCVariableTable::f32Get(const std::string& pKey, float pDefault) const
{
    const std::string* value = valueFind(pKey);
    return value != nullptr ? znStr::toF32(*value) : pDefault;
}

float znCVariableTable::f32Get(const std::string& pKey) const
{
    return f32Get(pKey, 0.0f);
}

bool znCVariableTable::boolGet(const std::string& pKey, bool pDefault) const
{
    const std::string* value = valueFind(pKey);
    return value != nullptr ? *value == "1" || *value == "true" : pDefault;
}

bool znCVariableTable::boolGet(const std::string& pKey) const
{
    return boolGet(pKey, false);
}

bool znCVariableTable::keyExistsGet(const std::string& pKey) const
{
    return valueFind(pKey) != nullptr;
}

void znCVariableTable::strSet(const std::string& pKey, const std::string& pValue)
{
    entrySet(lowerGet(pKey), pValue);
}

void znCVariableTable::entrySet(std::string&& pKey, const std::string& pValue)
{
    const auto [entry, isNew] = mEntries.try_emplace(std::move(pKey), pValue);
    if (!isNew && entry->second == pValue)
        return;
    if (!isNew)
        entry->second = pValue;
    ++mChangeCount;
}

void znCVariableTable::s32Set(const std::string& pKey, s32 pValue)
{
    strSet(pKey, znStr(pValue));
}

void znCVariableTable::f32Set(const std::string& pKey, float pValue)
{
    strSet(pKey, znStr(pValue));
}

void znCVariableTable::boolSet(const std::string& pKey, bool pValue)
{
    strSet(pKey, pValue ? "1" : "0");
}

void znCVariableTable::tableMerge(const znCVariableTable& pOther)
{
    for (const auto& [key, value] : pOther.mEntries)
        entrySet(std::string(key), value);
}

void znCVariableTable::keysContainingRemove(const std::string& pText)
{
    const std::string text = lowerGet(pText);
    const auto isMeant = [&text](const auto& pEntry)
    {
        return pEntry.first.find(text) != std::string::npos;
    };
    if (std::erase_if(mEntries, isMeant) > 0)
        ++mChangeCount;
}

std::vector<std::string> znCVariableTable::keysWithPrefixGet(const std::string& pPrefix) const
{
    const std::string prefix = lowerGet(pPrefix);
    std::vector<std::string> keys;
    for (auto entry = mEntries.lower_bound(prefix); entry != mEntries.end() && entry->first.starts_with(prefix);
         ++entry)
        keys.push_back(entry->first);
    return keys;
}

s32 znCVariableTable::fileLoad(const znCResourceName& pName)
{
    std::string text;
    const znNCoreUtils::FileResult result = znNCoreUtils::fileRead(pName, znNCoreUtils::TEXT_FILE_SIZE_LIMIT, text);
    if (result != znNCoreUtils::FileResult::done)
        return mLoadStatus = result == znNCoreUtils::FileResult::missing ? STATUS_MISSING : STATUS_READ_FAILED;
    const char* begin = text.data();
    if (const char* cutOff = entriesParse(begin, begin + text.size()))
        ZN_LOG("File %s, line %d: this entry has no end.\n", pName.nameGet().c_str(),
               static_cast<s32>(std::count(begin, cutOff, '\n')) + 1);
    return mLoadStatus = STATUS_LOADED;
}

bool znCVariableTable::fileSave(const znCResourceName& pName) const
{
    std::string text;
    for (const auto& [key, value] : mEntries)
        text.append(key).append(" = \"").append(value).append("\",\r\n");
    // An empty file would be read as one that got lost, and the generation before it would come back.
    if (text.empty())
        text = "\r\n";
    const boost::shared_ptr<znIFile> file = znIFile::create();
    bool saved = file->open(pName, znIFile::MODE_WRITE);
    if (saved)
    {
        file->write(text.data(), static_cast<uint32>(text.size()));
        file->close();
        saved = !file->writeFailedGet();
    }
    ZN_ASSERT(saved, "File %s could not be written.\n", pName.nameGet().c_str());
    return saved;
}

void znCVariableTable::textParse(const char* pBegin, const char* pEnd)
{
    entriesParse(pBegin, pEnd);
}

const char* znCVariableTable::entriesParse(const char* pBegin, const char* pEnd)
{
    const char* cutOff = nullptr;
    std::string key;
    // Saved files come in key order, and most others in runs of it: each entry is tried behind the one before it.
    auto hint = mEntries.end();
    for (const char* pos = pBegin; pos < pEnd;)
    {
        const char* entryBegin = pos;
        if (!keyRead(pos, pEnd, key))
            continue;
        ++pos;
        spaceSkip(pos, pEnd);
        const bool quoted = pos < pEnd && *pos == '"';
        pos += quoted;
        std::string value;
        copyToTerminator(pos, quoted, value, pEnd);
        if (pos == pEnd)
            cutOff = entryBegin;
        if (quoted)
            pos = std::find(pos, pEnd, ',');
        pos += quoted && pos < pEnd;
        znStr::toLower(key);
        if (!key.starts_with(COMMENT_START))
            hint = std::next(mEntries.insert_or_assign(hint, std::move(key), std::move(value)));
        // In the plain form this is the comma, in the quoted one the line end behind it.
        pos += pos < pEnd;
    }
    return cutOff;
}

void znCVariableTable::copyToTerminator(const char*& pPos, bool pQuoted, std::string& pOut, const char* pEnd)
{
    const char* terminator = terminatorFind(pPos, pQuoted, pEnd);
    pOut.append(pPos, terminator);
    pPos = terminator;
    ZN_ASSERT(pPos != pEnd, "Passed the end of the file. Did you miss a \" or a , ?");
}
