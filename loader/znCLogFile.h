#ifndef LOADER_ZNCLOGFILE_H
#define LOADER_ZNCLOGFILE_H

#include "loader/s3eFile.h"
#include "loader/znNStdio.h"

#include <utility>

// The log: each write reaches the system at once, so that it tells of a run that ended badly up to its last line.
class znCLogFile : public s3eFile
{
public:
    znCLogFile(znNStdio::File pFile, std::filesystem::path pPath) : mFile(std::move(pFile)), mPath(std::move(pPath))
    {
        std::setvbuf(mFile.get(), nullptr, _IONBF, 0);
    }

    u32 write(const void* pBuffer, u32 pBytes) override
    {
        return static_cast<u32>(std::fwrite(pBuffer, 1, pBytes, mFile.get()));
    }
    bool flush() override { return std::ferror(mFile.get()) == 0; }
    bool finish() override { return flush(); }
    std::filesystem::path writtenPathGet() const override { return mPath; }

private:
    znNStdio::File mFile; // never null
    std::filesystem::path mPath;
};

#endif
