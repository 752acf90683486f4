#include "zncore/impl/platform/znCFileListBuilder.h"
#include "zncore/debug/znIDebug.h"
#include "zncore/impl/platform/s3e.h"
#include "zncore/impl/platform/znNFilePath.h"

namespace
{
constexpr s32 NAME_SIZE = 1024;
constexpr s32 DEPTH_LIMIT = 32;
} // namespace

void znCFileListBuilder::directoryAdd(const std::string& pDirectory, bool pRecursive)
{
    ZN_ASSERT(mDepth <= DEPTH_LIMIT, "Directory %s is nested too deeply.\n", pDirectory.c_str());
    if (mDepth > DEPTH_LIMIT || !znNFilePath::allowedGet(pDirectory))
        return;
    s3eFileList* list = s3eFileListDirectory(pDirectory.c_str());
    if (list == nullptr)
        return;
    ++mDepth;
    char name[NAME_SIZE];
    while (s3eFileListNext(list, name, NAME_SIZE) == S3E_RESULT_SUCCESS)
    {
        const std::string path = pDirectory + "/" + name;
        const bool isDirectory = s3eFileGetFileInt(path.c_str(), S3E_FILE_IS_DIR) == 1;
        entryAdd(pDirectory, name, isDirectory);
        if (isDirectory && pRecursive)
            directoryAdd(path, true);
    }
    --mDepth;
    s3eFileListClose(list);
}
