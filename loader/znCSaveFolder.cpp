#include "loader/znCSaveFolder.h"

#include "loader/znNReport.h"
#include "loader/znNTextFile.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr char OWN_MARK = '~';

bool isOwn(const std::string& pName)
{
    return pName.find(OWN_MARK) != std::string::npos;
}

// The process whose unfinished file has that name; 0 if it is no such file.
pid_t writerGet(const std::string& pFileName)
{
    const size_t mark = pFileName.find(OWN_MARK);
    if (mark == std::string::npos)
        return 0;
    std::string_view number = std::string_view(pFileName).substr(mark + 1);
    if (number.ends_with(OWN_MARK))
        number.remove_suffix(1);
    pid_t writer = 0;
    return znNTextFile::numberParse(number, 1, std::numeric_limits<pid_t>::max(), writer) ? writer : 0;
}

// Made before the base looks at it.
const fs::path& folderMake(const fs::path& pRoot)
{
    std::error_code ignored;
    fs::create_directories(pRoot, ignored);
    return pRoot;
}
} // namespace

znCSaveFolder::znCSaveFolder(const fs::path& pRoot) : znCFolder(folderMake(pRoot))
{
    if (access(rootGet().c_str(), W_OK) != 0)
        znNReport::lineWrite("cannot write in %s, nothing will be saved", rootGet().c_str());
    unfinishedClear();
}

void znCSaveFolder::unfinishedClear() const
{
    std::vector<std::string> names;
    znCFolder::namesList(".", names);
    std::error_code ignored;
    for (const std::string& name : names)
    {
        const pid_t writer = writerGet(name);
        if (writer != 0 && kill(writer, 0) != 0 && errno == ESRCH)
            fs::remove(rootGet() / name, ignored);
    }
}

bool znCSaveFolder::writePathGet(const std::string& pName, fs::path& pPath) const
{
    if (!isOwn(pName))
        return pathGet(pName, pPath) && pPath.has_filename() && pPath != rootGet();
    znNReport::lineWrite("refused the file name \"%s\": names with a \"~\" are the loader's own",
                         znNReport::printable(pName).c_str());
    return false;
}

bool znCSaveFolder::readPathGet(const std::string& pName, fs::path& pPath, bool& pIsOlder) const
{
    const bool olderWanted = pName.ends_with(OWN_MARK);
    if (!writePathGet(olderWanted ? pName.substr(0, pName.size() - 1) : pName, pPath))
        return false;
    if (olderWanted)
    {
        pPath = olderPath(pPath);
        pIsOlder = false;
        return true;
    }
    pIsOlder = pathSizeGet(pPath) <= 0 && pathSizeGet(olderPath(pPath)) > 0;
    if (pIsOlder)
        pPath = olderPath(pPath);
    return true;
}

long long znCSaveFolder::sizeGet(const std::string& pName) const
{
    fs::path path;
    bool isOlder = false;
    return readPathGet(pName, path, isOlder) ? pathSizeGet(path) : -1;
}

bool znCSaveFolder::namesList(const std::string& pName, std::vector<std::string>& pNames) const
{
    std::vector<std::string> all;
    if (!znCFolder::namesList(pName, all))
        return false;
    pNames.clear();
    for (const std::string& name : all)
    {
        const size_t mark = name.find(OWN_MARK);
        if (mark == std::string::npos || mark + 1 == name.size())
            pNames.push_back(name.substr(0, mark));
    }
    std::sort(pNames.begin(), pNames.end());
    pNames.erase(std::unique(pNames.begin(), pNames.end()), pNames.end());
    return true;
}

bool znCSaveFolder::remove(const std::string& pName) const
{
    fs::path path;
    if (!writePathGet(pName, path) || fs::is_directory(path))
        return false;
    std::error_code olderError;
    std::error_code error;
    // The older one first: alone it would come back as the file.
    const bool olderGone = fs::remove(olderPath(path), olderError);
    const bool gone = fs::remove(path, error);
    return !olderError && !error && (olderGone || gone) && entriesFlush(path.parent_path());
}

fs::path znCSaveFolder::olderPath(const fs::path& pPath)
{
    return pPath.string() + OWN_MARK;
}

fs::path znCSaveFolder::unfinishedPath(const fs::path& pPath)
{
    return pPath.string() + OWN_MARK + std::to_string(getpid());
}

fs::path znCSaveFolder::heldPath(const fs::path& pPath)
{
    return unfinishedPath(pPath).string() + OWN_MARK;
}

bool znCSaveFolder::entriesFlush(const fs::path& pFolder)
{
    const int folder = open(pFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return false;
    const bool flushed = fsync(folder) == 0 || errno == EINVAL; // EINVAL: a file system that needs no flush
    close(folder);
    return flushed;
}
