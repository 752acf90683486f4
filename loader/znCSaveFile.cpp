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

void znCSaveFile::olderKeep() const
{
    std::error_code error;
    const auto size = std::filesystem::file_size(mPath, error);
    if (error || size == 0)
        return; // an empty file is no generation worth keeping: the one kept so far stays
    const std::string older = znCSaveFolder::olderPath(mPath);
    unlink(older.c_str());
    if (link(mPath.c_str(), older.c_str()) != 0) // a file system without links; a reader finds the older one meanwhile
        std::rename(mPath.c_str(), older.c_str());
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
        olderKeep();
        finished = appear();
        mError = finished ? 0 : errno;
    }
    if (finished)
    {
        mUnfinished.reset();
        return true;
    }
    znNReport::lineWrite("cannot save %s: %s", mPath.c_str(), std::strerror(mError));
    return false; // the destructor clears away what is unfinished
}
