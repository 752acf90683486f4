#include "tests/support/znCTestFiles.h"
#include <algorithm>
#include <cstring>

namespace
{
const std::string DRIVE = "ram://";
const std::string LOG = "ram://log.txt";
constexpr char FORMER_MARK = '~';

bool onDrive(const std::string& pName)
{
    return pName.starts_with(DRIVE);
}

// The parts between the slashes, empty ones and "." left out, put together again; "" if the name leaves its folder.
std::string normalisedGet(const std::string& pName)
{
    std::string result = onDrive(pName) ? DRIVE : "";
    const std::string::size_type start = result.size();
    if (start == 0 && pName.starts_with('/'))
        return "";
    std::string part;
    for (const char letter : pName.substr(start) + "/")
    {
        if (letter != '/')
        {
            part += letter;
            continue;
        }
        if (part == "..")
            return "";
        if (!part.empty() && part != ".")
            result += (result.size() > start ? "/" : "") + part;
        part.clear();
    }
    return result;
}

std::string folderStartGet(const std::string& pName)
{
    return pName.empty() || pName == DRIVE ? pName : pName + "/";
}
} // namespace

void znCTestFiles::fileSet(const std::string& pName, const std::string& pContent)
{
    mFiles[pName] = pContent;
}

void znCTestFiles::fileRemove(const std::string& pName)
{
    mFiles.erase(pName);
    mFormer.erase(pName);
}

void znCTestFiles::formerSet(const std::string& pName, const std::string& pContent)
{
    mFormer[pName] = pContent;
}

bool znCTestFiles::fileExists(const std::string& pName) const
{
    return contentFind(pName) != nullptr;
}

std::string znCTestFiles::fileGet(const std::string& pName) const
{
    const std::string* content = contentFind(pName);
    return content != nullptr ? *content : "";
}

std::vector<std::string> znCTestFiles::namesGet() const
{
    std::vector<std::string> names;
    for (const auto& [name, content] : mFiles)
        names.push_back(name);
    return names;
}

void znCTestFiles::faultSet(Operation pOperation, s32 pNth, s32 pCount, const std::string& pName)
{
    mFaults[pOperation] = {pNth, pCount, pName};
}

s32 znCTestFiles::operationCountGet(Operation pOperation) const
{
    const auto count = mCounts.find(pOperation);
    return count == mCounts.end() ? 0 : count->second;
}

const std::string* znCTestFiles::contentFind(const std::string& pName) const
{
    std::string name = normalisedGet(pName);
    mAsked.insert(name);
    const bool formerWanted = onDrive(name) && name.ends_with(FORMER_MARK);
    if (formerWanted)
        name.pop_back();
    const auto file = formerWanted ? mFiles.end() : mFiles.find(name);
    if (file != mFiles.end() && !(file->second.empty() && mFormer.count(name) != 0))
        return &file->second;
    const auto former = mFormer.find(name);
    return former != mFormer.end() ? &former->second : nullptr;
}

bool znCTestFiles::directoryGet(const std::string& pName) const
{
    const std::string start = folderStartGet(normalisedGet(pName));
    const auto file = mFiles.lower_bound(start);
    return file != mFiles.end() && file->first.starts_with(start);
}

bool znCTestFiles::faultTake(Operation pOperation, const std::string& pName)
{
    if (pName != LOG)
        ++mCounts[pOperation];
    const auto found = mFaults.find(pOperation);
    if (found == mFaults.end())
        return false;
    Fault& fault = found->second;
    if (fault.mName.empty() ? pName == LOG : pName != fault.mName)
        return false;
    if (--fault.mWait > 0)
        return false;
    if (fault.mCount != FOR_EVER && --fault.mCount == 0)
        mFaults.erase(found);
    return true;
}

s3eFile* znCTestFiles::open(const char* pName, const char* pMode)
{
    const std::string name = normalisedGet(pName);
    const bool writing = std::strcmp(pMode, "wb") == 0;
    if (faultTake(Operation::open, name) || name.empty() || name == DRIVE ||
        (writing && (!onDrive(name) || name.ends_with(FORMER_MARK))))
        return nullptr;
    const std::string* content = contentFind(name);
    if (!writing && content == nullptr)
        return nullptr;
    auto file = std::make_unique<s3eFile>();
    file->mName = name;
    file->mWriting = writing;
    if (!writing)
        file->mContent = *content;
    if (writing && name == LOG)
        mFiles[name].clear();
    s3eFile* handle = file.get();
    mOpen.emplace(handle, std::move(file));
    return handle;
}

u32 znCTestFiles::read(void* pBuffer, u32 pBytes, s3eFile* pFile)
{
    if (faultTake(Operation::read, pFile->mName) || pFile->mWriting)
        return 0;
    const auto bytes = std::min<std::string::size_type>(pBytes, pFile->mContent.size() - pFile->mPosition);
    std::memcpy(pBuffer, pFile->mContent.data() + pFile->mPosition, bytes);
    pFile->mPosition += bytes;
    return static_cast<u32>(bytes);
}

u32 znCTestFiles::write(const void* pBuffer, u32 pBytes, s3eFile* pFile)
{
    if (!pFile->mWriting)
        return 0;
    if (faultTake(Operation::write, pFile->mName))
    {
        pFile->mBroken = true;
        pBytes /= 2;
    }
    std::string& target = pFile->mName == LOG ? mFiles[LOG] : pFile->mContent;
    target.append(static_cast<const char*>(pBuffer), pBytes);
    return pBytes;
}

s3eResult znCTestFiles::flush(s3eFile* pFile)
{
    if (!faultTake(Operation::flush, pFile->mName))
        return S3E_RESULT_SUCCESS;
    pFile->mBroken = true;
    return S3E_RESULT_ERROR;
}

s3eResult znCTestFiles::close(s3eFile* pFile)
{
    const auto found = mOpen.find(pFile);
    if (found == mOpen.end())
        return S3E_RESULT_ERROR;
    const std::unique_ptr<s3eFile> file = std::move(found->second);
    mOpen.erase(found);
    const bool failed = faultTake(Operation::close, file->mName) || file->mBroken;
    if (file->mWriting && !failed && file->mName != LOG)
        commit(*file);
    return failed ? S3E_RESULT_ERROR : S3E_RESULT_SUCCESS;
}

void znCTestFiles::commit(const s3eFile& pFile)
{
    if (const std::string* content = contentFind(pFile.mName))
        mFormer[pFile.mName] = std::string(*content);
    mFiles[pFile.mName] = pFile.mContent;
}

s32 znCTestFiles::checkExists(const char* pName) const
{
    return contentFind(pName) != nullptr;
}

s32 znCTestFiles::intGet(const char* pName, s32 pProperty) const
{
    if (pProperty == S3E_FILE_IS_DIR)
        return directoryGet(pName);
    const std::string* content = contentFind(pName);
    return pProperty == S3E_FILE_SIZE && content != nullptr ? static_cast<s32>(content->size()) : -1;
}

s3eResult znCTestFiles::remove(const char* pName)
{
    const std::string name = normalisedGet(pName);
    if (faultTake(Operation::remove, name) || !onDrive(name) || contentFind(name) == nullptr)
        return S3E_RESULT_ERROR;
    fileRemove(name);
    return S3E_RESULT_SUCCESS;
}

s3eFileList* znCTestFiles::listOpen(const char* pName)
{
    if (!directoryGet(pName))
        return nullptr;
    const std::string start = folderStartGet(normalisedGet(pName));
    std::set<std::string> names;
    for (const auto& [name, content] : mFiles)
        if (name.starts_with(start) && (start == DRIVE || onDrive(start) == onDrive(name)))
            names.insert(name.substr(start.size(), name.find('/', start.size()) - start.size()));
    auto list = std::make_unique<s3eFileList>();
    list->mNames.assign(names.begin(), names.end());
    s3eFileList* handle = list.get();
    mLists.emplace(handle, std::move(list));
    return handle;
}

s3eResult znCTestFiles::listNext(s3eFileList* pList, char* pName, s32 pSize)
{
    if (pList->mNext == pList->mNames.size() || pSize <= 0)
        return S3E_RESULT_ERROR;
    const std::string& name = pList->mNames[pList->mNext++];
    const auto bytes = std::min<std::string::size_type>(name.size(), static_cast<std::string::size_type>(pSize) - 1);
    std::memcpy(pName, name.data(), bytes);
    pName[bytes] = '\0';
    return S3E_RESULT_SUCCESS;
}

s3eResult znCTestFiles::listClose(s3eFileList* pList)
{
    return mLists.erase(pList) != 0 ? S3E_RESULT_SUCCESS : S3E_RESULT_ERROR;
}
