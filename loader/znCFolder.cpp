#include "loader/znCFolder.h"

#include "loader/znNReport.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace
{
bool climbs(const fs::path& pPath)
{
    return std::find(pPath.begin(), pPath.end(), "..") != pPath.end();
}

bool isBelow(const fs::path& pRoot, const fs::path& pPath)
{
    return std::mismatch(pRoot.begin(), pRoot.end(), pPath.begin(), pPath.end()).first == pRoot.end();
}
} // namespace

znCFolder::znCFolder(const fs::path& pRoot)
{
    std::error_code error;
    mRoot = fs::canonical(pRoot, error);
    if (error)
        mRoot = fs::absolute(pRoot, error);
}

bool znCFolder::pathGet(const std::string& pName, fs::path& pPath) const
{
    const fs::path name(pName);
    std::error_code error;
    if (!name.is_absolute() && !climbs(name))
    {
        pPath = fs::weakly_canonical(mRoot / name, error);
        if (error) // a link loop, or a name too long for the system: nothing can be opened there
            pPath = mRoot / name;
        if (error || isBelow(mRoot, pPath))
            return true;
    }
    znNReport::lineWrite("refused the file name \"%s\": it leaves its folder", znNReport::printable(pName).c_str());
    return false;
}

long long znCFolder::pathSizeGet(const fs::path& pPath)
{
    std::error_code error;
    if (!fs::is_regular_file(pPath, error))
        return -1;
    const auto size = fs::file_size(pPath, error);
    return error ? -1 : static_cast<long long>(size);
}

long long znCFolder::sizeGet(const std::string& pName) const
{
    fs::path path;
    return pathGet(pName, path) ? pathSizeGet(path) : -1;
}

bool znCFolder::isFolder(const std::string& pName) const
{
    fs::path path;
    std::error_code error;
    return pathGet(pName, path) && fs::is_directory(path, error);
}

bool znCFolder::namesList(const std::string& pName, std::vector<std::string>& pNames) const
{
    fs::path path;
    if (!pathGet(pName, path))
        return false;
    std::error_code error;
    pNames.clear();
    for (fs::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error))
        pNames.push_back(entry->path().filename().string());
    std::sort(pNames.begin(), pNames.end());
    return !error;
}
