#include "tests/tools/authorData.h"

#include "tools/author/znNPng.h"

#include <unistd.h>

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

AuthorData::AuthorData() : mFolder(fs::temp_directory_path() / ("petrel-author-" + std::to_string(getpid())))
{
    const fs::path shipped = fs::path(PETREL_ROOT) / "data";
    fs::remove_all(mFolder);
    for (const auto& entry : fs::recursive_directory_iterator(shipped))
    {
        const std::string name = fs::relative(entry.path(), shipped).generic_string();
        if (!entry.is_regular_file() || name.starts_with("scenes/") || name.starts_with("audio/"))
            continue;
        fs::create_directories((mFolder / name).parent_path());
        fs::copy_file(entry.path(), mFolder / name);
    }
}

AuthorData::~AuthorData()
{
    fs::remove_all(mFolder);
}

void AuthorData::textSet(const std::string& pFile, const std::string& pText)
{
    fs::create_directories((mFolder / pFile).parent_path());
    std::ofstream(mFolder / pFile, std::ios::binary) << pText;
}

std::string AuthorData::textGet(const std::string& pFile) const
{
    std::ifstream file(mFolder / pFile, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void AuthorData::pictureSet(const std::string& pFile, s32 pWidth, s32 pHeight, u32 pRgb, bool pSolid)
{
    znSPicture picture(pWidth, pHeight);
    for (s32 y = 0; y < pHeight; ++y)
        for (s32 x = 0; x < pWidth; ++x)
        {
            const s32 dx = 2 * x + 1 - pWidth;
            const s32 dy = 2 * y + 1 - pHeight;
            if (!pSolid && dx * dx + dy * dy > pWidth * pHeight)
                continue;
            u8* pixel = picture.at(x, y);
            pixel[0] = static_cast<u8>(pRgb >> 16);
            pixel[1] = static_cast<u8>(pRgb >> 8);
            pixel[2] = static_cast<u8>(pRgb);
            pixel[3] = 255;
        }
    fs::create_directories((mFolder / pFile).parent_path());
    znNPng::write(mFolder / pFile, picture);
}
