#ifndef LOADER_ZNNSTDIO_H
#define LOADER_ZNNSTDIO_H

#include <cstdio>
#include <filesystem>
#include <memory>

// Buffered files with an owner.
namespace znNStdio
{
struct Close
{
    void operator()(std::FILE* pFile) const { std::fclose(pFile); }
};
using File = std::unique_ptr<std::FILE, Close>;

// Opens an ordinary file with the flags of open(2), without waiting and without handing it to child processes; null,
// with errno set, if that fails or it is something else, such as a folder or a pipe.
File open(const std::filesystem::path& pPath, int pFlags, const char* pMode);
} // namespace znNStdio

#endif
