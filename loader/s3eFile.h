#ifndef LOADER_S3EFILE_H
#define LOADER_S3EFILE_H

#include "zncore/impl/platform/s3e.h"

#include <filesystem>

// An open file, as the module holds it. znCFiles owns it.
struct s3eFile
{
    s3eFile() = default;
    s3eFile(const s3eFile&) = delete;
    s3eFile& operator=(const s3eFile&) = delete;
    virtual ~s3eFile() = default;

    // Bytes that went through; a file does one of the two.
    virtual u32 read(void*, u32) { return 0; }
    virtual u32 write(const void*, u32) { return 0; }
    virtual bool flush() { return true; }
    // What happens at closing beyond letting go; without it the destructor gives up what was written.
    virtual bool finish() { return true; }
    // The path under which the file will appear; empty for one that is only read.
    virtual std::filesystem::path writtenPathGet() const { return {}; }
};

#endif
