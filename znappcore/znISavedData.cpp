#include "znappcore/znISavedData.h"

#include "zncore/debug/znIDebug.h"
#include "zncore/znIFile.h"
#include "zncore/znNCoreUtils.h"

#include <utility>

namespace
{
constexpr char FORMER_MARK[] = "~"; // behind a file's name: the one saved before it

// A file that is there and can't be opened has failed; it gets a second try.
znNCoreUtils::FileResult wholeFileRead(const znCResourceName& pName, std::string& pText)
{
    using znNCoreUtils::FileResult;
    FileResult result = znNCoreUtils::fileRead(pName, znNCoreUtils::TEXT_FILE_SIZE_LIMIT, pText);
    if (result == FileResult::done || znIFile::sizeGet(pName) <= 0)
        return result;
    result = znNCoreUtils::fileRead(pName, znNCoreUtils::TEXT_FILE_SIZE_LIMIT, pText);
    return result == FileResult::missing ? FileResult::failed : result;
}

// Whether the text stops within a line that was to become an entry.
bool endsInKey(const std::string& pText)
{
    const std::size_t lineBegin = pText.find_last_of('\n') + 1;
    const std::size_t begin = pText.find_first_not_of(" \t\r", lineBegin);
    return begin != std::string::npos && pText.find('=', lineBegin) == std::string::npos &&
           pText.compare(begin, 2, "--") != 0;
}
} // namespace

void znISavedData::reset()
{
    clear();
    defaultsSet();
}

void znISavedData::clear()
{
    if (!mEntries.empty())
        ++mChangeCount;
    mEntries.clear();
}

s32 znISavedData::savedFileLoad(const znCResourceName& pName)
{
    using znNCoreUtils::FileResult;
    std::string text;
    const FileResult result = wholeFileRead(pName, text);
    if (result == FileResult::missing)
        return mLoadStatus = STATUS_MISSING;
    const auto before = mEntries;
    mLoadStatus = result == FileResult::done ? STATUS_LOADED : STATUS_READ_FAILED;
    if (textLoad(text) && result == FileResult::done)
        return mLoadStatus;

    // The drive stands in the name already.
    const znCResourceName formerName(pName.nameGet() + FORMER_MARK, znCResourceName::GAME_DATA);
    const auto readable = std::exchange(mEntries, before);
    std::string former;
    const bool stands = wholeFileRead(formerName, former) == FileResult::done && textLoad(former);
    ZN_LOG("The saved file %s is damaged; %s.\n", pName.nameGet().c_str(),
           stands ? "the one saved before it is read instead" : "what can be read of it is kept");
    if (stands)
        return mLoadStatus = STATUS_LOADED;
    mEntries = readable;
    return mLoadStatus;
}

// True if the text is whole.
bool znISavedData::textLoad(const std::string& pText)
{
    const bool damaged = pText.find('\0') != std::string::npos || endsInKey(pText);
    const bool cutOff = entriesParse(pText.data(), pText.data() + pText.size()) != nullptr;
    return !damaged && !cutOff && wholeGet();
}
