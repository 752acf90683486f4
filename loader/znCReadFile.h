#ifndef LOADER_ZNCREADFILE_H
#define LOADER_ZNCREADFILE_H

#include "loader/s3eFile.h"
#include "loader/znNStdio.h"

#include <utility>

// A file open for reading.
class znCReadFile : public s3eFile
{
public:
    explicit znCReadFile(znNStdio::File pFile) : mFile(std::move(pFile)) {}

    u32 read(void* pBuffer, u32 pBytes) override
    {
        return static_cast<u32>(std::fread(pBuffer, 1, pBytes, mFile.get()));
    }

private:
    znNStdio::File mFile; // never null
};

#endif
