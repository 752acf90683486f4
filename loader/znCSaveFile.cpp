#include "loader/znCSaveFile.h"

#include "loader/znCSaveFolder.h"
#include "loader/znNReport.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <utility>

znCSaveFile::znCSaveFile(znNStdio::File pUnfinished, const std::filesystem::path& pPath)
    : mUnfinished(std::move(pUnfinished)), mPath(pPath)
{
}

znCSaveFile::~znCSaveFile()
{
    if (mUnfinished != nullptr)
        unlink(znCSaveFolder::unfinishedPath(mPath).c_str());
}

u32 znCSaveFile::write(const void* pBuffer, u32 pBytes)
{
    const size_t written = std::fwrite(pBuffer, 1, pBytes, mUnfinished.get());
    if (written < pBytes && mError == 0)
        mError = errno;
    return static_cast<u32>(written);
}

bool znCSaveFile::flush()
{
    if (std::fflush(mUnfinished.get()) != 0 && mError == 0)
        mError = errno;
    return mError == 0;
}

bool znCSaveFile::contentFlush()
{
    if (flush() && fsync(fileno(mUnfinished.get())) != 0)
        mError = errno;
    return mError == 0;
}

// True if the file to be replaced has a second name now.
bool znCSaveFile::olderHold() const
{
    std::error_code error;
    const auto size = std::filesystem::file_size(mPath, error);
    if (error || size == 0)
        return false; // an empty file is no generation worth keeping: the one kept so far stays
    const std::string held = znCSaveFolder::heldPath(mPath);
    unlink(held.c_str());
    if (link(mPath.c_str(), held.c_str()) == 0)
        return true;
    // A file system without links; a reader finds the older one meanwhile.
    std::rename(mPath.c_str(), znCSaveFolder::olderPath(mPath).c_str());
    return false;
}

void znCSaveFile::olderRelease(bool pReplaced) const
{
    const std::string held = znCSaveFolder::heldPath(mPath);
    if (!pReplaced || std::rename(held.c_str(), znCSaveFolder::olderPath(mPath).c_str()) != 0)
        unlink(held.c_str());
}

bool znCSaveFile::appear() const
{
    const std::string unfinished = znCSaveFolder::unfinishedPath(mPath);
    return std::rename(unfinished.c_str(), mPath.c_str()) == 0 && znCSaveFolder::entriesFlush(mPath.parent_path());
}

bool znCSaveFile::finish()
{
    bool finished = contentFlush();
    if (finished)
    {
        const bool held = olderHold();
        finished = appear();
        mError = finished ? 0 : errno;
        if (held)
            olderRelease(finished);
    }
    if (finished)
    {
        mUnfinished.reset();
        return true;
    }
    znNReport::lineWrite("cannot save %s: %s", mPath.c_str(), std::strerror(mError));
    return false; // the destructor clears away what is unfinished
}
