#ifndef ZNCORE_ZNIFILE_H
#define ZNCORE_ZNIFILE_H

// A file that is read or written from its start, in order; there is no seek and no append. Nothing in the program opens
// a path but through here.
//
// A file opened for writing replaces the one before it when it is closed, whole or not at all. A name that leaves its
// folder ("..", an absolute path, an end marker in the name) is refused by every operation, with one line in the log.
// Other failures answer false or -1 and log nothing; misuse logs.

#include "zncore/znTypes.h"
#include <boost/shared_ptr.hpp>

class znCResourceName;

class znIFile
{
public:
    static constexpr s32 MODE_READ = 0;
    static constexpr s32 MODE_WRITE = 1;

    static boost::shared_ptr<znIFile> create();
    // Bytes, -1 on error.
    static s32 sizeGet(const znCResourceName& pName);
    static bool existsGet(const znCResourceName& pName);
    static bool fileDelete(const znCResourceName& pName);

    // Another mode logs "Unhandled file access mode.\n" and reads. An open file is closed first, with
    // "Opening a new file when one is already open." in the log.
    virtual bool open(const znCResourceName& pName, s32 pMode) = 0;
    virtual bool isOpenGet() = 0;
    // Both need all of the bytes to answer true, and log "File not open.\n" without an open file.
    virtual bool read(void* pBuffer, uint32 pBytes) = 0;
    virtual bool write(const void* pBuffer, uint32 pBytes) = 0;
    virtual void close() = 0;
    virtual ~znIFile() = default;

    // Whether a write, or the close that puts the written file in its place, has failed since the last open.
    bool writeFailedGet() const { return mWriteFailed; }

protected:
    bool mWriteFailed = false;
};

#endif
