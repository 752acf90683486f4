#include "loader/znCFolderWatch.h"

#include <cerrno>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr u_int32_t EVENTS = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_CREATE;
constexpr size_t BUFFER_BYTES = 16 * 1024;

bool isDraft(const std::string& pName)
{
    return pName.empty() || pName.front() == '.' || pName.back() == '~';
}
} // namespace

znCFolderWatch::~znCFolderWatch()
{
    if (mDescriptor >= 0)
        close(mDescriptor);
}

bool znCFolderWatch::open(const fs::path& pFolder, std::string& pError)
{
    mDescriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (mDescriptor >= 0 && folderAdd(pFolder))
        return true;
    pError = "cannot watch " + pFolder.string() + ": " + std::strerror(errno);
    return false;
}

bool znCFolderWatch::folderAdd(const fs::path& pFolder)
{
    const int number = inotify_add_watch(mDescriptor, pFolder.c_str(), EVENTS | IN_ONLYDIR);
    if (number < 0)
        return false;
    mFolders[number] = pFolder;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(pFolder, error))
        if (entry.is_directory(error) && !entry.is_symlink(error))
            folderAdd(entry.path());
    return true;
}

bool znCFolderWatch::changeTake()
{
    eventsRead();
    if (!mChanged || std::chrono::steady_clock::now() - mLast < QUIET)
        return false;
    mChanged = false;
    return true;
}

void znCFolderWatch::eventsRead()
{
    alignas(inotify_event) char buffer[BUFFER_BYTES];
    for (ssize_t size; (size = read(mDescriptor, buffer, sizeof buffer)) > 0;)
        for (const char* at = buffer; at < buffer + size;)
        {
            const auto* event = reinterpret_cast<const inotify_event*>(at);
            at += sizeof(inotify_event) + event->len;
            const std::string name = event->len > 0 ? event->name : "";
            const bool isFolder = (event->mask & IN_ISDIR) != 0;
            if ((event->mask & IN_Q_OVERFLOW) == 0 && (isDraft(name) || mFolders.count(event->wd) == 0))
                continue;
            if (isFolder && (event->mask & (IN_CREATE | IN_MOVED_TO)) != 0)
                folderAdd(mFolders[event->wd] / name);
            // A new file counts when it has been written.
            if ((event->mask & IN_CREATE) != 0 && !isFolder)
                continue;
            mChanged = true;
            mLast = std::chrono::steady_clock::now();
        }
}
