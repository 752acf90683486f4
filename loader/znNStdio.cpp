#include "loader/znNStdio.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

znNStdio::File znNStdio::open(const std::filesystem::path& pPath, int pFlags, const char* pMode)
{
    const int handle = ::open(pPath.c_str(), pFlags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0644);
    if (handle < 0)
        return nullptr;
    struct stat status = {};
    std::FILE* file = nullptr;
    if (fstat(handle, &status) == 0 && S_ISREG(status.st_mode))
        file = fdopen(handle, pMode);
    else
        errno = EISDIR;
    if (file == nullptr)
        ::close(handle);
    return File(file);
}
