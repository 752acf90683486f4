#ifndef LOADER_S3EFILELIST_H
#define LOADER_S3EFILELIST_H

#include <cstddef>
#include <string>
#include <vector>

// A folder's names on their way to the module. znCFiles owns it.
struct s3eFileList
{
    std::vector<std::string> mNames;
    size_t mNext = 0;
};

#endif
