#ifndef LOADER_ZNCSAVEFILE_H
#define LOADER_ZNCSAVEFILE_H

#include "loader/s3eFile.h"
#include "loader/znNStdio.h"

// A file of the save folder that is being written. At every moment, also if the machine stops, its name or the
// generation before it holds a whole file: the new one appears only when it is on the disk. And the generation before
// is given up for the one that is replaced only behind that, so that a damaged file never stands alone.
class znCSaveFile : public s3eFile
{
public:
    // pUnfinished is open for writing at znCSaveFolder::unfinishedPath(pPath).
    znCSaveFile(znNStdio::File pUnfinished, const std::filesystem::path& pPath);
    // Not finished: what was written is given up, the older file stays.
    ~znCSaveFile() override;

    u32 write(const void* pBuffer, u32 pBytes) override;
    bool flush() override;
    // Once a write has failed this fails too, with one line on standard error.
    bool finish() override;
    std::filesystem::path writtenPathGet() const override { return mPath; }

private:
    bool contentFlush();
    bool olderHold() const;
    void olderRelease(bool pReplaced) const;
    bool appear() const;

    znNStdio::File mUnfinished; // null: finished or given up
    std::filesystem::path mPath;
    int mError = 0; // errno of the first write that failed
};

#endif
