#ifndef LOADER_ZNCMODULE_H
#define LOADER_ZNCMODULE_H

#include "zncore/impl/platform/s3e.h"

#include <filesystem>
#include <string>

// The game: a shared library with its version in two bytes and one entry. It stays loaded to the end of the process, so
// that what it still holds there can be told from leaks.
class znCModule
{
public:
    // False with a sentence in pError if the library is missing, is none of ours or has another interface version.
    bool open(const std::filesystem::path& pPath, std::string& pError);
    // Hands over the table, then runs the game until it ends; its result.
    s32 run(const s3eFunctionTable& pTable) const;

private:
    using Entry = s32 (*)(const s3eFunctionTable*);

    bool versionCheck(void* pLibrary, std::string& pError) const;

    Entry mEntry = nullptr;
};

#endif
