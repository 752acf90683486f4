#include "loader/znCFiles.h"

#include "loader/znCLogFile.h"
#include "loader/znCReadFile.h"
#include "loader/znCSaveFile.h"
#include "loader/znNReport.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <limits>

namespace fs = std::filesystem;

namespace
{
const std::string SAVE_DRIVE = "ram://";
const std::string LOG_NAME = "log.txt";

template <class Item>
bool holds(const std::vector<std::unique_ptr<Item>>& pItems, const Item* pItem)
{
    return std::any_of(pItems.begin(), pItems.end(),
                       [pItem](const std::unique_ptr<Item>& pHeld) { return pHeld.get() == pItem; });
}

template <class Item>
void letGo(std::vector<std::unique_ptr<Item>>& pItems, const Item* pItem)
{
    std::erase_if(pItems, [pItem](const std::unique_ptr<Item>& pHeld) { return pHeld.get() == pItem; });
}
} // namespace

znCFiles::znCFiles(const fs::path& pDataFolder, const fs::path& pUserFolder) : mData(pDataFolder), mSaves(pUserFolder)
{
}

znCFiles::~znCFiles() = default;

znCFiles::Place znCFiles::placeGet(const char* pName) const
{
    const std::string name = pName == nullptr ? "" : pName;
    if (name.rfind(SAVE_DRIVE, 0) == 0)
        return {&mSaves, true, name.substr(SAVE_DRIVE.size())};
    if (name.find("://") == std::string::npos)
        return {&mData, false, name};
    znNReport::lineWrite("refused the file name \"%s\": there is no such drive", znNReport::printable(name).c_str());
    return {nullptr, false, {}};
}

bool znCFiles::isBeingWritten(const fs::path& pPath) const
{
    return std::any_of(mFiles.begin(), mFiles.end(),
                       [&pPath](const std::unique_ptr<s3eFile>& pFile) { return pFile->writtenPathGet() == pPath; });
}

std::unique_ptr<s3eFile> znCFiles::readOpen(const Place& pPlace) const
{
    fs::path path;
    bool isOlder = false;
    if (pPlace.mIsSave ? !mSaves.readPathGet(pPlace.mName, path, isOlder) : !mData.pathGet(pPlace.mName, path))
        return nullptr;
    znNStdio::File file = znNStdio::open(path, O_RDONLY, "rb");
    if (file == nullptr)
        return nullptr;
    if (isOlder)
        znNReport::lineWrite("%s is missing or empty; the one saved before it is read instead",
                             znNReport::printable(pPlace.mName).c_str());
    return std::make_unique<znCReadFile>(std::move(file));
}

std::unique_ptr<s3eFile> znCFiles::writeOpen(const Place& pPlace) const
{
    const std::string name = znNReport::printable(pPlace.mName);
    fs::path path;
    if (!pPlace.mIsSave)
    {
        znNReport::lineWrite("cannot write %s: the game's data is read-only", name.c_str());
        return nullptr;
    }
    if (!mSaves.writePathGet(pPlace.mName, path))
        return nullptr;
    if (isBeingWritten(path))
    {
        znNReport::lineWrite("cannot write %s: it is being written already", name.c_str());
        return nullptr;
    }
    std::error_code ignored;
    fs::create_directories(path.parent_path(), ignored);
    const bool isLog = pPlace.mName == LOG_NAME;
    const fs::path target = isLog ? path : znCSaveFolder::unfinishedPath(path);
    znNStdio::File file = znNStdio::open(target, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, "wb");
    if (file == nullptr)
    {
        znNReport::lineWrite("cannot write %s: %s", name.c_str(), std::strerror(errno));
        return nullptr;
    }
    if (isLog)
        return std::make_unique<znCLogFile>(std::move(file), path);
    return std::make_unique<znCSaveFile>(std::move(file), path);
}

s3eFile* znCFiles::open(const char* pName, const char* pMode)
{
    const Place place = placeGet(pName);
    const std::string mode = pMode == nullptr ? "" : pMode;
    if (place.mFolder == nullptr || (mode != "rb" && mode != "wb"))
        return nullptr;
    std::unique_ptr<s3eFile> file = mode == "rb" ? readOpen(place) : writeOpen(place);
    if (file == nullptr)
        return nullptr;
    return mFiles.emplace_back(std::move(file)).get();
}

u32 znCFiles::read(void* pBuffer, u32 pBytes, s3eFile* pFile)
{
    return holds(mFiles, pFile) && pBuffer != nullptr ? pFile->read(pBuffer, pBytes) : 0;
}

u32 znCFiles::write(const void* pBuffer, u32 pBytes, s3eFile* pFile)
{
    return holds(mFiles, pFile) && pBuffer != nullptr ? pFile->write(pBuffer, pBytes) : 0;
}

bool znCFiles::flush(s3eFile* pFile)
{
    return holds(mFiles, pFile) && pFile->flush();
}

bool znCFiles::close(s3eFile* pFile)
{
    if (!holds(mFiles, pFile))
        return false;
    const bool finished = pFile->finish();
    letGo(mFiles, pFile);
    return finished;
}

bool znCFiles::exists(const char* pName) const
{
    const Place place = placeGet(pName);
    return place.mFolder != nullptr && place.mFolder->sizeGet(place.mName) >= 0;
}

s32 znCFiles::sizeGet(const char* pName) const
{
    const Place place = placeGet(pName);
    const long long size = place.mFolder == nullptr ? -1 : place.mFolder->sizeGet(place.mName);
    return size > std::numeric_limits<s32>::max() ? -1 : static_cast<s32>(size);
}

bool znCFiles::isFolder(const char* pName) const
{
    const Place place = placeGet(pName);
    return place.mFolder != nullptr && place.mFolder->isFolder(place.mName);
}

bool znCFiles::remove(const char* pName)
{
    const Place place = placeGet(pName);
    return place.mIsSave && mSaves.remove(place.mName);
}

s3eFileList* znCFiles::listOpen(const char* pName)
{
    const Place place = placeGet(pName);
    auto list = std::make_unique<s3eFileList>();
    if (place.mFolder == nullptr || !place.mFolder->namesList(place.mName, list->mNames))
        return nullptr;
    return mLists.emplace_back(std::move(list)).get();
}

bool znCFiles::listNext(s3eFileList* pList, char* pName, s32 pSize)
{
    if (!holds(mLists, pList) || pName == nullptr || pSize < 1)
        return false;
    while (pList->mNext < pList->mNames.size())
    {
        const std::string& name = pList->mNames[pList->mNext++];
        if (name.size() >= static_cast<size_t>(pSize))
            continue;
        std::memcpy(pName, name.c_str(), name.size() + 1);
        return true;
    }
    return false;
}

bool znCFiles::listClose(s3eFileList* pList)
{
    const bool open = holds(mLists, pList);
    letGo(mLists, pList);
    return open;
}
