#include "zncore/impl/platform/znCFile.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/impl/platform/znNFilePath.h"
#include "zncore/znCResourceName.h"
#include <boost/make_shared.hpp>

boost::shared_ptr<znIFile> znIFile::create()
{
    return boost::make_shared<znCFile>();
}

s32 znIFile::sizeGet(const znCResourceName& pName)
{
    return znNFilePath::allowedGet(pName.nameGet()) ? s3eFileGetFileInt(pName.nameGet().c_str(), S3E_FILE_SIZE) : -1;
}

bool znIFile::existsGet(const znCResourceName& pName)
{
    return znNFilePath::allowedGet(pName.nameGet()) && s3eFileCheckExists(pName.nameGet().c_str()) != 0;
}

bool znIFile::fileDelete(const znCResourceName& pName)
{
    return znNFilePath::allowedGet(pName.nameGet()) && s3eFileDelete(pName.nameGet().c_str()) == S3E_RESULT_SUCCESS;
}

bool znCFile::open(const znCResourceName& pName, s32 pMode)
{
    ZN_ASSERT(mHandle == nullptr, "Opening a new file when one is already open.");
    close();
    ZN_ASSERT(pMode == MODE_READ || pMode == MODE_WRITE, "Unhandled file access mode.\n");
    mWriting = pMode == MODE_WRITE;
    mWriteFailed = false;
    if (znNFilePath::allowedGet(pName.nameGet()))
        mHandle = s3eFileOpen(pName.nameGet().c_str(), mWriting ? "wb" : "rb");
    return mHandle != nullptr;
}

bool znCFile::isOpenGet()
{
    return mHandle != nullptr;
}

bool znCFile::read(void* pBuffer, uint32 pBytes)
{
    ZN_ASSERT(mHandle != nullptr, "File not open.\n");
    return mHandle != nullptr && s3eFileRead(pBuffer, pBytes, mHandle) == pBytes;
}

bool znCFile::write(const void* pBuffer, uint32 pBytes)
{
    ZN_ASSERT(mHandle != nullptr, "File not open.\n");
    const bool written = mHandle != nullptr && s3eFileWrite(pBuffer, pBytes, mHandle) == pBytes;
    mWriteFailed |= !written;
    return written;
}

void znCFile::close()
{
    if (mHandle == nullptr)
        return;
    const bool flushed = s3eFileFlush(mHandle) == S3E_RESULT_SUCCESS;
    const bool closed = s3eFileClose(mHandle) == S3E_RESULT_SUCCESS;
    mHandle = nullptr;
    mWriteFailed |= mWriting && !(flushed && closed);
}

znCFile::~znCFile()
{
    close();
}
