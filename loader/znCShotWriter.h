#ifndef LOADER_ZNCSHOTWRITER_H
#define LOADER_ZNCSHOTWRITER_H

#include "zncore/znTypes.h"

#include <filesystem>
#include <string>
#include <vector>

// Writes pictures of the screen as PNG files without alpha.
class znCShotWriter
{
public:
    // False with a sentence in pError if the folder is not there and can't be made.
    bool folderSet(const std::filesystem::path& pFolder, std::string& pError);
    bool isReady() const { return !mFolder.empty(); }
    // pPixels: rows from the top, R, G, B, A. A failure is one line on standard error.
    bool shotWrite(const std::string& pName, s32 pWidth, s32 pHeight, const std::vector<u8>& pPixels) const;

private:
    std::filesystem::path mFolder;
};

#endif
