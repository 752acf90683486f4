#ifndef TESTS_TOOLS_AUTHORDATA_H
#define TESTS_TOOLS_AUTHORDATA_H

// A data folder of a test's own: what ships, but for scenes and sounds, and what the test puts in. Removed at the end.

#include "zncore/znTypes.h"

#include <filesystem>
#include <string>

class AuthorData
{
public:
    AuthorData();
    ~AuthorData();
    AuthorData(const AuthorData&) = delete;
    AuthorData& operator=(const AuthorData&) = delete;

    void textSet(const std::string& pFile, const std::string& pText);
    std::string textGet(const std::string& pFile) const;
    // A disc of that colour in front of transparency, or, pSolid, all of it.
    void pictureSet(const std::string& pFile, s32 pWidth, s32 pHeight, u32 pRgb = 0xc04020, bool pSolid = false);
    const std::filesystem::path& folderGet() const { return mFolder; }

private:
    std::filesystem::path mFolder;
};

#endif
