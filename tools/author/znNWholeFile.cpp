#include "tools/author/znNWholeFile.h"

#include <cstdio>
#include <fstream>

namespace fs = std::filesystem;

namespace
{
fs::path draftGet(const fs::path& pFile)
{
    return pFile.string() + ".new";
}

bool finish(const fs::path& pFile, bool pDrafted)
{
    if (pDrafted && znNWholeFile::draftTake(pFile))
        return true;
    znNWholeFile::draftDrop(pFile);
    std::fprintf(stderr, "%s can't be written\n", pFile.c_str());
    return false;
}
} // namespace

bool znNWholeFile::textWrite(const fs::path& pFile, const std::string& pText)
{
    return finish(pFile, textDraft(pFile, pText));
}

bool znNWholeFile::pictureWrite(const fs::path& pFile, const znSPicture& pPicture)
{
    return finish(pFile, pictureDraft(pFile, pPicture));
}

bool znNWholeFile::textDraft(const fs::path& pFile, const std::string& pText)
{
    std::ofstream file(draftGet(pFile), std::ios::binary);
    file << pText;
    file.close();
    return !file.fail();
}

bool znNWholeFile::pictureDraft(const fs::path& pFile, const znSPicture& pPicture)
{
    return znNPng::write(draftGet(pFile), pPicture);
}

bool znNWholeFile::draftTake(const fs::path& pFile)
{
    std::error_code error;
    fs::rename(draftGet(pFile), pFile, error);
    return !error;
}

void znNWholeFile::draftDrop(const fs::path& pFile)
{
    std::error_code ignored;
    fs::remove(draftGet(pFile), ignored);
}
