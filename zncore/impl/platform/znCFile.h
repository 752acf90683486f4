#ifndef ZNCORE_IMPL_PLATFORM_ZNCFILE_H
#define ZNCORE_IMPL_PLATFORM_ZNCFILE_H

// znIFile over the platform's buffered files. Closes in its destructor.

#include "zncore/impl/platform/s3e.h"
#include "zncore/znIFile.h"

class znCFile : public znIFile
{
public:
    znCFile() = default;
    znCFile(const znCFile&) = delete;
    znCFile& operator=(const znCFile&) = delete;

    bool open(const znCResourceName& pName, s32 pMode) override;
    bool isOpenGet() override;
    bool read(void* pBuffer, uint32 pBytes) override;
    bool write(const void* pBuffer, uint32 pBytes) override;
    void close() override;
    ~znCFile() override;

private:
    s3eFile* mHandle = nullptr; // the platform's; given back by close()
    bool mWriting = false;
};

#endif
